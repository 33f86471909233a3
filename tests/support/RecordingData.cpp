#include "support/RecordingData.h"

namespace corvane::test {
namespace {

class RecordingConnection : public Connection {
 public:
  RecordingConnection(RecordingData& data) : data_(data), real_(data.Real.NewConnection()) {}

  void Open(const std::string& connectionString) override {
    data_.Tried.push_back(connectionString);
    real_->Open(connectionString);
  }
  void Close() override { real_->Close(); }
  ObjectState State() const override { return real_->State(); }
  std::unique_ptr<Recordset> Execute(const std::string& sql) override {
    data_.Meet(sql);
    return real_->Execute(sql);
  }
  void BeginTrans() override { real_->BeginTrans(); }
  void CommitTrans() override { real_->CommitTrans(); }
  void RollbackTrans() override { real_->RollbackTrans(); }
  void SetLockWait(int milliseconds) override {
    data_.LockWaits.push_back(milliseconds);
    real_->SetLockWait(milliseconds);
  }

  Connection& Real() { return *real_; }

 private:
  RecordingData& data_;
  std::unique_ptr<Connection> real_;
};

class RecordingRecordset : public Recordset {
 public:
  RecordingRecordset(RecordingData& data) : data_(data), real_(data.Real.NewRecordset()) {}

  void Open(const std::string& source, Connection& connection, CursorType cursor, LockType lock) override {
    data_.Meet(source);
    real_->Open(source, dynamic_cast<RecordingConnection&>(connection).Real(), cursor, lock);
  }
  void Close() override { real_->Close(); }
  ObjectState State() const override { return real_->State(); }
  bool Eof() const override { return real_->Eof(); }
  bool Bof() const override { return real_->Bof(); }
  void MoveNext() override { real_->MoveNext(); }
  void MoveFirst() override { real_->MoveFirst(); }
  const Value& Field(std::string_view name) const override { return real_->Field(name); }
  void Find(const std::string& criterion) override { real_->Find(criterion); }
  void AddNew() override { real_->AddNew(); }
  void SetField(std::string_view name, const Value& value) override { real_->SetField(name, value); }
  void Update() override { real_->Update(); }

 private:
  RecordingData& data_;
  std::unique_ptr<Recordset> real_;
};

}  // namespace

std::unique_ptr<Connection> RecordingData::NewConnection() { return std::make_unique<RecordingConnection>(*this); }

std::unique_ptr<Recordset> RecordingData::NewRecordset() { return std::make_unique<RecordingRecordset>(*this); }

}  // namespace corvane::test

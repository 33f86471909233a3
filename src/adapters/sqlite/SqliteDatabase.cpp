#include "adapters/sqlite/SqliteDatabase.h"

#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "adapters/sqlite/StoreErrors.h"

namespace corvane {
namespace {

namespace fs = std::filesystem;

// Where the engine keeps these numbers in the first hundred bytes of a file, highest byte first.
constexpr std::size_t WriteVersionAt = 18, UserVersionAt = 60, ApplicationIdAt = 68;

// What a database of Access itself begins with.
constexpr char JetHeader[] = "\0\1\0\0Standard Jet DB";

template <class Bytes>
std::uint32_t NumberAt(const Bytes& bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t i = at; i < at + 4; ++i) number = number << 8 | bytes[i];
  return number;
}

template <class Bytes>
bool UsesWriteAheadLog(const Bytes& header) {
  return header[WriteVersionAt] == 2;
}

RuntimeError Refusal(const fs::path& file, const std::string& why) {
  return StoreError(errors::DataFailure, "The database '" + file.string() + "' cannot be opened: " + why + ".");
}

int TryRun(sqlite3* engine, const char* sql) { return sqlite3_exec(engine, sql, nullptr, nullptr, nullptr); }

void Run(sqlite3* engine, const std::string& sql) {
  if (TryRun(engine, sql.c_str()) != SQLITE_OK) RaiseLastError(engine);
}

bool HasContent(fs::path file, const char* suffix) {
  std::error_code ignored;
  file += suffix;
  return fs::exists(file, ignored) && fs::file_size(file, ignored) > 0;
}

// The result codes that a folder gives in which the engine cannot keep its shared memory, its log or its journal.
bool BlamesFolder(int code) {
  switch (code) {
    case SQLITE_READONLY_ROLLBACK:
    case SQLITE_READONLY_CANTINIT:
    case SQLITE_READONLY_RECOVERY:
    case SQLITE_READONLY_DIRECTORY:
    case SQLITE_IOERR_SHMOPEN:
    case SQLITE_IOERR_SHMSIZE:
    case SQLITE_IOERR_SHMMAP:
    case SQLITE_IOERR_SHMLOCK:
      return true;
    default:
      return (code & 0xFF) == SQLITE_CANTOPEN;
  }
}

// A path as the engine's `file:` name for a file that nobody changes while it is open.
std::string FrozenName(const fs::path& file) {
  std::string name = "file:";
  for (const char c : file.string()) {
    char escaped[4];
    std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    name += c == '/' ? std::string("/") : std::string(escaped);
  }
  return name + "?immutable=1";
}

}  // namespace

void SqliteDatabase::Closer::operator()(sqlite3* engine) const { sqlite3_close_v2(engine); }

SqliteDatabase::SqliteDatabase(const fs::path& file, int newestFormat, int lockWait)
    : file_(fs::absolute(file)), newestFormat_(newestFormat), lockWait_(lockWait) {
  Open();
}

sqlite3* SqliteDatabase::Engine() {
  if (engine_ && !(frozen_ && PresentStamp() != stamp_)) return engine_.get();
  try {
    Open();
  } catch (...) {
    engine_.reset();
    throw;
  }
  return engine_.get();
}

void SqliteDatabase::SetLockWait(int milliseconds) {
  lockWait_ = milliseconds;
  if (engine_) sqlite3_busy_timeout(engine_.get(), lockWait_);
}

SqliteDatabase::Handle SqliteDatabase::OpenHandle(const std::string& name, int flags) {
  // The engine's own account of its memory costs a lock for every piece; nobody reads it. Has to be settled before the
  // engine is used for the first time.
  [[maybe_unused]] static const int settled = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  sqlite3* engine = nullptr;
  const int code = sqlite3_open_v2(name.c_str(), &engine, flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE, nullptr);
  Handle handle(engine);
  if (code != SQLITE_OK) RaiseLastError(engine);
  sqlite3_db_config(engine, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
  sqlite3_db_config(engine, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
  sqlite3_db_config(engine, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_limit(engine, SQLITE_LIMIT_ATTACHED, 0);
  return handle;
}

// Read through the engine's own descriptor: closing another one would drop every lock of this process on the file.
SqliteDatabase::Header SqliteDatabase::ReadHeader(sqlite3* engine) {
  Header header{};
  sqlite3_file* file = nullptr;
  sqlite3_file_control(engine, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  const int code = file->pMethods->xRead(file, header.data(), static_cast<int>(header.size()), 0);
  if (code != SQLITE_OK && code != SQLITE_IOERR_SHORT_READ) throw ErrorOfCode(code, "its header cannot be read");
  return header;
}

void SqliteDatabase::Open() {
  std::error_code ignored;
  if (!fs::exists(file_, ignored)) throw Refusal(file_, "there is no such file");
  frozen_ = false;
  engine_.reset();
  try {
    engine_ = OpenHandle(file_.string(), SQLITE_OPEN_READWRITE);
  } catch (const RuntimeError&) {
    throw Refusal(file_, "it is not a file, or may not be read");
  }
  CheckOwner();
  SetLockWait(lockWait_);
  ReadFirst();
}

void SqliteDatabase::CheckOwner() const {
  const Header header = ReadHeader(engine_.get());
  const std::uint32_t format = NumberAt(header, UserVersionAt);
  if (std::memcmp(header.data(), JetHeader, sizeof JetHeader) == 0)
    throw Refusal(file_, "it was made by Microsoft Access, which this computer cannot read");
  if (std::memcmp(header.data(), "SQLite format 3", 16) != 0 || NumberAt(header, ApplicationIdAt) != OwnerMark ||
      format < OldestFormat)
    throw Refusal(file_, "it is damaged or no database of Corvane");
  if (format > NewestFormat) throw Refusal(file_, "it was made by a newer version of Corvane");
  if (format > static_cast<std::uint32_t>(newestFormat_)) throw Refusal(file_, "the provider does not know its format");
}

// The first read meets locks, damage and journals, so that they show at the opening and not in some later query.
void SqliteDatabase::ReadFirst() {
  const int code = TryRun(engine_.get(), "SELECT count(*) FROM sqlite_schema");
  if (code == SQLITE_OK) {
    if (UsesWriteAheadLog(ReadHeader(engine_.get()))) Run(engine_.get(), "PRAGMA synchronous = NORMAL");
    return;
  }
  const RuntimeError error = ErrorOfCode(code, sqlite3_errmsg(engine_.get()));
  if (!BlamesFolder(code)) throw error;
  if (TurnToRollbackJournal()) return;
  if (::access(file_.parent_path().c_str(), W_OK) == 0) throw error;
  OpenFrozen();
}

// A write-ahead log without shared memory serves one process only. The exclusive mode needs none, and lets us leave the
// log for a journal; it fails with a lock while another process uses the file.
bool SqliteDatabase::TurnToRollbackJournal() {
  if (sqlite3_db_readonly(engine_.get(), "main") != 0) return false;
  engine_ = OpenHandle(file_.string(), SQLITE_OPEN_READWRITE);
  SetLockWait(lockWait_);
  const int code = TryRun(engine_.get(),
                          "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = DELETE;"
                          "PRAGMA locking_mode = NORMAL; SELECT count(*) FROM sqlite_schema");
  if ((code & 0xFF) == SQLITE_BUSY) RaiseLastError(engine_.get());
  return code == SQLITE_OK && !UsesWriteAheadLog(ReadHeader(engine_.get()));
}

// A folder without write access has no room for locks. Its file can be read as it stands, unless a journal beside it
// holds part of the truth.
void SqliteDatabase::OpenFrozen() {
  if (HasUnfinishedChanges())
    throw Refusal(file_, "another program left changes that can be taken over only with write access to the folder");
  stamp_ = PresentStamp();
  engine_ = OpenHandle(FrozenName(file_), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  frozen_ = true;
  Run(engine_.get(), "SELECT count(*) FROM sqlite_schema");
}

SqliteDatabase::Stamp SqliteDatabase::PresentStamp() const {
  std::error_code ignored;
  return {fs::last_write_time(file_, ignored), fs::file_size(file_, ignored), HasUnfinishedChanges()};
}

bool SqliteDatabase::HasUnfinishedChanges() const { return HasContent(file_, "-wal") || HasContent(file_, "-journal"); }

void SqliteDatabase::Create(const fs::path& file, std::string_view schema, int format) {
  // Mode "x" fails when the file is there, so none is ever replaced.
  std::FILE* placeholder = std::fopen(file.c_str(), "wbx");
  if (placeholder == nullptr)
    throw StoreError(errors::DataFailure,
                     "The database '" + file.string() + "' cannot be made: " + std::strerror(errno) + ".");
  std::fclose(placeholder);
  try {
    const Handle engine = OpenHandle(fs::absolute(file).string(), SQLITE_OPEN_READWRITE);
    // One transaction, so that a half-made file is never taken for a database.
    Run(engine.get(), "BEGIN; PRAGMA application_id = " + std::to_string(OwnerMark) + "; PRAGMA user_version = " +
                          std::to_string(format) + ";" + std::string(schema) + "\n; COMMIT");
    // Where the folder does not allow it the engine stays with its rollback journal.
    Run(engine.get(), "PRAGMA journal_mode = WAL");
  } catch (...) {
    std::error_code ignored;
    fs::remove(file, ignored);
    throw;
  }
}

}  // namespace corvane

#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;

namespace corvane {

/// An open database file of this system. Knows which files are its own, and how they are read where the folder does
/// not allow what the engine would like best.
class SqliteDatabase {
 public:
  /// Marks a file as one of this system, beside the format number.
  static constexpr std::uint32_t OwnerMark = 0x43565244;  // "CVRD"
  static constexpr int OldestFormat = 3;
  static constexpr int NewestFormat = 4;

  /// Opens a file that is there. `newestFormat` is the newest one that the caller can read, `lockWait` how many
  /// milliseconds a statement waits for a lock. Raises `DataFailure` for a file that is missing, damaged, not of this
  /// system or too new, without having changed it, and `DataLocked`.
  SqliteDatabase(const std::filesystem::path& file, int newestFormat, int lockWait);

  /// Makes a file, which must not be there, with the tables of `schema` (raw SQL, may be empty). A failure leaves none.
  static void Create(const std::filesystem::path& file, std::string_view schema, int format);

  /// The engine's connection, for one statement. Always asked anew: a file that is read without locks is opened again
  /// when another process has changed it.
  sqlite3* Engine();

  void SetLockWait(int milliseconds);

 private:
  struct Closer {
    void operator()(sqlite3* engine) const;
  };
  using Handle = std::unique_ptr<sqlite3, Closer>;
  using Header = std::array<unsigned char, 100>;
  struct Stamp {
    std::filesystem::file_time_type Written{};
    std::uintmax_t Length = 0;
    bool HasLog = false;
    bool operator==(const Stamp&) const = default;
  };

  static Handle OpenHandle(const std::string& name, int flags);
  static Header ReadHeader(sqlite3* engine);

  void Open();
  void CheckOwner() const;
  void ReadFirst();
  bool TurnToRollbackJournal();
  void OpenFrozen();
  Stamp PresentStamp() const;
  bool HasUnfinishedChanges() const;

  std::filesystem::path file_;
  int newestFormat_;
  int lockWait_;
  Handle engine_;
  bool frozen_ = false;
  Stamp stamp_;
};

}  // namespace corvane

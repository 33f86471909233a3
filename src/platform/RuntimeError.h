#pragma once

#include <exception>
#include <string>
#include <utility>

namespace corvane {

/// The numbers an administrator of this product meets in its error boxes.
namespace errors {
inline constexpr int Overflow = 6;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int FileNotFound = 53;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DeviceIo = 57;
inline constexpr int DiskFull = 61;
inline constexpr int PastEndOfFile = 62;
inline constexpr int PermissionDenied = 70;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int NoObject = 91;
inline constexpr int InvalidPropertyValue = 380;
inline constexpr int CannotCreateObject = 429;
inline constexpr int AutomationError = 440;
inline constexpr int IndexOutOfBounds = 35600;
inline constexpr int ElementNotFound = 35601;
inline constexpr int KeyNotUnique = 35602;
// Numbers of the data layer, negative as its clients show them.
inline constexpr int DataFailure = -2147467259;        // 0x80004005: open refused, unspecified failure
inline constexpr int DataSyntax = -2147217900;         // 0x80040E14: the statement is not understood
inline constexpr int DataNoTable = -2147217865;        // 0x80040E37: a table that is not there
inline constexpr int DataNoColumn = -2147217904;       // 0x80040E10: a name that is no column
inline constexpr int DataTypeMismatch = -2147217913;   // 0x80040E07
inline constexpr int DataFieldTooSmall = -2147217833;  // 0x80040E57
inline constexpr int DataConstraint = -2147217873;     // 0x80040E2F: a duplicate key, a Null where none may be
inline constexpr int DataLocked = -2147217887;         // 0x80040E21: the row or file is held by another
inline constexpr int DataReadOnly = -2147217911;       // 0x80040E09
inline constexpr int DataCancelled = -2147217842;      // 0x80040E4E: the user cancelled the prompt
inline constexpr int DataLoginRefused = -2147217843;   // 0x80040E4D: a wrong user or password
inline constexpr int DataNoItem = 3265;                // a field that the row does not have
inline constexpr int DataNoRow = 3021;                 // no current row
inline constexpr int DataClosed = 3704;                // the object is closed
inline constexpr int DataOpen = 3705;                  // the object is open already
}  // namespace errors

/// A failure of a statement at run time. `Number` is what the user is shown and what a trap looks at.
class RuntimeError : public std::exception {
 public:
  RuntimeError(int number, std::string description, std::string source = "Corvane")
      : Number(number), Source(std::move(source)), Description(std::move(description)) {}

  const char* what() const noexcept override { return Description.c_str(); }

  int Number;
  std::string Source;
  std::string Description;
};

}  // namespace corvane

#pragma once
// The core's typed errors. Each carries the error number and description the original runtime
// would have raised, so the user interface can show the program's own message texts.
#include <stdexcept>
#include <string>

namespace lathwick {

class AppError : public std::runtime_error {
 public:
  AppError(int number, const std::string& description)
      : std::runtime_error(description), number_(number) {}
  int number() const { return number_; }
  std::string description() const { return what(); }

 private:
  int number_;
};

// Runtime error numbers and their standard descriptions, for the errors the core raises itself.
namespace err {
inline constexpr int kOverflow = 6;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kBadFileName = 52;
inline constexpr int kFileNotFound = 53;
inline constexpr int kBadFileMode = 54;
inline constexpr int kDiskFull = 61;
inline constexpr int kBadFileNameOrNumber = 64;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kPathNotFound = 76;
inline constexpr int kPathFileAccess = 75;
}  // namespace err

AppError makeError(int number);  // the standard description for the numbers above

}  // namespace lathwick

#pragma once
// The core's typed errors. Each carries the error number and description the original runtime
// would have raised, so the user interface can show the program's own message texts.
#include <stdexcept>
#include <string>

#include "platform/error_texts.h"

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

// The error numbers (err::k...) and their texts are in the shared table.
// An error with the standard text of its number ("Application-defined or object-defined error"
// for a number the table does not know).
AppError makeError(int number);

}  // namespace lathwick

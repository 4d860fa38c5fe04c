#include "platform/command_boundary.h"

#include <new>

#include "platform/error_texts.h"
#include "platform/errors.h"

namespace lathwick {

namespace {
std::string occurred(int number, const std::string& description) {
  return "The error " + std::to_string(number) + " " + description + " occurred.";
}
}  // namespace

std::string escapedErrorMessage(const std::exception_ptr& error) {
  try {
    std::rethrow_exception(error);
  } catch (const AppError& e) {
    return occurred(e.number(), e.description());
  } catch (const std::bad_alloc&) {
    return occurred(err::kOutOfMemory, errorText(err::kOutOfMemory));
  } catch (...) {
    return occurred(err::kInternalError, errorText(err::kInternalError));
  }
}

bool runInsideBoundary(const std::function<void()>& body, const BoundaryReport& report) {
  try {
    body();
    return true;
  } catch (...) {
    const std::string message = escapedErrorMessage(std::current_exception());
    if (report) report(message);
    return false;
  }
}

}  // namespace lathwick

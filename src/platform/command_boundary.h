#pragma once
// The boundary around every command, dialog button and script call: whatever a command throws
// stops at it and becomes one message in the program's words ("The error 51 Internal error
// occurred."), so no failure ends the program. Commands change a document only at their end
// (through the reload), so a command stopped on its way leaves the documents as they were.
#include <exception>
#include <functional>
#include <string>

namespace lathwick {

// "The error N DESCRIPTION occurred.": the program's own errors keep their number and text, a
// lack of memory is error 7, anything else error 51 "Internal error".
std::string escapedErrorMessage(const std::exception_ptr& error);

using BoundaryReport = std::function<void(const std::string& message)>;

// Runs `body`; an exception that escapes it goes to `report` as its message. False when one did.
bool runInsideBoundary(const std::function<void()>& body, const BoundaryReport& report);

}  // namespace lathwick

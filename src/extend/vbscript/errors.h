#pragma once
// Error numbers, their standard texts, the exception that carries a script error through the
// interpreter, and the error record handed to the host.
#include <stdexcept>
#include <string>

#include "platform/error_texts.h"

namespace lathwick::vbs {

inline constexpr const char* kRuntimeSource = "VBScript runtime error";
inline constexpr const char* kCompileSource = "VBScript compilation error";
inline constexpr int kObjectError = -2147221504;  // vbObjectError

// Runtime error numbers: the one table in platform/, named by their texts.
namespace rt {
using namespace ::lathwick::err;
}

// Compilation error numbers.
namespace ce {
inline constexpr int kOutOfMemory = 1001, kSyntax = 1002, kExpectedColon = 1003,
                     kExpectedLParen = 1005, kExpectedRParen = 1006, kExpectedRBracket = 1007,
                     kExpectedIdent = 1010,
                     kExpectedEq = 1011, kExpectedIf = 1012, kExpectedTo = 1013, kExpectedEnd = 1014,
                     kExpectedFunction = 1015, kExpectedSub = 1016, kExpectedThen = 1017,
                     kExpectedWend = 1018, kExpectedLoop = 1019, kExpectedNext = 1020,
                     kExpectedCase = 1021, kExpectedSelect = 1022, kExpectedExpr = 1023,
                     kExpectedStmt = 1024, kExpectedEos = 1025, kExpectedInteger = 1026,
                     kExpectedWhileUntil = 1027, kExpectedWhileUntilEos = 1028,
                     kExpectedWith = 1029, kIdentTooLong = 1030, kInvalidNumber = 1031,
                     kInvalidChar = 1032, kUnterminatedString = 1033, kInvalidMe = 1037,
                     kLoopWithoutDo = 1038, kInvalidExit = 1039, kInvalidForVar = 1040,
                     kRedefined = 1041, kMustBeFirst = 1042, kParensOnSub = 1044,
                     kExpectedLiteral = 1045, kExpectedIn = 1046, kExpectedClass = 1047,
                     kNotInClass = 1048, kExpectedLetSetGet = 1049, kExpectedProperty = 1050, kPropArgCount = 1051,
                     kMultipleDefault = 1052, kInitArgs = 1053, kLetSetNoArgs = 1054,
                     kUnexpectedNext = 1055, kDefaultPlacement = 1056, kDefaultNotPublic = 1057,
                     kDefaultNotGet = 1058;
}

// errorText() and isKnownError() come from the shared table (platform/error_texts.h).
using ::lathwick::errorText;
using ::lathwick::isKnownError;

// A script error in flight. `name` is the identifier a name-related message appends.
struct ScriptError : std::runtime_error {
  ScriptError(int number, std::string description, std::string source, std::string name = {})
      : std::runtime_error(description),
        number(number),
        description(std::move(description)),
        source(std::move(source)),
        name(std::move(name)) {}
  int number;
  std::string description;
  std::string source;
  std::string name;
  // Position, filled in by the statement that failed (0 = not yet known).
  int line = 0;
  int column = 0;
  bool located = false;
  const void* unit = nullptr;
  std::string helpFile;
  int helpContext = 0;
  // An interrupt: not caught by On Error Resume Next.
  bool fatal = false;
};

// A runtime error with the standard text.
[[noreturn]] void raise(int number, const std::string& name = {});

// The record of the error that stopped a compilation, top-level code or a Run call.
struct ErrorRecord {
  int number = 0;
  std::string description;  // the bare text (as Err.Description has it)
  std::string source;       // "VBScript runtime error", "VBScript compilation error" or the host's
  std::string sourceName;   // the name the host gave the code (for example a file label)
  int line = 0;             // 1-based
  int column = 0;           // 1-based
  std::string lineText;     // the whole offending line
  std::string name;         // identifier for name-related errors, else empty
  // The description as shown to the user: name-related errors append ": 'name'".
  std::string message() const;
};

}  // namespace lathwick::vbs

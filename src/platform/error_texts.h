#pragma once
// The one table of runtime error numbers and their standard texts, shared by the core's own
// errors (settings, files, passes) and the macro language. Constants are named by their texts.
#include <string>

namespace lathwick {

namespace err {
inline constexpr int kInvalidProcedureCall = 5;  // "Invalid procedure call or argument"
inline constexpr int kOverflow = 6;
inline constexpr int kOutOfMemory = 7;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kArrayFixedOrLocked = 10;  // "This array is fixed or temporarily locked"
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kOutOfStringSpace = 14;
inline constexpr int kOutOfStackSpace = 28;
inline constexpr int kSubOrFunctionNotDefined = 35;
inline constexpr int kInternalError = 51;
inline constexpr int kBadFileNameOrNumber = 52;
inline constexpr int kFileNotFound = 53;
inline constexpr int kBadFileMode = 54;
inline constexpr int kDiskFull = 61;
inline constexpr int kBadFileName = 64;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kPathFileAccessError = 75;
inline constexpr int kPathNotFound = 76;
inline constexpr int kObjectVariableNotSet = 91;
inline constexpr int kForLoopNotInitialized = 92;
inline constexpr int kInvalidUseOfNull = 94;
inline constexpr int kObjectRequired = 424;
inline constexpr int kCantCreateObject = 429;  // "ActiveX component can't create object"
inline constexpr int kObjectDoesntSupportThisPropertyOrMethod = 438;
inline constexpr int kObjectDoesntSupportThisAction = 445;
inline constexpr int kWrongNumberOfArguments = 450;  // "... or invalid property assignment"
inline constexpr int kObjectNotACollection = 451;
inline constexpr int kVariableIsUndefined = 500;
inline constexpr int kIllegalAssignment = 501;
inline constexpr int kInvalidOrUnqualifiedReference = 505;
inline constexpr int kClassNotDefined = 506;
}  // namespace err

// The standard text of a runtime or compilation error number of the macro language; "Unknown
// runtime error" when the language does not know the number.
std::string errorText(int number);
bool isKnownError(int number);
// The text of any number in the table, including the errors only the program raises
// (64 "Bad file name"); nullptr when the number is not in the table.
const char* programErrorText(int number);

}  // namespace lathwick

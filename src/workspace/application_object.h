#pragma once
// The object "Application" that macros see: a member table over the workspace and the script
// window, so the same object serves the editor and the batch tool.
#include "extend/vbscript/engine.h"
#include "workspace/script_window.h"
#include "workspace/workspace.h"

namespace lathwick {

inline constexpr const char* kOperateErrorCaption = "Operate Error";
inline constexpr const char* kAddressMustBeLetter = "Address must be a letter.";
inline constexpr const char* kOperatorMustBe = "Operator must be +-*/ ";
inline constexpr const char* kValueMustBeNumber = "Value must be a valid number.";

// Registers "Application" on `engine`, its members also as global names.
void addApplicationObject(vbs::Engine& engine, Workspace& workspace, ScriptWindow& window);

// The current line as macros read it: the last character of the break before the line, then
// the line; empty on the first line. Reads only that stretch of the document.
std::string lineTextOf(const WorkspaceDocument& document);

// The three one-character checks of Operate, in their order: the message of the first that
// fails, or empty.
std::string operateArgumentProblem(const std::string& address, const std::string& op, const std::string& value);

}  // namespace lathwick

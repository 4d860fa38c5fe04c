#pragma once
// What a whole-document run (a colour view or a transformation pass) hands back to whoever
// started it, and what the user is told about it. The core never shows anything: the editor
// turns the result into its status label and message box, the headless workspace into console
// text, the batch tool into stdout, stderr and an exit status. It sits beside PassMonitor, the
// other half of talking to a pass, so that every layer that runs one uses the same outcome and
// the same texts.
#include <string>

#include "platform/questions.h"

namespace lathwick {

// The status-bar text once a run has ended, however it ended.
inline constexpr const char* kReadyStatus = "Press F1 for help.";
// The message box of a run stopped by Esc or Cancel.
inline constexpr const char* kCancelledMessage = "Operation canceled by user.";
inline constexpr const char* kCancelledTitle = "Operation Incomplete.";

enum class PassOutcome {
  Completed,  // the output file is written; `reload` says whether it should enter the document
  Cancelled,  // stopped by the cancel flag; the output is not written
  Refused,    // the input was refused before the run (bare line feeds); nothing written
  Failed,     // a runtime error inside the run; nothing written
  NoInput,    // the input file could not be read: the editor reports nothing, the tool does
};

struct PassResult {
  PassOutcome outcome = PassOutcome::Completed;
  long count = 0;           // replacements, highlights or operations made; lines changed or written otherwise
  bool reload = false;      // load the output into the document (ReloadDocument)
  std::string statusLabel;  // e.g. "3 Replacements made." (rich-text passes, when completed)
  std::string message;      // the message box text for any outcome but Completed
  std::string title;        // its title, when it has one
  int errorNumber = 0;      // Failed / NoInput: the runtime error
  std::string errorDescription;
};

// A run stopped by the cancel flag, with what it had counted so far.
PassResult cancelledResult(long count = 0);
// A run stopped by a runtime error, told as "The error N DESCRIPTION" + ending.
PassResult failedResult(int number, const std::string& description, const char* ending);

// "The error 6 Overflow" + ending (" occurred during the operation.").
std::string passErrorMessage(int number, const std::string& description, const char* ending);

// What the user is told about a result: one decision for the editor and the headless workspace.
struct PassReport {
  bool shown = false;  // false: nothing is said (completed, or no input to work on)
  std::string text;
  std::string caption;  // the result's title, or the program's title
  Icon icon = Icon::None;
};
PassReport reportOf(const PassResult& result);

}  // namespace lathwick

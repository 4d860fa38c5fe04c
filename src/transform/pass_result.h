#pragma once
// What a whole-document pass hands back to whoever started it. The core never shows anything:
// the editor turns the outcome into its status label and message boxes, the batch tool into
// stdout, stderr and an exit status.
#include <string>

namespace lathwick::transform {

enum class PassOutcome {
  Completed,  // the output file is written; `reload` says whether it should enter the document
  Cancelled,  // stopped by the cancel flag; the output is not written
  Refused,    // the input was refused before the pass (bare line feeds); nothing written
  Failed,     // a runtime error inside the pass; nothing written
  NoInput,    // the input file could not be read: the editor reports nothing, the tool does
};

struct PassResult {
  PassOutcome outcome = PassOutcome::Completed;
  long count = 0;           // replacements, highlights or operations made; lines changed otherwise
  bool reload = false;      // load the output into the document (ReloadDocument)
  std::string statusLabel;  // e.g. "3 Replacements made." (rich-text passes, when completed)
  std::string message;      // the message box text for any outcome but Completed
  std::string title;        // its title, when it has one
  int errorNumber = 0;      // Failed / NoInput: the runtime error
  std::string errorDescription;
};

inline constexpr const char* kCancelledMessage = "Operation canceled by user.";
inline constexpr const char* kCancelledTitle = "Operation Incomplete.";
inline constexpr const char* kStatusReady = "Press F1 for help.";

}  // namespace lathwick::transform

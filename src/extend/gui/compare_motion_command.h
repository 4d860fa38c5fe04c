#pragma once
// "Compare Motion With..." of the Options menu: the active document's motion against another
// open document's or a file's; the status bar gives the verdict and the caret goes to the line
// of the active document where the two part.
#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace lathwick::gui {

class TransformTarget;

struct OpenProgram {
  std::string caption;
  TransformTarget* document;
};

inline constexpr const char* kCompareMotionTitle = "Compare Motion With";

// With other documents open, asks which one (or a file); otherwise goes straight to the open
// dialog. `showLine` puts the caret at the start of a 1-based line of the active document.
void compareMotionWith(TransformTarget& active, const std::vector<OpenProgram>& others, QWidget* parent,
                       const std::function<void(long line)>& showLine);

// The comparison once the other program is known (its plain text and its name).
void compareMotionWithText(TransformTarget& active, const std::string& otherText, const std::string& otherName,
                           const std::function<void(long line)>& showLine);

}  // namespace lathwick::gui

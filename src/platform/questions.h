#pragma once
// The kinds of question the program puts to the user: the buttons and icon of a message box and
// the answer it gives, and what an open or save dialog is asked for. The core names them; the
// editor shows real boxes, the batch tool answers them on the console.
#include <string>

namespace lathwick {

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Icon { None, Information, Exclamation, Critical, Question };
enum class Answer { Ok, Cancel, Yes, No };

struct FileRequest {
  bool save = false;          // Save dialog; otherwise Open
  std::string title;
  std::string filter;         // "All Files (*.*)|*.*" style: description|pattern pairs
  std::string initialFolder;
  std::string fileName;       // proposed name
};

}  // namespace lathwick

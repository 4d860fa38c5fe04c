#pragma once
// Cuts a stream of bytes into program lines. A line ends at CR LF, at a lone CR or at a lone LF,
// so a program reads the same whichever line ends it was saved with, and the line numbers are
// those the editor shows. A break at the very end does not start an extra empty line. Bytes may
// come in pieces of any size; a CR LF split between two pieces is one line end.
#include <functional>
#include <string>
#include <string_view>

namespace lathwick::toolpath {

class ProgramLines {
 public:
  using LineSink = std::function<void(std::string_view line)>;
  explicit ProgramLines(LineSink sink) : sink_(std::move(sink)) {}

  void feed(std::string_view bytes);
  void finish();  // hands on a last line that has no line end

 private:
  LineSink sink_;
  std::string partial_;  // the start of a line cut by the end of the previous piece
  bool afterCr_ = false; // the previous piece ended in CR: an LF first in this one belongs to it
};

}  // namespace lathwick::toolpath

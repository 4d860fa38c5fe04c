#pragma once
// Reads a work file line by line the way the original runtime's line input does: a line ends
// at CR LF or at a lone CR; a lone LF is an ordinary character inside the line; a break at the
// very end does not start an extra empty line; an empty file has no lines. Streams in blocks.
#include <cstdio>
#include <string>
#include <vector>

namespace lathwick {

class LineReader {
 public:
  explicit LineReader(const std::string& path);  // throws AppError (53) when it cannot open
  ~LineReader();
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;

  bool next(std::string& line);  // false at end of input

 private:
  bool fill();
  std::FILE* file_ = nullptr;
  std::vector<char> buf_;
  size_t pos_ = 0;
  size_t len_ = 0;
};

}  // namespace lathwick

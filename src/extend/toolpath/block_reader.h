#pragma once
// Reads one program line into its address words, the way the colorizer reads the line: the
// block-skip text found within the first four characters makes the whole line skipped, comments
// run from the opening to the closing delimiter of the scheme's pair (or to the end of the line),
// letters count in either case, and a word's number is the run of "+-./0123456789" right after
// its letter. A ";" also starts a comment that runs to the end of the line.
//
// What cannot be read is reported as a problem text for the caller to turn into a warning:
// "bad number X--1", "unsupported #1=5", "unreadable byte 0x07". Macro expressions and keywords
// ("#", "[", "SUB", "IF" ...) end the reading of the line: the words before them are kept and
// the line is marked so that its motion is not followed.
#include <string>
#include <string_view>
#include <vector>


namespace lathwick::toolpath {

struct Word {
  char letter = 0;        // 'A' to 'Z'
  double value = 0;
  std::string_view text;  // the word as written, upper-cased ("G01", "X-1.5"); valid until the next read
};

// The comment pair of the scheme: `open` starts a comment, `close` ends it (the colorizer's rule
// turns the scheme's comment text into the pair: workspace/toolpath_reading.h).
struct CommentPair {
  char open = '(';
  char close = ')';
  bool active = true;  // false when the scheme's comment text is empty: no comments
};

struct ReaderOptions {
  CommentPair comment;           // default "(" ")"
  std::string blockSkip = "/";   // trimmed block-skip text; empty: no block skip
};

struct BlockRead {
  bool skipped = false;     // a block-skip line: nothing on it is read
  bool unreliable = false;  // macro text or keywords: the words read are not to be followed
};

class BlockReader {
 public:
  explicit BlockReader(ReaderOptions options) : options_(std::move(options)) {}

  // Fills `words` and `problems` (both cleared first) from one line.
  BlockRead read(std::string_view line, std::vector<Word>& words, std::vector<std::string>& problems);

 private:
  std::size_t skipComment(std::size_t at) const;
  std::size_t readWord(std::size_t at, std::vector<Word>& words, std::vector<std::string>& problems,
                       BlockRead& result) const;
  std::size_t readOther(std::size_t at, std::vector<std::string>& problems, BlockRead& result) const;

  ReaderOptions options_;
  std::string upper_;
};

// The strict number of a word: an optional sign, digits with at most one point, at least one
// digit, and a magnitude below 1e9. False for anything else ("--1", "1.2.3", "1/2", "").
bool parseWordNumber(std::string_view text, double& value);

}  // namespace lathwick::toolpath

#include "extend/verify/motion_compare.h"

#include <cmath>
#include <cstdio>
#include <vector>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick::verify {

using toolpath::Move;

namespace {

constexpr std::size_t kPiece = 64 * 1024;

// The moves of one program, pulled one at a time: the model is fed a piece of the program
// whenever the moves it gave so far are used up.
class MoveStream {
 public:
  MoveStream(const ProgramSource& source, const toolpath::ModelOptions& options)
      : source_(source), model_(options, [this](const Move& m) { pending_.push_back(m); }) {}

  // The next move, or nullptr when the program has no more. Valid until the next call.
  const Move* next() {
    while (head_ == pending_.size()) {
      pending_.clear();
      head_ = 0;
      if (ended_) return nullptr;
      const std::string_view piece = source_();
      if (piece.empty()) {
        model_.finish();
        ended_ = true;
      } else {
        model_.feed(piece);
      }
    }
    ++count_;
    return &pending_[head_++];
  }
  std::uint64_t count() const { return count_; }

 private:
  const ProgramSource& source_;
  std::vector<Move> pending_;
  std::size_t head_ = 0;
  bool ended_ = false;
  std::uint64_t count_ = 0;
  toolpath::MotionModel model_;
};

bool near(const toolpath::Point& a, const toolpath::Point& b, double tolerance) {
  return std::abs(a.x - b.x) <= tolerance && std::abs(a.y - b.y) <= tolerance && std::abs(a.z - b.z) <= tolerance;
}

// The start of a move is the end of the one before, so comparing ends compares the whole path.
// A rapid's speed is the machine's, whatever feed is in force.
bool sameMove(const Move& a, const Move& b, double tolerance) {
  if (a.kind != b.kind || a.units != b.units || a.tool != b.tool) return false;
  if (a.isArc() && (a.plane != b.plane || !near(a.centre, b.centre, tolerance))) return false;
  if (a.kind != toolpath::MoveKind::Rapid && std::abs(a.feed - b.feed) > tolerance) return false;
  return near(a.end, b.end, tolerance);
}

// Calls `onLine` with each line of `text` and its 1-based number until it returns false.
template <typename OnLine>
void eachLine(std::string_view text, OnLine onLine) {
  std::uint32_t number = 0;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find_first_of("\r\n", start);
    if (end == std::string_view::npos) end = text.size();
    if (!onLine(++number, text.substr(start, end - start))) return;
    start = end + (end + 1 < text.size() && text[end] == '\r' && text[end + 1] == '\n' ? 2 : 1);
  }
}

}  // namespace

MotionComparison compareMotion(const ProgramSource& a, const ProgramSource& b, const CompareOptions& options) {
  MoveStream streamA(a, options.model), streamB(b, options.model);
  MotionComparison result;
  for (std::uint64_t number = 1;; ++number) {
    const Move* moveA = streamA.next();
    const Move* moveB = streamB.next();
    if (!moveA && !moveB) break;
    if (moveA && moveB && sameMove(*moveA, *moveB, options.tolerance)) continue;
    if (result.same) {
      result.same = false;
      result.lineA = moveA ? moveA->line : 0;
      result.lineB = moveB ? moveB->line : 0;
      result.moveNumber = number;
    }
    ++result.changedMoves;
    if (!options.countAll) break;
  }
  result.movesA = streamA.count();
  result.movesB = streamB.count();
  return result;
}

ProgramSource fileSource(const std::string& path) {
  struct Reader {
    explicit Reader(std::FILE* f) : file(f) {}
    ~Reader() { std::fclose(file); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    std::FILE* file;
    std::vector<char> buffer = std::vector<char>(kPiece);
  };
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (!file) throw makeError(err::kFileNotFound);
  auto reader = std::make_shared<Reader>(file);
  return [reader]() {
    const std::size_t n = std::fread(reader->buffer.data(), 1, reader->buffer.size(), reader->file);
    if (n == 0 && std::ferror(reader->file)) throw makeError(err::kPathFileAccessError);
    return std::string_view(reader->buffer.data(), n);
  };
}

ProgramSource textSource(std::string_view text) {
  auto offset = std::make_shared<std::size_t>(0);
  return [text, offset]() {
    const std::string_view piece = text.substr(std::min(*offset, text.size()), kPiece);
    *offset += piece.size();
    return piece;
  };
}

MotionComparison compareProgramFiles(const std::string& pathA, const std::string& pathB,
                                     const CompareOptions& options) {
  return compareMotion(fileSource(pathA), fileSource(pathB), options);
}

MotionComparison compareProgramTexts(std::string_view textA, std::string_view textB, const CompareOptions& options) {
  return compareMotion(textSource(textA), textSource(textB), options);
}

std::string programLine(std::string_view text, std::uint32_t line) {
  std::string found;
  eachLine(text, [&](std::uint32_t number, std::string_view l) {
    if (number < line) return true;
    found = l;
    return false;
  });
  return found;
}

std::string programFileLine(const std::string& path, std::uint32_t line) {
  const auto text = readWholeFile(path);
  return text ? programLine(*text, line) : std::string();
}

}  // namespace lathwick::verify

#include "document/rtf_read_ahead.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "document/rtf_reader.h"

namespace lathwick {
namespace {

constexpr std::size_t kPiecesAhead = 4;  // how far the reading may run ahead of the caller

// What the reader handed over, with the formats (and, rarely, fonts) that became known with it.
struct Piece {
  enum class Kind { Indent, Text, End } kind = Kind::End;
  int indent = 0;
  std::string text;
  std::vector<RtfRun> runs;
  std::vector<RtfCharFormat> newFormats;
  std::optional<std::map<int, RtfFont>> fonts;
};

struct Stopped {};  // the caller gave up: the reading ends without a word

class PieceQueue {
 public:
  void push(Piece piece) {
    std::unique_lock lock(mutex_);
    notFull_.wait(lock, [this] { return pieces_.size() < kPiecesAhead || stopped_; });
    if (stopped_) throw Stopped{};
    pieces_.push_back(std::move(piece));
    notEmpty_.notify_one();
  }
  Piece pop() {
    std::unique_lock lock(mutex_);
    notEmpty_.wait(lock, [this] { return !pieces_.empty(); });
    Piece piece = std::move(pieces_.front());
    pieces_.pop_front();
    notFull_.notify_one();
    return piece;
  }
  void stop() {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
    notFull_.notify_all();
  }

 private:
  std::mutex mutex_;
  std::condition_variable notFull_;
  std::condition_variable notEmpty_;
  std::deque<Piece> pieces_;
  bool stopped_ = false;
};

// The reader's sink on the helper thread: copies each piece into the queue.
class Forwarder : public RtfTextSink {
 public:
  explicit Forwarder(PieceQueue& queue) : queue_(queue) {}
  void indent(int twips) override {
    Piece piece;
    piece.kind = Piece::Kind::Indent;
    piece.indent = twips;
    queue_.push(std::move(piece));
  }
  void styledText(std::string_view text, std::span<const RtfRun> runs, const RtfFormatTable& table) override {
    Piece piece;
    piece.kind = Piece::Kind::Text;
    piece.text.assign(text);
    piece.runs.assign(runs.begin(), runs.end());
    piece.newFormats.assign(table.formats.begin() + static_cast<std::ptrdiff_t>(formatsSent_), table.formats.end());
    formatsSent_ = table.formats.size();
    if (table.fonts != fontsSent_) {
      fontsSent_ = table.fonts;
      piece.fonts = fontsSent_;
    }
    queue_.push(std::move(piece));
  }

 private:
  PieceQueue& queue_;
  std::size_t formatsSent_ = 0;
  std::map<int, RtfFont> fontsSent_;
};

// Hands a piece to the caller's sink, with the table as the reader knew it then.
void handOn(Piece& piece, RtfFormatTable& table, RtfTextSink& sink) {
  if (piece.kind == Piece::Kind::Indent) {
    sink.indent(piece.indent);
    return;
  }
  table.formats.insert(table.formats.end(), piece.newFormats.begin(), piece.newFormats.end());
  if (piece.fonts) table.fonts = std::move(*piece.fonts);
  sink.styledText(piece.text, piece.runs, table);
}

}  // namespace

RtfFormatTable readRtfFileAhead(const std::string& path, RtfTextSink& sink) {
  PieceQueue queue;
  RtfFormatTable result;
  std::exception_ptr failure;
  std::thread reader([&] {
    try {
      Forwarder forwarder(queue);
      result = readRtfFile(path, forwarder);
    } catch (const Stopped&) {
      return;
    } catch (...) {
      failure = std::current_exception();
    }
    try {
      queue.push(Piece{});  // the end
    } catch (const Stopped&) {
    }
  });
  RtfFormatTable table;
  try {
    for (Piece piece = queue.pop(); piece.kind != Piece::Kind::End; piece = queue.pop()) handOn(piece, table, sink);
  } catch (...) {
    queue.stop();
    reader.join();
    throw;
  }
  reader.join();
  if (failure) std::rethrow_exception(failure);
  return result;
}

}  // namespace lathwick

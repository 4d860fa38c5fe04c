#pragma once
// Takes a document's text for its recovery copy without holding the event loop, and hands it to
// the worker that writes it. What costs time on a large document is not copying bytes but the
// fresh memory they go to (every page the system hands out is a fault), so large copies go into
// a buffer the worker has made and touched beforehand: a plain text is then one memory copy, a
// rich text (text and styles, read from the control) a few pieces taken on successive turns of
// the event loop. An edit between the pieces gives the copy up; the next quiet period takes it
// again. The worker writes the copy (rich text made there from the text and styles) and gives
// the buffer back for the next copy.
#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "document/recovery_store.h"
#include "document/rtf_styling.h"
#include "document/style_table.h"
#include "platform/background_queue.h"

namespace lathwick {
class RichTextBox;
}

namespace lathwick::gui {

class RecoveryCopier : public QObject {
  Q_OBJECT
 public:
  // Whether the document is still as it was when the copy began.
  using Unchanged = std::function<bool()>;
  // The text was handed to the worker (true), or given up after an edit or a close (false).
  using Done = std::function<void(bool taken)>;
  // Below this many bytes a buffer is made on the spot: its faults cost less than a millisecond
  // or two.
  static constexpr std::size_t kSmallCopy = 1 << 20;

  RecoveryCopier(const RecoverySession& session, BackgroundQueue& writer, QObject* parent);

  // Takes the copy of document `id` from `box`. With `now` everything is taken at once (at the
  // end, when nothing waits for the event loop any more).
  void take(int id, RichTextBox& box, const RecoveryIndex& index, Unchanged unchanged, Done done, bool now = false);
  // The document was saved or closed: a copy under way for it is given up.
  void cancel(int id);
  bool busy() const { return !jobs_.empty(); }
  // No document needs a copy any more: the spare buffer is let go.
  void releaseSpare() {
    spare_.reset();
    wantSpare_ = false;
  }

 private:
  using Buffer = std::shared_ptr<std::string>;
  struct Job {
    QPointer<RichTextBox> box;
    RecoveryIndex index;
    Unchanged unchanged;
    Done done;
    Buffer buffer;
    long length = 0;  // characters of the document
    long taken = 0;   // characters taken so far
    std::vector<TextRange> strikeouts;
    StyleTable styles;
    int indentTwips = 0;
    bool waitingForBuffer = false;
  };

  static std::size_t bytesFor(const Job& job);
  Buffer bufferFor(std::size_t bytes);
  void start(int id, Job& job, bool now);
  void step();  // one piece of every rich copy under way
  bool takePiece(Job& job, bool all);
  void hand(int id);
  void keepSpare(const Buffer& buffer);
  void onBufferMade(const Buffer& buffer);

  const RecoverySession& session_;
  BackgroundQueue& writer_;
  std::map<int, Job> jobs_;
  Buffer spare_;
  bool wantSpare_ = false;
  bool stepQueued_ = false;
};

}  // namespace lathwick::gui

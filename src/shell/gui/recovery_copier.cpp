#include "shell/gui/recovery_copier.h"

#include <QTimer>
#include <string_view>
#include <vector>

#include "document/gui/rich_text_box.h"
#include "document/rtf_writer.h"

namespace lathwick::gui {

namespace {
// Characters of a rich text read back per turn of the event loop (a few milliseconds).
constexpr long kStyledPiece = 1 << 19;

// The control hands out text and styles interleaved (character, style, ...): the text moves to
// the front of the buffer, the styles to their own string.
std::string separateStyles(std::string& interleaved, long length) {
  std::string styles(static_cast<std::size_t>(length), '\0');
  char* data = interleaved.data();
  for (long i = 0; i < length; ++i) {
    styles[static_cast<std::size_t>(i)] = data[2 * i + 1];
    data[i] = data[2 * i];
  }
  return styles;
}
}  // namespace

RecoveryCopier::RecoveryCopier(const RecoverySession& session, BackgroundQueue& writer, QObject* parent)
    : QObject(parent), session_(session), writer_(writer) {}

std::size_t RecoveryCopier::bytesFor(const Job& job) {
  const auto length = static_cast<std::size_t>(job.length);
  return job.index.kind == RecoveredKind::Rich ? 2 * length + 2 : length;
}

RecoveryCopier::Buffer RecoveryCopier::bufferFor(std::size_t bytes) {
  if (spare_ && spare_->capacity() >= bytes) return std::exchange(spare_, nullptr);
  return nullptr;
}

void RecoveryCopier::take(int id, RichTextBox& box, const RecoveryIndex& index, Unchanged unchanged, Done done, bool now) {
  cancel(id);
  wantSpare_ = true;
  Job job;
  job.box = &box;
  job.index = index;
  job.unchanged = std::move(unchanged);
  job.done = std::move(done);
  job.length = box.textLength();
  if (index.kind == RecoveredKind::Rich) {
    job.strikeouts = box.strikeoutsOf(0, job.length);
    job.styles = box.styleTable();
    job.indentTwips = box.indentTwips();
  }
  start(id, jobs_.insert_or_assign(id, std::move(job)).first->second, now);
}

void RecoveryCopier::start(int id, Job& job, bool now) {
  const std::size_t bytes = bytesFor(job);
  if (now || bytes < kSmallCopy) {
    job.buffer = std::make_shared<std::string>();
  } else if (!(job.buffer = bufferFor(bytes))) {
    // Made and touched by the worker, a quarter larger so that the document may grow a little.
    job.waitingForBuffer = true;
    const std::size_t size = bytes + bytes / 4;
    writer_.post(-id, [this, size] {
      auto made = std::make_shared<std::string>(size, '\0');
      QMetaObject::invokeMethod(this, [this, made] { onBufferMade(made); }, Qt::QueuedConnection);
    });
    return;
  }
  if (job.index.kind == RecoveredKind::Plain) {
    job.buffer->assign(job.box->characterView());  // within the buffer's memory: no fresh pages
    hand(id);
    return;
  }
  job.buffer->resize(bytes);
  if (now || bytes < kSmallCopy) {
    takePiece(job, true);
    hand(id);
    return;
  }
  if (!stepQueued_) {
    stepQueued_ = true;
    QTimer::singleShot(0, this, &RecoveryCopier::step);
  }
}

bool RecoveryCopier::takePiece(Job& job, bool all) {
  if (!job.box || !job.unchanged()) return false;
  const long to = all ? job.length : std::min(job.length, job.taken + kStyledPiece);
  if (to > job.taken)
    job.box->SendScintilla(QsciScintillaBase::SCI_GETSTYLEDTEXT, job.taken, to, job.buffer->data() + 2 * job.taken);
  job.taken = to;
  return true;
}

void RecoveryCopier::step() {
  stepQueued_ = false;
  std::vector<int> ids;
  for (const auto& [id, job] : jobs_)
    if (job.buffer && !job.waitingForBuffer && job.index.kind == RecoveredKind::Rich) ids.push_back(id);
  bool more = false;
  for (const int id : ids) {
    Job& job = jobs_.at(id);
    if (!takePiece(job, false)) {
      cancel(id);  // edited or closed meanwhile
    } else if (job.taken == job.length) {
      hand(id);
    } else {
      more = true;
    }
  }
  if (more && !stepQueued_) {
    stepQueued_ = true;
    QTimer::singleShot(0, this, &RecoveryCopier::step);
  }
}

void RecoveryCopier::hand(int id) {
  Job job = std::move(jobs_.at(id));
  jobs_.erase(id);
  const RecoverySession* session = &session_;
  auto giveBack = [this](const Buffer& buffer) {
    if (buffer->capacity() >= kSmallCopy)
      QMetaObject::invokeMethod(this, [this, buffer] { keepSpare(buffer); }, Qt::QueuedConnection);
  };
  if (job.index.kind == RecoveredKind::Plain) {
    writer_.post(id, [session, id, index = job.index, buffer = job.buffer, giveBack] {
      session->write(id, index, std::string_view(*buffer));
      giveBack(buffer);
    });
  } else {
    writer_.post(id, [session, id, index = job.index, buffer = job.buffer, length = job.length,
                      strikeouts = std::move(job.strikeouts), table = std::move(job.styles),
                      indent = job.indentTwips, giveBack] {
      const std::string styles = separateStyles(*buffer, length);
      const StyledTextView view{std::string_view(buffer->data(), static_cast<std::size_t>(length)), styles,
                                &strikeouts, indent};
      session->write(id, index, [&](AtomicFileWriter& file) {
        writeRtf(view, table, [&file](std::string_view piece) { file.write(piece); });
      });
      giveBack(buffer);
    });
  }
  job.done(true);
}

void RecoveryCopier::cancel(int id) {
  auto it = jobs_.find(id);
  if (it == jobs_.end()) return;
  Job job = std::move(it->second);
  jobs_.erase(it);
  if (job.buffer && job.buffer->capacity() >= kSmallCopy) keepSpare(job.buffer);
  job.done(false);
}

void RecoveryCopier::keepSpare(const Buffer& buffer) {
  if (wantSpare_ && (!spare_ || spare_->capacity() < buffer->capacity())) spare_ = buffer;
}

void RecoveryCopier::onBufferMade(const Buffer& buffer) {
  keepSpare(buffer);
  std::vector<int> waiting;
  for (const auto& [id, job] : jobs_)
    if (job.waitingForBuffer) waiting.push_back(id);
  for (const int id : waiting) {
    Job& job = jobs_.at(id);
    job.waitingForBuffer = false;
    if (!job.box || !job.unchanged())
      cancel(id);
    else
      start(id, job, false);
  }
}

}  // namespace lathwick::gui

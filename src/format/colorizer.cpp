#include "format/colorizer.h"

#include "document/line_ending_checks.h"
#include "format/line_colorizer.h"
#include "format/pass_frame.h"
#include "platform/atomic_file.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/line_reader.h"

namespace lathwick {

namespace {

constexpr long kProgressFormAbove = 200;  // lines
constexpr long kProgressChecksFrom = 101;  // lines
constexpr long kProgressReports = 100;

// Progress as the run reports it: files of more than 200 lines show the form and report every
// (count / 100) lines; files of 101 to 200 lines have no step, and report after every line.
class ProgressPlan {
 public:
  ProgressPlan(long lineCount, PassMonitor& monitor) : count_(lineCount), monitor_(monitor) {
    if (count_ > kProgressFormAbove) {
      shown_ = true;
      step_ = count_ / kProgressReports;
      if (step_ < 1) step_ = 1;
      monitor_.progressStart(count_);
      monitor_.statusText(kProcessingStatus);
    }
  }
  // After each line: true when the user asked to cancel.
  bool lineWritten(long written) {
    if (count_ < kProgressChecksFrom) return false;
    if (step_ != 0 && written % step_ != 0) return false;
    monitor_.progressValue(written);
    monitor_.pumpEvents();
    return monitor_.cancelRequested();
  }
  void end() {
    if (shown_) monitor_.progressEnd();
    shown_ = false;
  }

 private:
  long count_;
  long step_ = 0;
  bool shown_ = false;
  PassMonitor& monitor_;
};

// Writes the output file: the header, each input line as rich text, the trailer. False when the
// user cancelled; the output file is then left as it was. Throws AppError when a file fails.
bool writeColorized(const SchemeRecord& scheme, const PassFrame& frame, ColorizeView view, const std::string& inputPath,
                    const std::string& outputPath, ProgressPlan& progress, long& linesWritten) {
  LineColorizer colorizer(frame, view, buildMarkerList(scheme));
  LineReader reader(inputPath);
  AtomicFileWriter out(outputPath, Durability::Scratch);
  out.writeLine(frame.header);
  std::string line;
  std::string text;
  const std::string firstStart = frame.lineStart(true);
  const std::string laterStart = frame.lineStart(false);
  // Lines are gathered into blocks so that the writer sees few, large writes.
  constexpr std::size_t kBlock = 1 << 18;
  text.reserve(kBlock + 4096);
  while (reader.next(line)) {
    text += linesWritten == 0 ? firstStart : laterStart;
    colorizer.colorize(line, text);
    text += "\r\n";
    if (text.size() >= kBlock) {
      out.write(text);
      text.clear();
    }
    ++linesWritten;
    if (progress.lineWritten(linesWritten)) return false;  // the writer is dropped unwritten
  }
  out.write(text);
  out.writeLine(frame.trailer);
  out.commit();
  return true;
}

}  // namespace

PassResult colorizeFile(const SchemeRecord& scheme, ColorizeView view, const std::string& inputPath,
                        const std::string& outputPath, PassMonitor& monitor, const std::string* commentOverride) {
  PassResult result;
  result.outcome = PassOutcome::NoInput;
  if (inputPath.empty() || !isRegularFile(inputPath)) return result;

  long lineCount = 0;
  try {
    lineCount = LineCountCheck(inputPath);
  } catch (const AppError&) {
    return result;  // vanished or unreadable: as if it were not there
  }
  if (lineCount < 0) {
    result.outcome = PassOutcome::Refused;
    result.message = kJunkFilterMessage;
    return result;
  }

  const PassFrame frame = makePassFrame(scheme, commentOverride);
  ProgressPlan progress(lineCount, monitor);
  monitor.clearCancel();
  try {
    if (!writeColorized(scheme, frame, view, inputPath, outputPath, progress, result.count)) {
      monitor.clearCancel();
      progress.end();
      monitor.statusText(kReadyStatus);
      return cancelledResult(result.count);  // the writer was dropped: the output file is left as it was
    }
    result.outcome = PassOutcome::Completed;
    result.reload = true;
  } catch (const AppError& e) {
    result = failedResult(e.number(), e.description(), kColorizeErrorEnding);
  }
  progress.end();
  monitor.statusText(kReadyStatus);
  return result;
}

}  // namespace lathwick

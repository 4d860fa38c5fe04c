#include "transform/rich_pass.h"

#include <array>
#include <cstdio>
#include <cstring>
#include <new>

#include "document/line_ending_checks.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/line_reader.h"
#include "transform/output_buffer.h"
#include "transform/rich_text_escape.h"

namespace lathwick::transform {

long countWorkFileLines(const std::string& path) {
  std::FILE* f = std::fopen(nativePath(path).c_str(), "rb");
  if (!f) return 0;
  std::array<char, 1 << 16> buf;
  long lines = 0;
  char last = 0;
  size_t n;
  while ((n = std::fread(buf.data(), 1, buf.size(), f)) > 0) {
    for (const char* p = buf.data(); (p = static_cast<const char*>(std::memchr(p, '\r', buf.data() + n - p)));
         ++p)
      ++lines;
    last = buf[n - 1];
  }
  std::fclose(f);
  // A last line without a break is a line too; a CR LF split leaves '\n' last, already counted.
  if (last != 0 && last != '\r' && last != '\n') ++lines;
  return lines;
}

namespace {

// Ends the progress display however the loop is left.
struct ProgressGuard {
  PassMonitor& monitor;
  bool shown;
  ~ProgressGuard() {
    if (shown) monitor.progressEnd();
  }
};

// Runs the loop; throws AppError for I/O failures.
PassResult richLoop(const std::string& inPath, const std::string& outPath, const PassFrame& frame,
                    const LineRange& range, RichLineTransform& transform, const RichPassSettings& settings,
                    PassMonitor& monitor) {
  long total = settings.displayLineCount;
  if (total < 0) total = countWorkFileLines(inPath);
  const bool showProgress = total > 200;
  const long step = showProgress ? std::max(1L, total / 100) : 0;
  if (showProgress) {
    monitor.progressStart(total);
  }
  const ProgressGuard guard{monitor, showProgress};

  LineReader reader(inPath);
  OutputBuffer out(outPath);
  out.appendLine(trimRightBlanks(frame.header));
  const std::string indent = std::to_string(frame.indentTwips);
  const std::string firstPrefix = "\\li" + indent + " ";
  const std::string laterPrefix = "\\par\\li" + indent + " ";

  PassResult result;
  std::string raw, line;
  line.reserve(4096);
  std::vector<Stretch> marks;
  long lineCount = 0;
  for (;;) {
    if (showProgress && lineCount % step == 0) monitor.progressValue(lineCount);
    monitor.pumpEvents();
    if (!reader.next(raw)) break;
    ++lineCount;
    line.clear();
    appendEscaped(raw, line);
    marks.clear();
    if (range.contains(lineCount)) result.count += transform.transform(raw, line, marks);
    out.append(lineCount == 1 ? firstPrefix : laterPrefix);
    // The markers go straight into the output rather than into the line first.
    size_t from = 0;
    for (const Stretch& s : marks) {
      out.append(std::string_view(line).substr(from, s.start - from));
      out.append(frame.highlightStart);
      out.append(std::string_view(line).substr(s.start, s.end - s.start));
      out.append(frame.highlightEnd);
      from = s.end;
    }
    out.appendLine(std::string_view(line).substr(from));
    if (monitor.cancelRequested())
      return cancelledResult(result.count);  // the temporary output is discarded; the document keeps its text
  }
  out.appendLine(trimRightBlanks(frame.trailer));
  out.commit();
  result.reload = result.count > 0;
  result.statusLabel = std::to_string(result.count) + settings.countPhrase;
  return result;
}

}  // namespace

PassResult runRichPass(const std::string& inPath, const std::string& outPath, const PassFrame& frame,
                       const LineRange& range, RichLineTransform& transform, const RichPassSettings& settings,
                       PassMonitor& monitor) {
  try {
    if (!FormatCheck(inPath)) {
      PassResult r;
      r.outcome = PassOutcome::Refused;
      r.message = kJunkFilterMessage;
      return r;
    }
  } catch (const AppError& e) {
    PassResult r;
    r.outcome = PassOutcome::NoInput;
    r.errorNumber = e.number();
    r.errorDescription = e.description();
    r.message = e.description();
    return r;
  }
  monitor.clearCancel();
  monitor.statusText(settings.statusText);
  PassResult r;
  try {
    r = richLoop(inPath, outPath, frame, range, transform, settings, monitor);
  } catch (const AppError& e) {
    r = failedResult(e.number(), e.description(), settings.errorEnding);
  } catch (const std::bad_alloc&) {
    r = failedResult(7, "Out of memory", settings.errorEnding);
  }
  monitor.statusText(kReadyStatus);
  return r;
}

}  // namespace lathwick::transform

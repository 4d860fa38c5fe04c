#include "transform/plain_pass.h"

#include <new>

#include "platform/errors.h"
#include "platform/line_reader.h"
#include "transform/output_buffer.h"

namespace lathwick::transform {

namespace {
PassResult failed(int number, const std::string& description, const PlainPassSettings& settings) {
  PassResult r;
  r.outcome = PassOutcome::Failed;
  r.errorNumber = number;
  r.errorDescription = description;
  r.message = settings.failureMessage;
  return r;
}
}  // namespace

PassResult runPlainPass(const std::string& inPath, const std::string& outPath, PlainLineTransform& transform,
                        const PlainPassSettings& settings, PassMonitor& monitor) {
  monitor.statusText(settings.statusText);
  PassResult result;
  try {
    LineReader reader(inPath);
    OutputBuffer out(outPath);
    std::string line;
    line.reserve(4096);
    long number = 0;
    while (reader.next(line)) {
      if (transform.apply(++number, line)) ++result.count;
      out.appendLine(line);
    }
    out.commit();
    result.reload = true;
  } catch (const AppError& e) {
    result = failed(e.number(), e.description(), settings);
  } catch (const std::bad_alloc&) {
    result = failed(7, "Out of memory", settings);
  }
  monitor.statusText(kReadyStatus);
  return result;
}

}  // namespace lathwick::transform

// toolpath IN and bounds IN: the motion the program commands, move by move or summed up. Both
// read the program as the colorizer reads it under the scheme of --scheme (comments, block skip),
// and write one warning line on stderr for each thing the model does not follow.
#include <cstdio>
#include <memory>
#include <string>

#include "commands.h"
#include "extend/toolpath/motion_model.h"
#include "extend/toolpath/toolpath_text.h"
#include "format/pass_frame.h"
#include "format/scheme_data_file.h"
#include "options.h"
#include "platform/errors.h"
#include "workspace/toolpath_reading.h"

namespace lathwick::cli {

namespace {

using namespace lathwick::toolpath;

// Output gathered in a buffer and written in large pieces: a long program has a million moves.
class Output {
 public:
  explicit Output(std::FILE* stream) : stream_(stream) { buffer_.reserve(kFlushAt + 256); }
  ~Output() { flush(); }
  void line(const std::string& text) {
    buffer_ += text;
    buffer_ += '\n';
    if (buffer_.size() >= kFlushAt) flush();
  }
  void flush() {
    std::fwrite(buffer_.data(), 1, buffer_.size(), stream_);
    buffer_.clear();
  }

 private:
  static constexpr std::size_t kFlushAt = 64 * 1024;
  std::FILE* stream_;
  std::string buffer_;
};

// Runs the model over IN, handing each move to onMove; returns the exit status.
template <class OnMove>
int modelInput(const Args& args, OnMove&& onMove) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions({}), 1, "IN");
  const long n = parseInteger("--scheme", p.valueOr("--scheme", "1"));
  if (n < 1) throw UsageError("option --scheme needs a record number from 1");
  SchemeRecord scheme;
  try {
    scheme = loadScheme(p.valueOr("--data", bundledDataFilePath()), n);
  } catch (const DataFileProblem& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return kExitRefused;
  }
  const std::string& in = p.positionals()[0];
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(in.c_str(), "rb"), &std::fclose);
  if (!file) {
    std::fprintf(stderr, "%s: %s\n", in.c_str(), makeError(err::kFileNotFound).what());
    return kExitRefused;
  }
  const auto comment = p.value("--comment");
  ModelOptions options;
  options.reader = toolpathReaderOptions(makePassFrame(scheme, comment ? &*comment : nullptr));
  Output warnings(stderr);
  MotionModel model(options, onMove, [&](const Warning& w) { warnings.line(warningText(w)); });
  std::string buffer(256 * 1024, '\0');
  for (std::size_t got; (got = std::fread(buffer.data(), 1, buffer.size(), file.get())) > 0;)
    model.feed(std::string_view(buffer.data(), got));
  model.finish();
  return kExitOk;
}

}  // namespace

int cmdToolpath(const Args& args) {
  Output out(stdout);
  return modelInput(args, [&](const Move& m) { out.line(moveText(m)); });
}

int cmdBounds(const Args& args) {
  PathSummary summary;
  const int status = modelInput(args, [&](const Move& m) { summary.add(m); });
  if (status == kExitOk) std::fputs(summaryText(summary).c_str(), stdout);
  return status;
}

}  // namespace lathwick::cli

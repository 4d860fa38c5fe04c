#include "pass_input.h"

#include <unistd.h>

#include <filesystem>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick::cli {

namespace {
std::string twinName() {
  static int counter = 0;
  const auto folder = std::filesystem::temp_directory_path();
  return (folder / ("lathwick-crlf-" + std::to_string(::getpid()) + "-" + std::to_string(++counter) + ".tmp"))
      .string();
}
}  // namespace

PassInput::PassInput(const std::string& in) : path_(in) {
  try {
    if (!isRegularFile(in) || lineEndsOfFile(in) != LineEnds::Lf) return;
    const std::string twin = twinName();
    ends_ = copyAsCrLfTwin(in, twin);
    twin_ = twin;
    path_ = twin;
  } catch (const AppError&) {
    path_ = in;  // the pass meets the same problem and reports it in its own words
    ends_ = LineEnds::CrLf;
  }
}

PassInput::~PassInput() {
  if (!twin_.empty()) removeFile(twin_);
}

PassResult PassInput::plainOut(PassResult result, const std::string& out) const {
  if (result.outcome != PassOutcome::Completed || ends_ == LineEnds::CrLf) return result;
  try {
    rewriteWithLineEnds(out, ends_);
  } catch (const AppError& e) {
    result.outcome = PassOutcome::Failed;
    result.errorNumber = e.number();
    result.errorDescription = e.description();
    result.message = e.description();
  }
  return result;
}

}  // namespace lathwick::cli

#include "extend/toolpath/model_program.h"

#include <cstdio>
#include <filesystem>
#include <functional>
#include <memory>

#include "platform/errors.h"

namespace lathwick::toolpath {

void MoveList::push(const Move& m) {
  if ((size_ & (kBlockSize - 1)) == 0) {
    blocks_.emplace_back();
    blocks_.back().reserve(kBlockSize);
  }
  ++size_;
  blocks_.back().push_back(MoveRecord{m.end, m.centre, static_cast<float>(m.feed), m.line, m.tool, m.kind, m.plane, m.units});
}

Move MoveList::operator[](std::size_t i) const {
  const MoveRecord& r = record(i);
  Move m;
  if (i > 0) {
    const MoveRecord& before = record(i - 1);
    m.start = before.end;
    // A unit switch between the moves: the machine stands where it stood, in the new unit.
    if (before.units != r.units) {
      const double f = r.units == Units::Millimetre ? kMillimetresPerInch : 1 / kMillimetresPerInch;
      m.start = {m.start.x * f, m.start.y * f, m.start.z * f};
    }
  }
  m.end = r.end;
  m.centre = r.centre;
  m.feed = r.feed;
  m.line = r.line;
  m.tool = r.tool;
  m.kind = r.kind;
  m.plane = r.plane;
  m.units = r.units;
  return m;
}

namespace {

constexpr std::size_t kPiece = 256 * 1024;
constexpr std::uint64_t kProgressFrom = 64 * 1024;

// Feeds the program piece by piece through `read` (which returns the next piece, empty at the
// end), reporting progress in thousandths of `totalBytes` and stopping when cancel is asked.
ModelledProgram run(std::uint64_t totalBytes, const ModelOptions& options, PassMonitor& monitor,
                    const std::function<std::string_view()>& read) {
  ModelledProgram result;
  MotionModel model(
      options,
      [&](const Move& m) {
        result.moves.push(m);
        result.summary.add(m);
      },
      [&](const Warning& w) {
        if (result.warnings.size() < ModelledProgram::kMaxKeptWarnings) result.warnings.push_back(w);
        ++result.warningCount;
      });
  monitor.clearCancel();
  // Short programs are modelled at once; long ones show progress like the other passes.
  const bool showProgress = totalBytes > kProgressFrom;
  if (showProgress) {
    monitor.statusText("Processing... [Esc] to cancel");
    monitor.progressStart(1000);
  }
  std::uint64_t done = 0;
  for (std::string_view piece = read(); !piece.empty(); piece = read()) {
    model.feed(piece);
    done += piece.size();
    if (showProgress) monitor.progressValue(static_cast<long>(done * 1000 / totalBytes));
    monitor.pumpEvents();
    if (monitor.cancelRequested()) {
      monitor.clearCancel();
      result.cancelled = true;
      break;
    }
  }
  if (!result.cancelled) model.finish();
  if (showProgress) monitor.progressEnd();
  result.lines = model.linesRead();
  return result;
}

}  // namespace

ModelledProgram modelProgramFile(const std::string& path, const ModelOptions& options, PassMonitor& monitor) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!file) throw makeError(err::kFileNotFound);
  std::error_code ec;
  const auto size = std::filesystem::file_size(path, ec);
  std::vector<char> buffer(kPiece);
  return run(ec ? 0 : size, options, monitor, [&]() {
    const std::size_t n = std::fread(buffer.data(), 1, buffer.size(), file.get());
    return std::string_view(buffer.data(), n);
  });
}

ModelledProgram modelProgramText(std::string_view text, const ModelOptions& options, PassMonitor& monitor) {
  std::size_t at = 0;
  return run(text.size(), options, monitor, [&]() {
    const std::string_view piece = text.substr(at, std::min(kPiece, text.size() - at));
    at += piece.size();
    return piece;
  });
}

}  // namespace lathwick::toolpath

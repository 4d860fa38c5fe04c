#pragma once
// A whole program modelled at once, for the tool-path window and the batch tool: the moves in
// compact records, the warnings (the first ones kept, all counted) and the summary. Progress and
// cancel go through the pass monitor, as for the other passes.
#include <string>
#include <string_view>
#include <vector>

#include "extend/toolpath/motion_model.h"
#include "extend/toolpath/path_summary.h"
#include "platform/pass_monitor.h"

namespace lathwick::toolpath {

// One move as kept: its start is the end of the move before it (the first starts at the origin).
struct MoveRecord {
  Point end;
  Point centre;
  float feed = 0;
  std::uint32_t line = 0;
  std::uint16_t tool = 0;
  MoveKind kind = MoveKind::Rapid;
  Plane plane = Plane::XY;
  Units units = Units::Millimetre;
};

// The records live in blocks of fixed size, so a growing path never copies what it holds.
class MoveList {
 public:
  void push(const Move& m);
  std::size_t size() const { return size_; }
  bool empty() const { return size_ == 0; }
  const MoveRecord& record(std::size_t i) const { return blocks_[i >> kBlockBits][i & (kBlockSize - 1)]; }
  Move operator[](std::size_t i) const;  // the whole move, start included

 private:
  static constexpr std::size_t kBlockBits = 16;
  static constexpr std::size_t kBlockSize = std::size_t{1} << kBlockBits;
  std::vector<std::vector<MoveRecord>> blocks_;
  std::size_t size_ = 0;
};

struct ModelledProgram {
  MoveList moves;
  std::vector<Warning> warnings;  // the first kMaxKeptWarnings
  std::uint64_t warningCount = 0;
  PathSummary summary;
  std::uint32_t lines = 0;
  bool cancelled = false;
  static constexpr std::size_t kMaxKeptWarnings = 10000;
};

// The program in a file (bytes as saved); throws AppError when the file cannot be read.
ModelledProgram modelProgramFile(const std::string& path, const ModelOptions& options,
                                 PassMonitor& monitor = silentMonitor());
// The program in memory, for example a document's text.
ModelledProgram modelProgramText(std::string_view text, const ModelOptions& options,
                                 PassMonitor& monitor = silentMonitor());

}  // namespace lathwick::toolpath

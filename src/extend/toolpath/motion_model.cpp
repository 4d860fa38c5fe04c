#include "extend/toolpath/motion_model.h"

#include "extend/toolpath/motion_state.h"

namespace lathwick::toolpath {

MotionModel::State::State(ModelOptions opts, MoveSink moves, WarningSink warnings)
    : options(std::move(opts)),
      onMove(std::move(moves)),
      onWarning(std::move(warnings)),
      reader(options.reader),
      lines([this](std::string_view text) { readLine(text); }),
      units(options.initialUnits) {
  words.reserve(32);
}

void MotionModel::State::warn(std::string text) {
  if (onWarning) onWarning(Warning{line, std::move(text)});
}

void MotionModel::State::readLine(std::string_view text) {
  ++line;
  // A program saved as UTF-8 by some editors starts with a byte-order mark: not part of the text.
  if (line == 1 && text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  const BlockRead read = reader.read(text, words, problems);
  for (std::string& p : problems) warn(std::move(p));
  if (read.skipped || words.empty()) return;
  gather();
  // Past macro text the line's end point is unknown: its modal words (read before the macro
  // text) still count, as in "G1 Z#2", which makes the following lines feed moves.
  if (axesHeld || read.unreliable) return;
  if (cycle != Cycle::None && (cycleWord || lw.anyAxis())) {
    runCycle();
  } else if (motion == Motion::ArcCw || motion == Motion::ArcCcw) {
    // An arc word with only I J K (no end point) is a full circle back to where it started.
    if (lw.anyAxis() || lw.says('I') || lw.says('J') || lw.says('K') || lw.says('R')) moveArc(target());
  } else if (lw.anyAxis()) {
    moveLine();
  }
}

MotionModel::MotionModel(ModelOptions options, MoveSink onMove, WarningSink onWarning)
    : state_(std::make_unique<State>(std::move(options), std::move(onMove), std::move(onWarning))) {}

MotionModel::~MotionModel() = default;

void MotionModel::readLine(std::string_view line) { state_->readLine(line); }
void MotionModel::feed(std::string_view bytes) { state_->lines.feed(bytes); }
void MotionModel::finish() { state_->lines.finish(); }
std::uint32_t MotionModel::linesRead() const { return state_->line; }
Point MotionModel::position() const { return state_->pos; }
Units MotionModel::units() const { return state_->units; }

}  // namespace lathwick::toolpath

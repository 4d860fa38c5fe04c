#include "extend/verify/motion_verdict.h"

namespace lathwick::verify {

namespace {

CompareOptions optionsFor(const toolpath::ModelOptions& model, bool countAll) {
  CompareOptions o;
  o.model = model;
  o.countAll = countAll;
  return o;
}

std::string moves(std::uint64_t n) { return std::to_string(n) + (n == 1 ? " move" : " moves"); }

// "line 12: G3 X30. Y10." or, when the program has no move left there, where it ends.
std::string whereItParts(std::string_view text, std::uint32_t line, std::uint64_t movesBefore) {
  if (line == 0) return "the end, after " + moves(movesBefore) + ".";
  return "line " + std::to_string(line) + ": " + programLine(text, line);
}

}  // namespace

MotionVerdict verdictAfterPass(std::string_view before, std::string_view after, const toolpath::ModelOptions& model) {
  const MotionComparison c = compareProgramTexts(before, after, optionsFor(model, false));
  if (c.same) return {true, kMotionUnchanged, 0};
  return {false, "Motion changed at " + whereItParts(after, c.lineB, c.moveNumber - 1), c.lineB};
}

MotionVerdict verdictAfterOperate(std::string_view before, std::string_view after,
                                  const toolpath::ModelOptions& model) {
  const MotionComparison c = compareProgramTexts(before, after, optionsFor(model, true));
  if (c.same) return {true, kMotionUnchanged, 0};
  return {false, moves(c.changedMoves) + " changed, the first at " + whereItParts(after, c.lineB, c.moveNumber - 1),
          c.lineB};
}

MotionVerdict verdictOfComparison(std::string_view mine, std::string_view other, const std::string& otherName,
                                  const toolpath::ModelOptions& model) {
  const MotionComparison c = compareProgramTexts(mine, other, optionsFor(model, false));
  if (c.same) return {true, "Same motion as " + otherName + ".", 0};
  std::string text = "Motion differs from " + otherName + " at " + whereItParts(mine, c.lineA, c.moveNumber - 1);
  if (c.lineB != 0) text += " (its line " + std::to_string(c.lineB) + ")";
  return {false, text, c.lineA};
}

}  // namespace lathwick::verify

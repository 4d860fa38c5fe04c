#pragma once
// What the editor says about the motion after a pass or a comparison: one status-bar text and
// the line to point at.
#include <cstdint>
#include <string>
#include <string_view>

#include "extend/verify/motion_compare.h"

namespace lathwick::verify {

inline constexpr const char* kMotionUnchanged = "Motion unchanged.";

struct MotionVerdict {
  bool same = true;
  std::string text;        // for the status bar
  std::uint32_t line = 0;  // 1-based line of the program after (or compared) where it parts; 0 none
};

// After a pass that should keep the motion (renumber, spaces, junk filter): "Motion unchanged."
// or "Motion changed at line 12: G3 X30. Y10." naming the line of the program after the pass.
MotionVerdict verdictAfterPass(std::string_view before, std::string_view after, const toolpath::ModelOptions& model);

// After a pass that changes motion on purpose (operate): how many moves changed, and the first.
MotionVerdict verdictAfterOperate(std::string_view before, std::string_view after,
                                  const toolpath::ModelOptions& model);

// The program `mine` against `other` (named `otherName`): the line is that of `mine`.
MotionVerdict verdictOfComparison(std::string_view mine, std::string_view other, const std::string& otherName,
                                  const toolpath::ModelOptions& model);

}  // namespace lathwick::verify

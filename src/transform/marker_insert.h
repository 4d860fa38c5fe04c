#pragma once
// Puts the highlight markers around the stretches a pass changed in a line. The stretches are
// given left to right and do not overlap; the result is what inserting each end marker and then
// its start marker, from the last stretch back to the first, would give.
#include <string>
#include <string_view>
#include <vector>

namespace lathwick::transform {

struct Stretch {
  size_t start;  // 0-based index of the first character
  size_t end;    // one past the last character
};

// Rebuilds `line` with `markStart` before and `markEnd` after every stretch; `scratch` is reused
// storage.
void insertMarkers(std::string& line, const std::vector<Stretch>& stretches, std::string_view markStart,
                   std::string_view markEnd, std::string& scratch);

}  // namespace lathwick::transform

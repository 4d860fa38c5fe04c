#include "transform/marker_insert.h"

#include <algorithm>

namespace lathwick::transform {

void insertMarkers(std::string& line, const std::vector<Stretch>& stretches, std::string_view markStart,
                   std::string_view markEnd, std::string& scratch) {
  if (stretches.empty()) return;
  scratch.clear();
  scratch.reserve(line.size() + stretches.size() * (markStart.size() + markEnd.size()));
  size_t from = 0;
  for (const Stretch& s : stretches) {
    const size_t start = std::min(std::max(s.start, from), line.size());
    const size_t end = std::min(std::max(s.end, start), line.size());
    scratch.append(line, from, start - from);
    scratch.append(markStart);
    scratch.append(line, start, end - start);
    scratch.append(markEnd);
    from = end;
  }
  scratch.append(line, from, std::string::npos);
  line.swap(scratch);
}

}  // namespace lathwick::transform

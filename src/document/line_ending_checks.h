#pragma once
// The two checks that refuse work files whose lines end in bare line feeds before a pass reads
// them line by line (such files would come through as one long line). They differ on purpose.
#include <string>

namespace lathwick {

inline constexpr const char* kJunkFilterMessage =
    "This file format is not correct for this operation. Please use the junk filter under Options "
    "and try again.";

// Colorizer's check: the number of LF bytes, or -1 when there is at least one LF and no CR at
// all. Throws AppError 53 when the file cannot be read.
long LineCountCheck(const std::string& path);

// Search's and operate's check: true when the file has no LF, or at least one CR LF pair.
// Throws AppError 53 when the file cannot be read.
bool FormatCheck(const std::string& path);

}  // namespace lathwick

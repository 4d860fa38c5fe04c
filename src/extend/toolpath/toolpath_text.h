#pragma once
// The text forms of the batch tool's `toolpath` and `bounds`: one line per move, one warning line
// per problem, one `name value` line per figure of the summary. Numbers have 4 decimals.
#include <string>

#include "extend/toolpath/move.h"
#include "extend/toolpath/path_summary.h"

namespace lathwick::toolpath {

// "12 rapid X Y Z", "12 feed X Y Z" or "12 arc-cw X Y Z I J K" (I J K: the centre, absolute).
std::string moveText(const Move& move);
// "12: unsupported G41"
std::string warningText(const Warning& warning);
// "units mm", "moves N", "feed-x-min V" ... "time-minutes V", each line ended by LF.
std::string summaryText(const PathSummary& summary);
// A number with 4 decimals, never "-0.0000".
std::string fixed4(double value);
const char* unitsName(Units units);  // "mm" or "inch"

}  // namespace lathwick::toolpath

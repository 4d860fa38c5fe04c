#pragma once
// Renumber with "Update references": the same numbering, and every word that names a block by
// its old number (lathe cycle P/Q, M97 P, M99 P, M98 H, GOTO) is rewritten to its new number.
// Two passes over the input: the first learns every block's old and new number and the
// references; the second writes. A reference that cannot be followed refuses the whole pass.
#include <string>

#include "platform/pass_monitor.h"
#include "platform/pass_result.h"
#include "transform/renumber.h"

namespace lathwick::transform {

inline constexpr const char* kReferencesTitle = "Update References";
inline constexpr const char* kReferencesRefused = "Nothing was renumbered.";

// Completed as runRenumber; Refused (title kReferencesTitle) with one line per reference that
// names no block, a block that appears twice, a block that loses its number, or a number it
// cannot know (a computed value, an M98 P that may be a program or a block), then
// kReferencesRefused.
PassResult runRenumberKeepingReferences(const std::string& inPath, const std::string& outPath,
                                        const RenumberRequest& request, PassMonitor& monitor);

}  // namespace lathwick::transform

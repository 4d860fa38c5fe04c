#pragma once
// The schemes shipped in the bundled scheme data file, built from code so the file can be
// regenerated at build time. Each comes with its fragments built.
#include <vector>

#include "format/scheme_record.h"

namespace lathwick {

constexpr std::int32_t rgb(int red, int green, int blue) { return red | (green << 8) | (blue << 16); }

std::vector<SchemeRecord> bundledSchemes();

}  // namespace lathwick

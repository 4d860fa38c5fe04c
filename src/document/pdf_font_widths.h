#pragma once
// The advances of the standard PDF text fonts, which every PDF reader has without embedding:
// for each of the twelve fonts (see StandardFont), the widths of the bytes 32 to 255 in
// thousandths of the font size.
#include <array>
#include <cstdint>

namespace lathwick {

extern const std::array<std::array<std::uint16_t, 224>, 12> kStandardFontWidths;

}  // namespace lathwick

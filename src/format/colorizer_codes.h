#pragma once
// The style codes of the colorizer: each character position of a line may carry one code, and
// each code emits one rich-text string. The table and the marker list are built once per run.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "format/pass_frame.h"
#include "format/scheme_record.h"

namespace lathwick {

enum class ColorizeView { Modes = 0, Codes = 1 };

// Code numbers: 1-13 set 0 styles 1-13, 14-27 set 1 styles 0-13, 28 end of a marked word,
// 29 set 0 style 0 (X positions). 0 means no change.
inline constexpr std::uint8_t kNoCode = 0;
inline constexpr std::uint8_t kFirstCodeStyle = 14;
inline constexpr std::uint8_t kEndOfWord = 28;
inline constexpr std::uint8_t kXCode = 29;
inline constexpr int kCodeCount = 30;

using CodeStrings = std::array<std::string, kCodeCount>;

// Codes view: code 28 returns to "All Other Text"; Modes view: it emits nothing, so the text
// after a word keeps the style in force.
CodeStrings buildCodeStrings(const PassFrame& frame, ColorizeView view);

struct MarkerEntry {
  std::string text;  // trimmed marker text of a set 1 style
  int style = 0;     // its index in set 1
};

// Set 1 styles whose marker text does not begin with a blank, in style order.
std::vector<MarkerEntry> buildMarkerList(const SchemeRecord& record);

}  // namespace lathwick

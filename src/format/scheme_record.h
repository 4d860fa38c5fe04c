#pragma once
// One colour and font scheme as it lies in the scheme data file: a fixed-size record of two
// style sets of fourteen styles each. In memory the text fields keep their leading blanks but
// lose the padding blanks at the end; flags are plain booleans.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lathwick {

inline constexpr std::size_t kSchemeRecordSize = 12532;
inline constexpr int kStyleCount = 14;
inline constexpr int kSetCount = 2;

// Field widths of the record's text fields (one byte per character).
inline constexpr std::size_t kRtfHeaderWidth = 512;
inline constexpr std::size_t kRtfTrailerWidth = 16;
inline constexpr std::size_t kSchemeNameWidth = 16;
inline constexpr std::size_t kFontNameWidth = 128;
inline constexpr std::size_t kMarkerWidth = 16;
inline constexpr std::size_t kAttributesWidth = 256;
inline constexpr std::size_t kFamilyWidth = 8;

// Style indices of set 0, the fixed styles. The labels are those of the scheme editor.
enum FixedStyle : int {
  kXPositions = 0,
  kYPositions = 1,
  kZPositions = 2,
  kG00Mode = 3,
  kG01Mode = 4,
  kG02Mode = 5,
  kG03Mode = 6,
  kG41Mode = 7,
  kG42Mode = 8,
  kG91Mode = 9,
  kCommentStyle = 10,
  kBackgroundStyle = 11,
  kOtherTextStyle = 12,
  kBlockSkipStyle = 13,
};
// Set 1, style 13 is the highlight style of the replace, highlight and operate passes.
inline constexpr int kHighlightStyle = 13;

extern const std::array<const char*, kStyleCount> kFixedStyleLabels;  // "X Positons" ... "/Block Skip"

struct SchemeStyle {
  std::int32_t colour = 0;        // red in the lowest byte, then green, then blue
  std::int16_t colourNumber = 0;  // derived: the number after "\cf"
  std::int16_t size = 10;         // points
  std::string fontName;
  std::int16_t fontNumber = 0;    // derived: the number after "\f"
  bool bold = false;
  bool strikeout = false;
  bool underline = false;
  bool italic = false;
  std::string marker;             // comment / block-skip text (set 0) or code text (set 1)
  std::int16_t indentSteps = 0;   // only set 0, style 0 counts: the scheme's indent, 200 twips a step
  std::string attributes;         // derived: the style's ready-made control words
  std::string family;             // "fnil", "froman", "fswiss", "fmodern", "fscript", "fdecor"
};

struct SchemeRecord {
  std::string rtfHeader;   // derived
  std::string rtfTrailer;  // derived
  std::string name;
  std::int32_t backColour = 0xFFFFFF;
  std::array<std::array<SchemeStyle, kStyleCount>, kSetCount> sets{};

  SchemeStyle& style(int set, int index) { return sets.at(set).at(index); }
  const SchemeStyle& style(int set, int index) const { return sets.at(set).at(index); }
  std::int16_t indentSteps() const { return sets[0][kXPositions].indentSteps; }
};

// The record's bytes, exactly as stored (texts cut or padded with blanks, little-endian numbers,
// true flags as all bits set).
std::string encodeSchemeRecord(const SchemeRecord& record);
// Decodes kSchemeRecordSize bytes. Text fields lose their trailing blanks. Throws AppError
// (kDataFileProblemMessage) when the bytes cannot be a scheme: control characters in a text
// field, or a font size or indent that no scheme can hold.
SchemeRecord decodeSchemeRecord(std::string_view bytes);

// A set 1 marker text is a code style only when its field does not begin with a blank.
inline bool isCodeMarker(std::string_view marker) { return !marker.empty() && marker.front() != ' '; }

// The family keyword for a font's pitch-and-family value (its upper four bits decide).
std::string fontFamilyKeyword(int pitchAndFamily);

// Readies the current record as a new scheme: indents 0, comment "(" and block skip "/",
// empty family keywords become "fnil". Returns the name proposed for it: "new_" + number.
std::string prepareNewRecord(SchemeRecord& record, long currentRecordNumber);

}  // namespace lathwick

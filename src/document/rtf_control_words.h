#pragma once
// The control words the rich-text reader acts on, found by name in a small hash table (the
// colorizer's output carries a dozen of them per line, so the lookup must be cheap).
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace lathwick::rtf {

enum class Word : unsigned char {
  Unknown,
  // document and tables
  Rtf, Ansi, AnsiCpg, Mac, Pc, Pca, Deff, FontTable, ColourTable, FontCharset, CodePage, FamilyModern,
  Red, Green, Blue,
  // destinations skipped whole
  SkipDestination,
  // character formatting
  Plain, Font, FontSize, ColourFore, Bold, Italic, Underline, UnderlineNone, UnderlineOther,
  Strike, StrikeDouble,
  // paragraphs and special characters
  Pard, Par, Line, Sect, Tab, Cell, Row, NestedTableProperties, LeftIndent, Unicode, UnicodeSkip, Bin,
  EmDash, EnDash, Bullet, LQuote, RQuote, LDblQuote, RDblQuote, Space,
};
inline constexpr std::size_t kWordCount = static_cast<std::size_t>(Word::Space) + 1;

Word lookupWord(std::string_view name);
// The same for a name of at most eight letters packed little-endian into a number (the first
// letter in the lowest byte), as the reader builds it while scanning.
Word lookupPackedWord(std::uint64_t key);

}  // namespace lathwick::rtf

#pragma once
// What the rich-text reader makes of a document: its text in the editor's one-byte form
// (Windows-1252, paragraphs separated by CR LF), the character formats of its runs and the
// left indent of its paragraphs. The reader can also hand the text on in pieces as it reads
// (RtfTextSink), so that a large file never has to be held whole.
#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lathwick {

// Colours are kept as 0x00BBGGRR, the order the scheme records and the text control use.
inline constexpr std::uint32_t kAutoColour = 0xFFFFFFFFu;
inline constexpr int kDefaultHalfPoints = 24;  // 12 points, what RTF means when no \fs is given

struct RtfFont {
  std::string name;
  int codePage = 0;  // 0: the document's code page
  bool fixedPitch = false;  // the family keyword \fmodern: a font whose characters line up in columns
  bool operator==(const RtfFont&) const = default;
};

struct RtfCharFormat {
  int font = -1;  // font number of the font table; -1 when the document names none
  int halfPoints = kDefaultHalfPoints;
  std::uint32_t colour = kAutoColour;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  bool operator==(const RtfCharFormat&) const = default;
};

// A run starts at `start` and lasts until the next run starts (or the text ends).
struct RtfRun {
  std::size_t start;
  std::uint32_t format;  // index into RtfFormatTable::formats
};

// The fonts and the distinct character formats of a document, as far as the reader has come.
struct RtfFormatTable {
  std::map<int, RtfFont> fonts;        // by font number
  std::vector<RtfCharFormat> formats;  // each distinct format once

  // The name of a font number, or "" when the font table does not have it.
  std::string fontName(int number) const {
    const auto it = fonts.find(number);
    return it == fonts.end() ? std::string() : it->second.name;
  }
  bool fontFixedPitch(int number) const {
    const auto it = fonts.find(number);
    return it != fonts.end() && it->second.fixedPitch;
  }
};

struct RtfDocument : RtfFormatTable {
  std::string text;
  std::vector<RtfRun> runs;  // in text order, the first at 0 when there is text
  int indentTwips = 0;       // \li of the first paragraph that holds text
};

// Where a streamed read puts the document. The text arrives in order, in pieces; a piece's runs
// start relative to the piece (the first at 0), and a format may go on from one piece into the
// next. Every format a run names is in `table` by the time the piece arrives.
class RtfTextSink {
 public:
  virtual ~RtfTextSink() = default;
  // The indent of the first paragraph that holds text, before that text arrives (not called
  // for a document without text).
  virtual void indent(int twips) = 0;
  virtual void styledText(std::string_view text, std::span<const RtfRun> runs, const RtfFormatTable& table) = 0;
};

}  // namespace lathwick

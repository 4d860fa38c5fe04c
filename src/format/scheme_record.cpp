#include "format/scheme_record.h"

#include "format/scheme_data_file.h"
#include "platform/bytes.h"

namespace lathwick {

const std::array<const char*, kStyleCount> kFixedStyleLabels = {
    "X Positons", "Y Positons", "Z Positons", "G00 Mode",   "G01 Mode",       "G02 Mode",   "G03 Mode",
    "G41 Mode",   "G42 Mode",   "G91 Mode",   "(Comments)", "Background", "All Other Text", "/Block Skip"};

namespace {

// Offsets inside the record and inside one style set; each set field is an array of 14 entries.
constexpr std::size_t kHeaderAt = 0, kTrailerAt = 512, kNameAt = 528, kBackAt = 544;
constexpr std::size_t kSetAt[kSetCount] = {548, 6540};
constexpr std::size_t kSetSize = 5992;
constexpr std::size_t kColourAt = 0, kColourNumberAt = 56, kSizeAt = 84, kFontNameAt = 112, kFontNumberAt = 1904,
                      kBoldAt = 1932, kStrikeAt = 1960, kUnderlineAt = 1988, kItalicAt = 2016, kMarkerAt = 2044,
                      kIndentAt = 2268, kAttributesAt = 2296, kFamilyAt = 5880;
static_assert(kSetAt[1] + kSetSize == kSchemeRecordSize);
static_assert(kFamilyAt + kStyleCount * kFamilyWidth == kSetSize);

// Largest values a scheme can hold: twice the size and 200 times the indent must stay 16-bit.
constexpr int kMaxFontSize = 1638;
constexpr int kMaxIndentSteps = 163;

class Writer {
 public:
  explicit Writer(std::string& bytes) : b_(bytes) {}
  void text(std::size_t at, std::size_t width, std::string_view s) {
    for (std::size_t i = 0; i < width; ++i) b_[at + i] = i < s.size() ? s[i] : ' ';
  }
  void i16(std::size_t at, int v) {
    const auto u = static_cast<std::uint16_t>(v);
    b_[at] = static_cast<char>(u & 0xFF);
    b_[at + 1] = static_cast<char>(u >> 8);
  }
  void i32(std::size_t at, std::int32_t v) {
    const auto u = static_cast<std::uint32_t>(v);
    for (int k = 0; k < 4; ++k) b_[at + k] = static_cast<char>((u >> (8 * k)) & 0xFF);
  }
  void flag(std::size_t at, bool on) { i16(at, on ? -1 : 0); }

 private:
  std::string& b_;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : b_(bytes) {}
  // allowBreaks: the header field holds a CR LF between its tables.
  std::string text(std::size_t at, std::size_t width, bool allowBreaks = false) const {
    std::string_view s = b_.substr(at, width);
    for (char c : s) {
      const auto u = static_cast<unsigned char>(c);
      const bool isBreak = c == '\r' || c == '\n';
      if (u != 0 && u < 32 && !(allowBreaks && isBreak)) throw DataFileProblem(err::kTypeMismatch);
    }
    return trimRightBlanks(s);
  }
  std::int16_t i16(std::size_t at) const {
    const auto lo = static_cast<unsigned char>(b_[at]);
    const auto hi = static_cast<unsigned char>(b_[at + 1]);
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(lo | (hi << 8)));
  }
  std::int32_t i32(std::size_t at) const {
    std::uint32_t u = 0;
    for (int k = 3; k >= 0; --k) u = (u << 8) | static_cast<unsigned char>(b_[at + k]);
    return static_cast<std::int32_t>(u);
  }
  bool flag(std::size_t at) const { return i16(at) != 0; }

 private:
  std::string_view b_;
};

}  // namespace

std::string encodeSchemeRecord(const SchemeRecord& r) {
  std::string bytes(kSchemeRecordSize, ' ');
  Writer w(bytes);
  w.text(kHeaderAt, kRtfHeaderWidth, r.rtfHeader);
  w.text(kTrailerAt, kRtfTrailerWidth, r.rtfTrailer);
  w.text(kNameAt, kSchemeNameWidth, r.name);
  w.i32(kBackAt, r.backColour);
  for (int set = 0; set < kSetCount; ++set) {
    const std::size_t base = kSetAt[set];
    for (int i = 0; i < kStyleCount; ++i) {
      const SchemeStyle& s = r.sets[set][i];
      w.i32(base + kColourAt + 4 * i, s.colour);
      w.i16(base + kColourNumberAt + 2 * i, s.colourNumber);
      w.i16(base + kSizeAt + 2 * i, s.size);
      w.text(base + kFontNameAt + kFontNameWidth * i, kFontNameWidth, s.fontName);
      w.i16(base + kFontNumberAt + 2 * i, s.fontNumber);
      w.flag(base + kBoldAt + 2 * i, s.bold);
      w.flag(base + kStrikeAt + 2 * i, s.strikeout);
      w.flag(base + kUnderlineAt + 2 * i, s.underline);
      w.flag(base + kItalicAt + 2 * i, s.italic);
      w.text(base + kMarkerAt + kMarkerWidth * i, kMarkerWidth, s.marker);
      w.i16(base + kIndentAt + 2 * i, s.indentSteps);
      w.text(base + kAttributesAt + kAttributesWidth * i, kAttributesWidth, s.attributes);
      w.text(base + kFamilyAt + kFamilyWidth * i, kFamilyWidth, s.family);
    }
  }
  return bytes;
}

SchemeRecord decodeSchemeRecord(std::string_view bytes) {
  if (bytes.size() < kSchemeRecordSize) throw DataFileProblem(62);  // input past end of file
  const Reader rd(bytes);
  SchemeRecord r;
  r.rtfHeader = rd.text(kHeaderAt, kRtfHeaderWidth, true);
  r.rtfTrailer = rd.text(kTrailerAt, kRtfTrailerWidth);
  r.name = rd.text(kNameAt, kSchemeNameWidth);
  r.backColour = rd.i32(kBackAt);
  for (int set = 0; set < kSetCount; ++set) {
    const std::size_t base = kSetAt[set];
    for (int i = 0; i < kStyleCount; ++i) {
      SchemeStyle& s = r.sets[set][i];
      s.colour = rd.i32(base + kColourAt + 4 * i);
      s.colourNumber = rd.i16(base + kColourNumberAt + 2 * i);
      s.size = rd.i16(base + kSizeAt + 2 * i);
      s.fontName = rd.text(base + kFontNameAt + kFontNameWidth * i, kFontNameWidth);
      s.fontNumber = rd.i16(base + kFontNumberAt + 2 * i);
      s.bold = rd.flag(base + kBoldAt + 2 * i);
      s.strikeout = rd.flag(base + kStrikeAt + 2 * i);
      s.underline = rd.flag(base + kUnderlineAt + 2 * i);
      s.italic = rd.flag(base + kItalicAt + 2 * i);
      s.marker = rd.text(base + kMarkerAt + kMarkerWidth * i, kMarkerWidth);
      s.indentSteps = rd.i16(base + kIndentAt + 2 * i);
      s.attributes = rd.text(base + kAttributesAt + kAttributesWidth * i, kAttributesWidth);
      s.family = rd.text(base + kFamilyAt + kFamilyWidth * i, kFamilyWidth);
      if (s.size < 0 || s.size > kMaxFontSize) throw DataFileProblem(err::kOverflow);
    }
  }
  if (r.indentSteps() < 0 || r.indentSteps() > kMaxIndentSteps) throw DataFileProblem(err::kOverflow);
  return r;
}

std::string fontFamilyKeyword(int pitchAndFamily) {
  switch (pitchAndFamily & 0xF0) {
    case 16: return "froman";
    case 32: return "fswiss";
    case 48: return "fmodern";
    case 64: return "fscript";
    case 80: return "fdecor";
    default: return "fnil";
  }
}

std::string prepareNewRecord(SchemeRecord& record, long currentRecordNumber) {
  for (auto& set : record.sets)
    for (auto& s : set) {
      s.indentSteps = 0;
      if (trimBlanks(s.family).empty()) s.family = "fnil";
    }
  record.style(0, kCommentStyle).marker = "(";
  record.style(0, kBlockSkipStyle).marker = "/";
  return "new_" + std::to_string(currentRecordNumber);
}

}  // namespace lathwick

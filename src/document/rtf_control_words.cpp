// The reader's vocabulary: one row per control word it acts on.
#include "document/rtf_control_words.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace lathwick::rtf {
namespace {

struct Entry {
  std::string_view name;
  Word word;
};

// Destinations whose contents are not document text: tables the reader does not need,
// pictures, objects' data, fields' instructions, headers, footers, footnotes, document info.
constexpr Entry kEntries[] = {
    {"rtf", Word::Rtf}, {"ansi", Word::Ansi}, {"ansicpg", Word::AnsiCpg}, {"mac", Word::Mac},
    {"pc", Word::Pc}, {"pca", Word::Pca}, {"deff", Word::Deff}, {"fonttbl", Word::FontTable},
    {"colortbl", Word::ColourTable}, {"fcharset", Word::FontCharset}, {"cpg", Word::CodePage},
    {"fmodern", Word::FamilyModern},
    {"red", Word::Red}, {"green", Word::Green}, {"blue", Word::Blue},
    {"plain", Word::Plain}, {"f", Word::Font}, {"fs", Word::FontSize}, {"cf", Word::ColourFore},
    {"b", Word::Bold}, {"i", Word::Italic}, {"ul", Word::Underline}, {"ulnone", Word::UnderlineNone},
    {"uld", Word::UnderlineOther}, {"uldash", Word::UnderlineOther}, {"uldashd", Word::UnderlineOther},
    {"uldashdd", Word::UnderlineOther}, {"uldb", Word::UnderlineOther}, {"ulth", Word::UnderlineOther},
    {"ulw", Word::UnderlineOther}, {"ulwave", Word::UnderlineOther}, {"ulhwave", Word::UnderlineOther},
    {"strike", Word::Strike}, {"striked", Word::StrikeDouble},
    {"pard", Word::Pard}, {"par", Word::Par}, {"line", Word::Line}, {"sect", Word::Sect},
    {"tab", Word::Tab}, {"cell", Word::Cell}, {"nestcell", Word::Cell}, {"row", Word::Row},
    {"nestrow", Word::Row}, {"nesttableprops", Word::NestedTableProperties}, {"li", Word::LeftIndent}, {"u", Word::Unicode}, {"uc", Word::UnicodeSkip},
    {"bin", Word::Bin}, {"emdash", Word::EmDash}, {"endash", Word::EnDash}, {"bullet", Word::Bullet},
    {"lquote", Word::LQuote}, {"rquote", Word::RQuote}, {"ldblquote", Word::LDblQuote},
    {"rdblquote", Word::RDblQuote}, {"emspace", Word::Space}, {"enspace", Word::Space},
    {"qmspace", Word::Space},
    {"stylesheet", Word::SkipDestination}, {"info", Word::SkipDestination}, {"pict", Word::SkipDestination},
    {"header", Word::SkipDestination}, {"headerl", Word::SkipDestination}, {"headerr", Word::SkipDestination},
    {"headerf", Word::SkipDestination}, {"footer", Word::SkipDestination}, {"footerl", Word::SkipDestination},
    {"footerr", Word::SkipDestination}, {"footerf", Word::SkipDestination}, {"footnote", Word::SkipDestination},
    {"annotation", Word::SkipDestination}, {"atnid", Word::SkipDestination}, {"atnauthor", Word::SkipDestination},
    {"fldinst", Word::SkipDestination}, {"listtable", Word::SkipDestination},
    {"listoverridetable", Word::SkipDestination}, {"revtbl", Word::SkipDestination},
    {"rsidtbl", Word::SkipDestination}, {"xmlnstbl", Word::SkipDestination}, {"themedata", Word::SkipDestination},
    {"colorschememapping", Word::SkipDestination}, {"datastore", Word::SkipDestination},
    {"latentstyles", Word::SkipDestination}, {"generator", Word::SkipDestination},
    {"nonshppict", Word::SkipDestination}, {"shpinst", Word::SkipDestination}, {"shprslt", Word::SkipDestination},
    {"objdata", Word::SkipDestination}, {"objclass", Word::SkipDestination}, {"objname", Word::SkipDestination},
    {"bkmkstart", Word::SkipDestination}, {"bkmkend", Word::SkipDestination}, {"xe", Word::SkipDestination},
    {"tc", Word::SkipDestination}, {"txe", Word::SkipDestination}, {"rxe", Word::SkipDestination},
    {"pn", Word::SkipDestination}, {"pntxta", Word::SkipDestination}, {"pntxtb", Word::SkipDestination},
    {"filetbl", Word::SkipDestination}, {"fchars", Word::SkipDestination}, {"lchars", Word::SkipDestination},
    {"nonesttables", Word::SkipDestination}, {"template", Word::SkipDestination},
    {"comment", Word::SkipDestination}, {"title", Word::SkipDestination}, {"subject", Word::SkipDestination},
    {"author", Word::SkipDestination}, {"operator", Word::SkipDestination}, {"keywords", Word::SkipDestination},
    {"doccomm", Word::SkipDestination}, {"company", Word::SkipDestination}, {"userprops", Word::SkipDestination},
    {"docvar", Word::SkipDestination}, {"mmathPr", Word::SkipDestination}, {"pgdsctbl", Word::SkipDestination},
    {"falt", Word::SkipDestination}, {"panose", Word::SkipDestination}, {"upr", Word::Unknown},
};

constexpr std::size_t kSlots = 512;  // a power of two, well above the number of entries
constexpr std::size_t kMaxPacked = 8;

// Names of up to eight letters (all the vocabulary) are compared as one 64-bit number.
std::uint64_t pack(std::string_view s) {
  std::uint64_t key = 0;
  std::memcpy(&key, s.data(), s.size());
  return key;
}

std::size_t slotOf(std::uint64_t key) { return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15ull) >> 55) & (kSlots - 1); }

struct Table {
  std::array<std::uint64_t, kSlots> keys{};
  std::array<Word, kSlots> words{};
  std::array<const Entry*, kSlots> longNames{};  // the few names longer than eight letters
  Table() {
    for (const Entry& e : kEntries) {
      const std::uint64_t key = pack(e.name.substr(0, kMaxPacked));
      std::size_t i = slotOf(key);
      if (e.name.size() <= kMaxPacked) {
        while (keys[i] != 0) i = (i + 1) & (kSlots - 1);
        keys[i] = key;
        words[i] = e.word;
      } else {
        while (longNames[i] != nullptr) i = (i + 1) & (kSlots - 1);
        longNames[i] = &e;
      }
    }
  }
};

const Table& table() {
  static const Table t;
  return t;
}

}  // namespace

Word lookupPackedWord(std::uint64_t key) {
  static const Table& t = table();
  for (std::size_t i = slotOf(key); t.keys[i] != 0; i = (i + 1) & (kSlots - 1))
    if (t.keys[i] == key) return t.words[i];
  return Word::Unknown;
}

Word lookupWord(std::string_view name) {
  const Table& t = table();
  if (name.empty()) return Word::Unknown;
  if (name.size() <= kMaxPacked) return lookupPackedWord(pack(name));
  for (std::size_t i = slotOf(pack(name.substr(0, kMaxPacked))); t.longNames[i]; i = (i + 1) & (kSlots - 1))
    if (t.longNames[i]->name == name) return t.longNames[i]->word;
  return Word::Unknown;
}

}  // namespace lathwick::rtf

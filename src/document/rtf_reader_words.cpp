// What each control word the reader knows does to its state: one small action per kind of
// word, found through a table indexed by the word.
#include <algorithm>
#include <array>

#include "document/rtf_reader_state.h"

namespace lathwick::detail {

using rtf::Word;
using Destination = RtfDestination;

namespace {

constexpr int kMinHalfPoints = 2;
constexpr int kMaxHalfPoints = 3276;  // what the text control can show

struct WordCall {
  Word word;
  bool hasParameter;
  int param;
  bool on() const { return !hasParameter || param != 0; }  // \b and \b1 switch on, \b0 off
};

}  // namespace

struct RtfWordActions {
  using State = RtfReaderState;

  // ---- the document and its tables -------------------------------------------------------
  static void codePage(State& r, const WordCall& w) {
    switch (w.word) {
      case Word::AnsiCpg: r.documentCodePage_ = w.param > 0 ? w.param : kCodePageWindows1252; break;
      case Word::Mac: r.documentCodePage_ = 10000; break;
      case Word::Pc: r.documentCodePage_ = 437; break;
      case Word::Pca: r.documentCodePage_ = 850; break;
      default: r.documentCodePage_ = kCodePageWindows1252; break;
    }
    r.refreshCodePage();
  }
  static void defaultFont(State& r, const WordCall& w) {
    r.forgetFormatRuns();
    r.defaultFont_ = w.param;
    if (r.state_.format.font < 0) {
      r.state_.format.font = w.param;
      r.refreshCodePage();
    }
  }
  static void fontTable(State& r, const WordCall&) { r.state_.destination = Destination::FontTable; }
  static void colourTable(State& r, const WordCall&) {
    r.state_.destination = Destination::ColourTable;
    r.forgetFormatRuns();
    r.colours_.clear();
    r.colour_ = {};
  }
  static void fontEntryWord(State& r, const WordCall& w) {
    if (r.state_.destination != Destination::FontTable) return;
    if (w.word == Word::FontCharset && r.fontCodePage_ == 0) r.fontCharsetPage_ = codePageOfCharset(w.param);
    if (w.word == Word::CodePage) r.fontCodePage_ = w.param;
    if (w.word == Word::FamilyModern) r.fontFixedPitch_ = true;
  }
  static void colourPart(State& r, const WordCall& w) {
    const int shift = w.word == Word::Red ? 0 : w.word == Word::Green ? 8 : 16;
    r.colour_.rgb = (r.colour_.rgb & ~(0xFFu << shift)) | (static_cast<std::uint32_t>(w.param & 0xFF) << shift);
    r.colour_.given = true;
  }
  static void skipDestination(State& r, const WordCall&) { r.state_.destination = Destination::Skip; }

  // ---- character formats ------------------------------------------------------------------
  static void plain(State& r, const WordCall&) {
    r.state_.format = RtfCharFormat{};
    r.state_.format.font = r.defaultFont_;
    r.refreshCodePage();
    r.formatDirty_ = true;
  }
  static void font(State& r, const WordCall& w) {
    if (r.state_.destination == Destination::FontTable) {
      r.commitFont();
      r.fontNumber_ = w.param;
      return;
    }
    r.state_.format.font = w.param;
    r.refreshCodePage();
    r.formatDirty_ = true;
  }
  static void fontSize(State& r, const WordCall& w) {
    r.state_.format.halfPoints = w.param <= 0 ? kDefaultHalfPoints : std::clamp(w.param, kMinHalfPoints, kMaxHalfPoints);
    r.formatDirty_ = true;
  }
  static void colourFore(State& r, const WordCall& w) {
    const bool known = w.param >= 0 && static_cast<std::size_t>(w.param) < r.colours_.size();
    r.state_.format.colour = known ? r.colours_[static_cast<std::size_t>(w.param)] : kAutoColour;
    r.formatDirty_ = true;
  }
  static void flag(State& r, const WordCall& w) {
    RtfCharFormat& f = r.state_.format;
    switch (w.word) {
      case Word::Bold: f.bold = w.on(); break;
      case Word::Italic: f.italic = w.on(); break;
      case Word::UnderlineNone: f.underline = false; break;
      case Word::Underline:
      case Word::UnderlineOther: f.underline = w.on(); break;
      default: f.strike = w.on(); break;  // \strike, \striked
    }
    r.formatDirty_ = true;
  }

  // ---- paragraphs, tables and special characters ------------------------------------------
  static void indent(State& r, const WordCall& w) { r.state_.indentTwips = w.word == Word::Pard ? 0 : w.param; }
  static void paragraph(State& r, const WordCall& w) { r.paragraphBreak(w.word != Word::Line); }
  static void row(State& r, const WordCall&) {
    const Destination was = r.state_.destination;
    if (was == Destination::NestedRowProperties) r.state_.destination = Destination::Text;
    // The tab of the row's last cell does not end up before the line break.
    if (r.state_.destination == Destination::Text && !r.text_.empty() && r.text_.back() == '\t') r.text_.pop_back();
    r.paragraphBreak(true);
    r.state_.destination = was;
  }
  static void nestedTableProperties(State& r, const WordCall&) {
    r.state_.destination = Destination::NestedRowProperties;
  }
  static void unicode(State& r, const WordCall& w) {
    if (w.hasParameter) r.unicodeChar(w.param);
  }
  static void unicodeSkip(State& r, const WordCall& w) { r.state_.unicodeSkip = std::clamp(w.param, 0, 16); }
  static void binary(State& r, const WordCall& w) { r.binaryLeft_ = w.param > 0 ? static_cast<std::size_t>(w.param) : 0; }
  static void character(State& r, const WordCall& w) {
    switch (w.word) {
      case Word::EmDash: r.symbol('\x97'); break;
      case Word::EnDash: r.symbol('\x96'); break;
      case Word::Bullet: r.symbol('\x95'); break;
      case Word::LQuote: r.symbol('\x91'); break;
      case Word::RQuote: r.symbol('\x92'); break;
      case Word::LDblQuote: r.symbol('\x93'); break;
      case Word::RDblQuote: r.symbol('\x94'); break;
      case Word::Space: r.symbol(' '); break;
      default: r.symbol('\t'); break;  // \tab, \cell
    }
  }
};

namespace {

using Action = void (*)(RtfReaderState&, const WordCall&);
using A = RtfWordActions;

struct Row {
  Word word;
  Action action;
};

constexpr Row kRows[] = {
    {Word::Ansi, A::codePage}, {Word::AnsiCpg, A::codePage}, {Word::Mac, A::codePage}, {Word::Pc, A::codePage},
    {Word::Pca, A::codePage}, {Word::Deff, A::defaultFont}, {Word::FontTable, A::fontTable},
    {Word::ColourTable, A::colourTable}, {Word::FontCharset, A::fontEntryWord}, {Word::CodePage, A::fontEntryWord},
    {Word::FamilyModern, A::fontEntryWord}, {Word::Red, A::colourPart}, {Word::Green, A::colourPart},
    {Word::Blue, A::colourPart}, {Word::SkipDestination, A::skipDestination},
    {Word::Plain, A::plain}, {Word::Font, A::font}, {Word::FontSize, A::fontSize}, {Word::ColourFore, A::colourFore},
    {Word::Bold, A::flag}, {Word::Italic, A::flag}, {Word::Underline, A::flag}, {Word::UnderlineNone, A::flag},
    {Word::UnderlineOther, A::flag}, {Word::Strike, A::flag}, {Word::StrikeDouble, A::flag},
    {Word::Pard, A::indent}, {Word::LeftIndent, A::indent}, {Word::Par, A::paragraph}, {Word::Sect, A::paragraph},
    {Word::Line, A::paragraph}, {Word::Row, A::row}, {Word::NestedTableProperties, A::nestedTableProperties},
    {Word::Tab, A::character}, {Word::Cell, A::character}, {Word::Unicode, A::unicode},
    {Word::UnicodeSkip, A::unicodeSkip}, {Word::Bin, A::binary}, {Word::EmDash, A::character},
    {Word::EnDash, A::character}, {Word::Bullet, A::character}, {Word::LQuote, A::character},
    {Word::RQuote, A::character}, {Word::LDblQuote, A::character}, {Word::RDblQuote, A::character},
    {Word::Space, A::character},
};

// \rtf and the words the reader does not know have no action.
constexpr std::array<Action, rtf::kWordCount> kActions = [] {
  std::array<Action, rtf::kWordCount> table{};
  for (const Row& row : kRows) table[static_cast<std::size_t>(row.word)] = row.action;
  return table;
}();

// The character format fields a word sets (all of them for \plain).
unsigned fieldsOf(Word word) {
  switch (word) {
    case Word::Plain: return kAllFormatFields;
    case Word::Font: return 1;
    case Word::FontSize: return 2;
    case Word::ColourFore: return 4;
    case Word::Bold: return 8;
    case Word::Italic: return 16;
    case Word::Underline: case Word::UnderlineNone: case Word::UnderlineOther: return 32;
    case Word::Strike: case Word::StrikeDouble: return 64;
    default: return 0;
  }
}

}  // namespace

void RtfReaderState::controlWord(Word word, bool hasParameter, int param) {
  replayed_ = nullptr;  // the word may change the format
  if (state_.destination == Destination::FontTable || state_.destination == Destination::ColourTable)
    endTruncatedTable(word);
  trackFormatRun(word);
  if (const Action action = kActions[static_cast<std::size_t>(word)]) action(*this, WordCall{word, hasParameter, param});
}

void RtfReaderState::trackFormatRun(Word word) {
  const unsigned fields = state_.destination == Destination::Text ? fieldsOf(word) : 0;
  if (fields == 0) {
    endFormatRun(wordStart_);  // this word is not part of the run
    return;
  }
  if (!runStart_) {
    runStart_ = wordStart_;
    runFields_ = 0;
  }
  runFields_ |= fields;
}

}  // namespace lathwick::detail

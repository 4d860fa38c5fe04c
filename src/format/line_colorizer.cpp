#include "format/line_colorizer.h"

#include <cstring>

namespace lathwick {

namespace {

// How a recognised G word acts on the line and the run.
enum class GAction {
  SetMode,   // code at the word, the word becomes the modal style, end code after it
  Mark,      // code at the word, end code after it if that slot is free; modal style unchanged
  ShowMode,  // Modes view only: the modal style's code at the word
};

struct GWordRule {
  std::string_view longForm;
  std::string_view shortForm;
  std::uint8_t code;
  GAction action;
};

// Tested in this order, so the last of G00-G03 present in a line becomes the modal style.
constexpr GWordRule kGWordRules[] = {
    {"G00", "G0", kG00Mode, GAction::SetMode}, {"G01", "G1", kG01Mode, GAction::SetMode},
    {"G02", "G2", kG02Mode, GAction::SetMode}, {"G03", "G3", kG03Mode, GAction::SetMode},
    {"G41", "", kG41Mode, GAction::Mark},      {"G42", "", kG42Mode, GAction::Mark},
    {"G91", "", kG91Mode, GAction::Mark},      {"G90", "", 0, GAction::ShowMode},
    {"G40", "", 0, GAction::ShowMode},
};

struct AxisRule {
  char letter;
  std::uint8_t code;
};
constexpr AxisRule kAxisRules[] = {{'X', kXCode}, {'Y', kYPositions}, {'Z', kZPositions}};

// Characters that may follow the prefix of a "#" marker for the hit to count.
bool startsNumber(char c) { return (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '+' || c == '['; }

bool isHashMarker(const std::string& t) { return t.size() >= 2 && t.back() == '#'; }

}  // namespace

LineColorizer::LineColorizer(const PassFrame& frame, ColorizeView view, std::vector<MarkerEntry> markers)
    : view_(view),
      strings_(buildCodeStrings(frame, view)),
      markers_(view == ColorizeView::Codes ? std::move(markers) : std::vector<MarkerEntry>{}),
      blockSkip_(frame.blockSkipText),
      comment_(frame.comment) {}

void LineColorizer::colorize(std::string_view line, std::string& out) {
  const std::size_t len = line.size();
  upper_.resize(len);
  present_.fill(false);
  for (std::size_t i = 0; i < len; ++i) {
    const char c = line[i];
    const char u = (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
    upper_[i] = u;
    present_[static_cast<unsigned char>(c)] = true;
    present_[static_cast<unsigned char>(u)] = true;
  }
  finder_.reset();
  codes_.assign(len + 2, kNoCode);
  markBlockSkipOrWords(line);
  markComment();
  emit(line, out);
}

void LineColorizer::markBlockSkipOrWords(std::string_view line) {
  const std::size_t len = line.size();
  scan_ = inStr(1, upper_, blockSkip_);
  if (scan_ >= 1 && scan_ <= 4 && !blockSkip_.empty()) {
    put(scan_, kBlockSkipStyle);
    put(len + 1, kEndOfWord);
    return;  // no G words, and the modal style stays as it is
  }
  if (view_ == ColorizeView::Modes) put(1, static_cast<std::uint8_t>(modal_));
  if (occurs('G')) markGWords();
  if (view_ == ColorizeView::Codes) {
    markPositions();
    markCodeTexts(line);
  }
}

void LineColorizer::markGWords() {
  for (const GWordRule& rule : kGWordRules) {
    if (rule.action == GAction::ShowMode && view_ != ColorizeView::Modes) continue;
    scan_ = finder_.find(upper_, rule.longForm, rule.shortForm);
    if (scan_ == 0) continue;
    const std::size_t after = scan_ + finder_.matchLength();
    switch (rule.action) {
      case GAction::SetMode:
        put(scan_, rule.code);
        modal_ = rule.code;
        put(after, kEndOfWord);
        break;
      case GAction::Mark:
        put(scan_, rule.code);
        endWordAt(after);
        break;
      case GAction::ShowMode:
        put(scan_, static_cast<std::uint8_t>(modal_));
        break;
    }
  }
}

// X, Y and Z words. The X search starts one past wherever the last test left the scan
// position, so in a line with a G91 word it begins after that word.
void LineColorizer::markPositions() {
  for (const AxisRule& axis : kAxisRules) {
    if (!occurs(axis.letter)) {
      scan_ = 0;  // what the search would have left
      continue;
    }
    const std::string_view letter(&axis.letter, 1);
    scan_ = inStr(scan_ + 1, upper_, letter);
    while (scan_ > 0) {
      put(scan_, axis.code);
      scan_ = numberEnd(scan_, upper_, letter);
      endWordAt(scan_);
      scan_ = inStr(scan_ + 1, upper_, letter);
    }
  }
}

// Set 1 code texts, searched case-sensitively in the line as read.
void LineColorizer::markCodeTexts(std::string_view line) {
  for (const MarkerEntry& m : markers_) {
    if (!occurs(m.text.front())) {
      scan_ = 0;  // what the search would have left
      continue;
    }
    const auto code = static_cast<std::uint8_t>(kFirstCodeStyle + m.style);
    if (isHashMarker(m.text)) {
      const std::string_view text(m.text);
      const std::string_view prefix = text.substr(0, text.find('#', 1));
      const std::string_view word = text.substr(0, text.size() - 1);
      scan_ = inStr(scan_ + 1, line, prefix);
      while (scan_ > 0) {
        const std::size_t hit = scan_;
        std::size_t from = hit + 1;  // a hit that does not count: on after it
        const std::size_t next = hit + prefix.size();  // 1-based position after the prefix
        if (next <= line.size() && startsNumber(line[next - 1])) {
          put(hit, code);
          const std::size_t end = numberEnd(hit, line, word);
          endWordAt(end);
          clearBetween(hit, end);
          // On from the end of the mark, so a word right after it is found too. An end before
          // the hit (the text after the prefix is not in the line) must not send the search
          // back: it goes on after the hit instead.
          if (end > hit) from = end;
        }
        scan_ = inStr(from, line, prefix);
      }
    } else {
      scan_ = inStr(scan_ + 1, line, m.text);
      while (scan_ > 0) {
        const std::size_t end = scan_ + m.text.size();
        put(scan_, code);
        endWordAt(end);
        clearBetween(scan_, end);
        scan_ = inStr(end, line, m.text);  // on from the end of the mark: "MM" holds two "M"
      }
    }
  }
}

// Only the first comment of a line is marked, and it clears every mark inside it.
void LineColorizer::markComment() {
  if (!comment_.active || !occurs(comment_.open)) return;
  const std::size_t p = inStr(1, upper_, std::string_view(&comment_.open, 1));
  if (p == 0) return;
  put(p, kCommentStyle);
  const std::size_t close = inStr(p + 1, upper_, std::string_view(&comment_.close, 1));
  const std::size_t end = close > 0 ? close + 1 : upper_.size() + 1;
  endWordAt(end);
  clearBetween(p, end);
}

void LineColorizer::emit(std::string_view line, std::string& out) const {
  if (occurs('\\') || occurs('{') || occurs('}')) {
    emitEscaped(line, out);
    return;
  }
  // No character to escape: only the positions with a code matter, found eight at a time.
  const std::size_t len = line.size();
  std::uint8_t current = kEndOfWord;
  std::size_t runStart = 0;  // 0-based start of the characters not yet appended
  std::size_t i = 1;
  while (i <= len + 1) {
    std::uint64_t eight = 0;
    if (i + 8 <= codes_.size()) std::memcpy(&eight, codes_.data() + i, 8);
    if (i + 8 <= codes_.size() && eight == 0) {
      i += 8;
      continue;
    }
    const std::uint8_t c = codes_[i];
    if (c != kNoCode && c != current) {
      out.append(line.data() + runStart, (i - 1) - runStart);
      runStart = i - 1;
      current = c;
      out += strings_[c];
    }
    ++i;
  }
  out.append(line.data() + runStart, len - runStart);
}

// The same for a line with "\\", "{" or "}": each is escaped, after the code string at its place.
void LineColorizer::emitEscaped(std::string_view line, std::string& out) const {
  const std::size_t len = line.size();
  std::uint8_t current = kEndOfWord;
  std::size_t runStart = 0;  // 0-based start of the characters not yet appended
  for (std::size_t i = 1; i <= len + 1; ++i) {
    const std::uint8_t c = codes_[i];
    const char ch = i <= len ? line[i - 1] : '\0';
    const bool special = ch == '\\' || ch == '{' || ch == '}';
    if ((c == kNoCode || c == current) && !special && i <= len) continue;
    out.append(line.data() + runStart, (i - 1) - runStart);
    runStart = i - 1;
    if (c != kNoCode && c != current) {
      current = c;
      out += strings_[c];
    }
    if (i > len) break;
    if (special) {
      out += '\\';
      out += ch;
      runStart = i;
    }
  }
}

}  // namespace lathwick

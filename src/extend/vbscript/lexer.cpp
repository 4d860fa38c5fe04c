#include "extend/vbscript/lexer.h"

#include <cmath>
#include <cstdlib>

#include "extend/vbscript/date_time.h"
#include "extend/vbscript/errors.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
struct KeywordRow {
  const char* text;
  Kw kw;
};
constexpr KeywordRow kKeywords[] = {
    {"And", Kw::And},     {"ByRef", Kw::ByRef},     {"ByVal", Kw::ByVal},   {"Call", Kw::Call},
    {"Case", Kw::Case},   {"Class", Kw::Class},     {"Const", Kw::Const},   {"Dim", Kw::Dim},
    {"Do", Kw::Do},       {"Each", Kw::Each},       {"Else", Kw::Else},     {"ElseIf", Kw::ElseIf},
    {"Empty", Kw::Empty}, {"End", Kw::End},         {"Eqv", Kw::Eqv},       {"Erase", Kw::Erase},
    {"Exit", Kw::Exit},   {"False", Kw::False},     {"For", Kw::For},       {"Function", Kw::Function},
    {"GoTo", Kw::GoTo},   {"If", Kw::If},           {"Imp", Kw::Imp},       {"In", Kw::In},
    {"Is", Kw::Is},       {"Loop", Kw::Loop},       {"Me", Kw::Me},         {"Mod", Kw::Mod},
    {"New", Kw::New},     {"Next", Kw::Next},       {"Not", Kw::Not},       {"Nothing", Kw::Nothing},
    {"Null", Kw::Null},   {"On", Kw::On},           {"Option", Kw::Option}, {"Or", Kw::Or},
    {"Preserve", Kw::Preserve}, {"Private", Kw::Private}, {"Public", Kw::Public}, {"ReDim", Kw::ReDim},
    {"Resume", Kw::Resume}, {"Select", Kw::Select}, {"Set", Kw::Set},       {"Stop", Kw::Stop},
    {"Sub", Kw::Sub},     {"Then", Kw::Then},       {"To", Kw::To},         {"True", Kw::True},
    {"Until", Kw::Until}, {"WEnd", Kw::WEnd},       {"While", Kw::While},   {"With", Kw::With},
    {"Xor", Kw::Xor},
};

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isIdentChar(char c) { return isLetter(c) || isDigit(c) || c == '_'; }

class Lexer {
 public:
  explicit Lexer(std::string_view text) : s_(text) {}

  Lexed run() {
    // Files saved as UTF-8 often start with a byte-order mark.
    if (s_.substr(0, 3) == "\xEF\xBB\xBF") pos_ = lineStart_ = 3;
    while (true) {
      skipBlanks();
      if (pos_ >= s_.size()) break;
      const char c = s_[pos_];
      const int col = static_cast<int>(pos_ - lineStart_);
      if (c == '\r' || c == '\n') {
        add(Tok::Newline, col);
        newline();
      } else if (c == '\'') {
        skipToEol();
      } else if (c == ':') {
        ++pos_;
        add(Tok::Colon, col);
      } else if (isLetter(c)) {
        identifier(col);
      } else if (isDigit(c) || (c == '.' && pos_ + 1 < s_.size() && isDigit(s_[pos_ + 1]))) {
        number(col);
      } else if (c == '"') {
        stringLiteral(col);
      } else if (c == '#') {
        dateLiteral(col);
      } else if (c == '&') {
        ampersand(col);
      } else if (c == '[') {
        bracketIdent(col);
      } else if (c == '_') {
        continuation(col);
      } else {
        op(c, col);
      }
    }
    add(Tok::End, static_cast<int>(pos_ - lineStart_));
    return std::move(out_);
  }

 private:
  [[noreturn]] void fail(int number, int col) { throw CompileError{number, line_, col}; }

  void add(Tok k, int col, std::string_view text = {}, Kw kw = Kw::None, std::uint32_t value = 0) {
    out_.tokens.push_back(Token{k, kw, line_, col, text, value, spaced_});
    spaced_ = false;
  }
  std::uint32_t addValue(Variant v) {
    out_.values.push_back(std::move(v));
    return static_cast<std::uint32_t>(out_.values.size() - 1);
  }
  bool atStatementStart() const {
    if (out_.tokens.empty()) return true;
    const Token& t = out_.tokens.back();
    return t.kind == Tok::Newline || t.kind == Tok::Colon || t.kw == Kw::Then || t.kw == Kw::Else;
  }
  void skipBlanks() {
    while (pos_ < s_.size() && (s_[pos_] == ' ' || s_[pos_] == '\t')) ++pos_, spaced_ = true;
  }
  void skipToEol() {
    while (pos_ < s_.size() && s_[pos_] != '\r' && s_[pos_] != '\n') ++pos_;
  }
  void newline() {
    if (s_[pos_] == '\r' && pos_ + 1 < s_.size() && s_[pos_ + 1] == '\n') ++pos_;
    ++pos_;
    ++line_;
    lineStart_ = pos_;
    spaced_ = true;
  }

  void identifier(int col) {
    const size_t start = pos_;
    while (pos_ < s_.size() && isIdentChar(s_[pos_])) ++pos_;
    std::string_view word = s_.substr(start, pos_ - start);
    if (word.size() > 255) fail(ce::kIdentTooLong, col);
    // After a dot every word is a member name, keywords included.
    const bool afterDot = !out_.tokens.empty() && out_.tokens.back().kind == Tok::Dot;
    if (!afterDot && equalsIgnoreCase(word, "Rem") && atStatementStart()) {
      skipToEol();
      return;
    }
    const Kw kw = afterDot ? Kw::None : keywordOf(word);
    add(kw == Kw::None ? Tok::Ident : Tok::Keyword, col, word, kw);
  }

  void bracketIdent(int col) {
    const size_t start = ++pos_;
    while (pos_ < s_.size() && s_[pos_] != ']' && s_[pos_] != '\r' && s_[pos_] != '\n') ++pos_;
    if (pos_ >= s_.size() || s_[pos_] != ']') fail(ce::kExpectedRBracket, col);
    std::string_view word = s_.substr(start, pos_ - start);
    ++pos_;
    if (word.size() > 255) fail(ce::kIdentTooLong, col);
    add(Tok::Ident, col, word);
  }

  void continuation(int col) {
    size_t p = pos_ + 1;
    while (p < s_.size() && (s_[p] == ' ' || s_[p] == '\t')) ++p;
    if (p < s_.size() && (s_[p] == '\r' || s_[p] == '\n')) {
      pos_ = p;
      newline();
      return;
    }
    if (p >= s_.size()) {
      pos_ = p;
      return;
    }
    fail(ce::kInvalidChar, col);
  }

  void number(int col) {
    const size_t start = pos_;
    bool isFloat = false;
    while (pos_ < s_.size() && isDigit(s_[pos_])) ++pos_;
    if (pos_ < s_.size() && s_[pos_] == '.') {
      isFloat = true;
      ++pos_;
      while (pos_ < s_.size() && isDigit(s_[pos_])) ++pos_;
    }
    if (pos_ < s_.size() && (s_[pos_] == 'e' || s_[pos_] == 'E')) {
      size_t p = pos_ + 1;
      if (p < s_.size() && (s_[p] == '+' || s_[p] == '-')) ++p;
      if (p < s_.size() && isDigit(s_[p])) {
        isFloat = true;
        pos_ = p;
        while (pos_ < s_.size() && isDigit(s_[pos_])) ++pos_;
      }
    }
    if (pos_ < s_.size() && isLetter(s_[pos_])) fail(ce::kExpectedEos, static_cast<int>(pos_ - lineStart_));
    const std::string text(s_.substr(start, pos_ - start));
    const double d = std::strtod(text.c_str(), nullptr);
    if (!std::isfinite(d)) fail(ce::kInvalidNumber, col);
    Variant v;
    if (isFloat || d > 2147483647.0) v = Variant::dbl(d);
    else v = Variant::fitted(static_cast<long long>(d));
    add(Tok::Number, col, {}, Kw::None, addValue(std::move(v)));
  }

  void ampersand(int col) {
    size_t p = pos_ + 1;
    int base = 0;
    if (p < s_.size() && (s_[p] == 'H' || s_[p] == 'h')) base = 16, ++p;
    else if (p < s_.size() && (s_[p] == 'O' || s_[p] == 'o')) base = 8, ++p;
    else if (p < s_.size() && isDigit(s_[p])) base = 8;
    if (base == 0) {
      ++pos_;
      add(Tok::Amp, col);
      return;
    }
    unsigned long long v = 0;
    int significant = 0;
    const size_t digitsStart = p;
    while (p < s_.size() && isIdentChar(s_[p])) {
      const char c = s_[p];
      int d;
      if (isDigit(c)) d = c - '0';
      else if (base == 16 && ((c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'))) d = (c | 0x20) - 'a' + 10;
      else if (base == 16) break;
      else fail(ce::kSyntax, col);
      if (d >= base) fail(ce::kSyntax, col);
      if (v != 0 || d != 0) ++significant;
      v = v * static_cast<unsigned>(base) + static_cast<unsigned>(d);
      if (v > 0xFFFFFFFFull) fail(ce::kInvalidNumber, col);
      ++p;
    }
    if (p == digitsStart) fail(ce::kSyntax, col);
    bool longSuffix = false;
    if (p < s_.size() && s_[p] == '&') longSuffix = true, ++p;
    pos_ = p;
    std::int32_t n;
    const bool short16 = !longSuffix && (base == 16 ? significant <= 4 : v <= 0177777);
    if (short16) n = static_cast<std::int16_t>(static_cast<std::uint16_t>(v));
    else n = static_cast<std::int32_t>(static_cast<std::uint32_t>(v));
    Variant val = (n >= -32767 && n <= 32767) ? Variant::integer(n) : Variant::longv(n);
    add(Tok::Number, col, {}, Kw::None, addValue(std::move(val)));
  }

  void stringLiteral(int col) {
    std::string value;
    ++pos_;
    while (true) {
      if (pos_ >= s_.size() || s_[pos_] == '\r' || s_[pos_] == '\n') fail(ce::kUnterminatedString, col);
      const char c = s_[pos_++];
      if (c == '"') {
        if (pos_ < s_.size() && s_[pos_] == '"') {
          value += '"';
          ++pos_;
          continue;
        }
        break;
      }
      value += c;
    }
    add(Tok::String, col, {}, Kw::None, addValue(Variant::str(std::move(value))));
  }

  void dateLiteral(int col) {
    const size_t start = ++pos_;
    while (pos_ < s_.size() && s_[pos_] != '#' && s_[pos_] != '\r' && s_[pos_] != '\n') ++pos_;
    if (pos_ >= s_.size() || s_[pos_] != '#') fail(ce::kSyntax, col);
    std::string_view body = s_.substr(start, pos_ - start);
    ++pos_;
    std::optional<double> d;
    try {
      d = parseDateText(body);
    } catch (const ScriptError&) {
      d.reset();
    }
    if (!d) fail(ce::kSyntax, col);
    add(Tok::Date, col, {}, Kw::None, addValue(Variant::date(*d)));
  }

  void op(char c, int col) {
    auto next = [&](char n) { return pos_ + 1 < s_.size() && s_[pos_ + 1] == n; };
    Tok k;
    int len = 1;
    switch (c) {
      case '(': k = Tok::LParen; break;
      case ')': k = Tok::RParen; break;
      case ',': k = Tok::Comma; break;
      case '.': k = Tok::Dot; break;
      case '+': k = Tok::Plus; break;
      case '-': k = Tok::Minus; break;
      case '*': k = Tok::Star; break;
      case '/': k = Tok::Slash; break;
      case '\\': k = Tok::Backslash; break;
      case '^': k = Tok::Caret; break;
      case '=':
        if (next('>')) k = Tok::Ge, len = 2;
        else if (next('<')) k = Tok::Le, len = 2;
        else k = Tok::Eq;
        break;
      case '<':
        if (next('>')) k = Tok::Ne, len = 2;
        else if (next('=')) k = Tok::Le, len = 2;
        else k = Tok::Lt;
        break;
      case '>':
        if (next('=')) k = Tok::Ge, len = 2;
        else if (next('<')) k = Tok::Ne, len = 2;
        else k = Tok::Gt;
        break;
      default: fail(ce::kInvalidChar, col);
    }
    pos_ += static_cast<size_t>(len);
    add(k, col);
  }

  std::string_view s_;
  size_t pos_ = 0;
  size_t lineStart_ = 0;
  int line_ = 0;
  bool spaced_ = true;  // blanks (or a line start) before the next token
  Lexed out_;
};
}  // namespace

Kw keywordOf(std::string_view word) {
  if (word.size() < 2 || word.size() > 8) return Kw::None;
  for (const auto& k : kKeywords)
    if (equalsIgnoreCase(word, k.text)) return k.kw;
  return Kw::None;
}

const char* keywordText(Kw kw) {
  for (const auto& k : kKeywords)
    if (k.kw == kw) return k.text;
  return "";
}

Lexed lex(std::string_view text) { return Lexer(text).run(); }

}  // namespace lathwick::vbs

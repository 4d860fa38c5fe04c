#pragma once
// Splits script text into tokens. Keywords are recognised case-insensitively; comments, line
// continuations and `Rem` statements disappear here. Errors are thrown as CompileError.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "extend/vbscript/variant.h"

namespace lathwick::vbs {

enum class Tok : std::uint8_t {
  End, Newline, Colon, Ident, Keyword, Number, String, Date,
  LParen, RParen, Comma, Dot, Plus, Minus, Star, Slash, Backslash, Caret, Amp,
  Eq, Ne, Lt, Gt, Le, Ge,
};

enum class Kw : std::uint8_t {
  None, And, ByRef, ByVal, Call, Case, Class, Const, Dim, Do, Each, Else, ElseIf, Empty, End,
  Eqv, Erase, Exit, False, For, Function, GoTo, If, Imp, In, Is, Loop, Me, Mod, New, Next, Not,
  Nothing, Null, On, Option, Or, Preserve, Private, Public, ReDim, Resume, Select, Set, Stop,
  Sub, Then, To, True, Until, WEnd, While, With, Xor,
};

struct Token {
  Tok kind = Tok::End;
  Kw kw = Kw::None;
  int line = 0;  // 0-based
  int col = 0;   // 0-based
  std::string_view text;  // the source spelling (identifiers, keywords)
  std::uint32_t value = 0;  // index into Lexed::values for Number, String and Date
  bool spaced = false;      // blanks or a line start come before it (`f .x` is not `f.x`)
};

// A compile error at a 0-based position.
struct CompileError {
  int number;
  int line;
  int col;
};

struct Lexed {
  std::vector<Token> tokens;
  std::vector<Variant> values;
};

// Identifier text and keyword table access (for messages and member names).
Kw keywordOf(std::string_view word);
const char* keywordText(Kw kw);

Lexed lex(std::string_view text);

}  // namespace lathwick::vbs

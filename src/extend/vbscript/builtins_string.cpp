// String functions. Strings are byte strings: one byte is one character.
#include <algorithm>
#include <cctype>
#include <cstring>

#include "extend/vbscript/builtins.h"
#include "platform/bytes.h"

namespace lathwick::vbs::builtin {

namespace {
Variant fnLen(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  std::string hold;
  return Variant::longv(static_cast<std::int32_t>(textOf(rt, a[0], hold).size()));
}

Variant fnLeft(Runtime& rt, Args& a) {
  const std::int32_t n = intArg(rt, a[1]);
  if (n < 0) raise(rt::kInvalidProcedureCall);
  if (a[0].isNull()) return Variant::null();
  std::string hold;
  const std::string& s = textOf(rt, a[0], hold);
  return Variant::str(s.substr(0, static_cast<size_t>(n)));
}

Variant fnRight(Runtime& rt, Args& a) {
  const std::int32_t n = intArg(rt, a[1]);
  if (n < 0) raise(rt::kInvalidProcedureCall);
  if (a[0].isNull()) return Variant::null();
  std::string hold;
  const std::string& s = textOf(rt, a[0], hold);
  const size_t k = std::min(s.size(), static_cast<size_t>(n));
  return Variant::str(s.substr(s.size() - k));
}

Variant fnMid(Runtime& rt, Args& a) {
  const std::int32_t start = intArg(rt, a[1]);
  if (start < 1) raise(rt::kInvalidProcedureCall);
  std::int32_t len = -1;
  if (given(a, 2)) {
    len = intArg(rt, a[2]);
    if (len < 0) raise(rt::kInvalidProcedureCall);
  }
  if (a[0].isNull()) return Variant::null();
  std::string hold;
  const std::string& s = textOf(rt, a[0], hold);
  if (static_cast<size_t>(start) > s.size()) return Variant::str("");
  return Variant::str(s.substr(static_cast<size_t>(start - 1), len < 0 ? std::string::npos : static_cast<size_t>(len)));
}

size_t findText(const std::string& hay, const std::string& needle, size_t from, bool text) {
  if (!text) return hay.find(needle, from);
  return lowerText(hay).find(lowerText(needle), from);
}

Variant fnInStr(Runtime& rt, Args& a) {
  size_t i = 0;
  std::int32_t start = 1;
  // The start comes first and may be left out, so the two strings are counted here.
  if (a.size() >= 3) {
    if (given(a, 0)) start = intArg(rt, a[0]);
    if (start < 1) raise(rt::kInvalidProcedureCall);
    i = 1;
  }
  if (a.size() < 2 || !given(a, i) || !given(a, i + 1)) raise(rt::kWrongNumberOfArguments, "InStr");
  const bool text = a.size() == 4 ? textCompare(rt, a, 3) : false;
  if (a[i].isNull() || a[i + 1].isNull()) return Variant::null();
  std::string hold1, hold2;
  const std::string& s1 = textOf(rt, a[i], hold1);
  const std::string& s2 = textOf(rt, a[i + 1], hold2);
  if (static_cast<size_t>(start) > s1.size()) return Variant::longv(0);
  if (s2.empty()) return Variant::longv(start);
  const size_t p = findText(s1, s2, static_cast<size_t>(start - 1), text);
  return Variant::longv(p == std::string::npos ? 0 : static_cast<std::int32_t>(p + 1));
}

Variant fnInStrRev(Runtime& rt, Args& a) {
  for (const auto& v : a)
    if (v.isNull()) raise(rt::kInvalidUseOfNull);
  std::string hold1, hold2;
  const std::string& s1 = textOf(rt, a[0], hold1);
  const std::string& s2 = textOf(rt, a[1], hold2);
  std::int32_t start = given(a, 2) ? intArg(rt, a[2]) : -1;
  const bool text = textCompare(rt, a, 3);
  if (start == 0 || start < -1) raise(rt::kInvalidProcedureCall);
  if (start == -1) start = static_cast<std::int32_t>(s1.size());
  if (static_cast<size_t>(start) > s1.size()) return Variant::longv(0);
  if (s2.empty()) return Variant::longv(start);
  if (s2.size() > static_cast<size_t>(start)) return Variant::longv(0);
  const std::string hay = text ? lowerText(s1) : s1;
  const std::string needle = text ? lowerText(s2) : s2;
  const size_t p = hay.rfind(needle, static_cast<size_t>(start) - needle.size());
  return Variant::longv(p == std::string::npos ? 0 : static_cast<std::int32_t>(p + 1));
}

Variant fnLCase(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::str(asciiLower(toStr(rt, a[0])));
}
Variant fnUCase(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::str(asciiUpper(toStr(rt, a[0])));
}
Variant fnLTrim(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::str(trimLeftBlanks(toStr(rt, a[0])));
}
Variant fnRTrim(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::str(trimRightBlanks(toStr(rt, a[0])));
}
Variant fnTrim(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::str(trimBlanks(toStr(rt, a[0])));
}


Variant fnSpace(Runtime& rt, Args& a) {
  const std::int32_t n = intArg(rt, a[0]);
  if (n < 0) raise(rt::kInvalidProcedureCall);
  rt.noteStringGrowth(static_cast<size_t>(n), static_cast<size_t>(n));
  return Variant::str(std::string(static_cast<size_t>(n), ' '));
}

Variant fnString(Runtime& rt, Args& a) {
  const std::int32_t n = intArg(rt, a[0]);
  if (n < 0) raise(rt::kInvalidProcedureCall);
  rt.noteStringGrowth(static_cast<size_t>(n), static_cast<size_t>(n));
  if (a[1].isNull()) return Variant::null();
  char c;
  if (a[1].isString()) {
    if (a[1].strValue().empty()) raise(rt::kInvalidProcedureCall);
    c = a[1].strValue()[0];
  } else {
    const std::int32_t code = toLong(rt, a[1]);
    c = static_cast<char>(((code % 256) + 256) % 256);
  }
  return Variant::str(std::string(static_cast<size_t>(n), c));
}

Variant fnStrReverse(Runtime& rt, Args& a) {
  std::string s = strArg(rt, a[0]);
  std::reverse(s.begin(), s.end());
  return Variant::str(std::move(s));
}

Variant fnStrComp(Runtime& rt, Args& a) {
  const bool text = textCompare(rt, a, 2);
  if (a[0].isNull() || a[1].isNull()) return Variant::null();
  std::string x = toStr(rt, a[0]), y = toStr(rt, a[1]);
  if (text) x = lowerText(x), y = lowerText(y);
  const int c = x.compare(y);
  return Variant::integer(c < 0 ? -1 : (c > 0 ? 1 : 0));
}

Variant fnReplace(Runtime& rt, Args& a) {
  for (const auto& v : a)
    if (v.isNull()) raise(rt::kInvalidUseOfNull);
  const std::string s = toStr(rt, a[0]), find = toStr(rt, a[1]), repl = toStr(rt, a[2]);
  const std::int32_t start = given(a, 3) ? intArg(rt, a[3]) : 1;
  const std::int32_t count = given(a, 4) ? intArg(rt, a[4]) : -1;
  const bool text = textCompare(rt, a, 5);
  if (start < 1 || count < -1) raise(rt::kInvalidProcedureCall);
  if (static_cast<size_t>(start) > s.size()) return Variant::str("");
  const std::string src = s.substr(static_cast<size_t>(start - 1));
  if (find.empty() || count == 0) return Variant::str(src);
  const std::string hay = text ? lowerText(src) : src;
  const std::string needle = text ? lowerText(find) : find;
  std::string out;
  size_t pos = 0;
  std::int32_t done = 0;
  while (count < 0 || done < count) {
    const size_t p = hay.find(needle, pos);
    if (p == std::string::npos) break;
    out.append(src, pos, p - pos);
    out += repl;
    pos = p + needle.size();
    ++done;
  }
  out.append(src, pos, std::string::npos);
  return Variant::str(std::move(out));
}

Variant fnSplit(Runtime& rt, Args& a) {
  for (const auto& v : a)
    if (v.isNull()) raise(rt::kInvalidUseOfNull);
  const std::string s = toStr(rt, a[0]);
  const std::string delim = given(a, 1) ? toStr(rt, a[1]) : " ";
  const std::int32_t count = given(a, 2) ? intArg(rt, a[2]) : -1;
  const bool text = textCompare(rt, a, 3);
  if (count < -1) raise(rt::kInvalidProcedureCall);
  std::vector<Variant> parts;
  if (s.empty() || count == 0) return Variant::array(ArrayData::ofValues({}));
  if (delim.empty()) return Variant::array(ArrayData::ofValues({Variant::str(s)}));
  const std::string hay = text ? lowerText(s) : s;
  const std::string needle = text ? lowerText(delim) : delim;
  size_t pos = 0;
  while (count < 0 || static_cast<std::int32_t>(parts.size()) < count - 1) {
    const size_t p = hay.find(needle, pos);
    if (p == std::string::npos) break;
    parts.push_back(Variant::str(s.substr(pos, p - pos)));
    pos = p + needle.size();
  }
  parts.push_back(Variant::str(s.substr(pos)));
  return Variant::array(ArrayData::ofValues(std::move(parts)));
}

Variant fnJoin(Runtime& rt, Args& a) {
  if (a[0].isNull()) raise(rt::kInvalidUseOfNull);
  if (!a[0].isArray()) raise(rt::kTypeMismatch);
  const ArrayData& arr = *a[0].arrValue();
  if (arr.allocated() && arr.upper.size() != 1) raise(rt::kTypeMismatch);
  const std::string delim = given(a, 1) ? strArg(rt, a[1]) : " ";
  std::string out;
  for (size_t i = 0; i < arr.items.size(); ++i) {
    const Variant& v = arr.items[i];
    if (v.isNull() || v.isArray()) raise(rt::kTypeMismatch);
    if (i) out += delim;
    out += toStr(rt, v);
  }
  return Variant::str(std::move(out));
}

Variant fnFilter(Runtime& rt, Args& a) {
  if (a[0].isNull()) raise(rt::kInvalidUseOfNull);
  if (!a[0].isArray()) raise(rt::kTypeMismatch);
  const std::string value = strArg(rt, a[1]);
  const bool include = given(a, 2) ? toBool(rt, a[2]) : true;
  const bool text = textCompare(rt, a, 3);
  std::vector<Variant> out;
  for (const Variant& v : a[0].arrValue()->items) {
    const std::string s = toStr(rt, v);
    const bool has = findText(s, value, 0, text) != std::string::npos;
    if (has == include) out.push_back(Variant::str(s));
  }
  return Variant::array(ArrayData::ofValues(std::move(out)));
}

Variant fnAsc(Runtime& rt, Args& a) {
  if (a[0].isNull()) raise(rt::kInvalidUseOfNull);
  std::string hold;
  const std::string& s = textOf(rt, a[0], hold);
  if (s.empty()) raise(rt::kInvalidProcedureCall);
  return Variant::integer(static_cast<unsigned char>(s[0]));
}

// AscW: the code point of a UTF-8 sequence at the start, else the byte.
Variant fnAscW(Runtime& rt, Args& a) {
  const std::string s = strArg(rt, a[0]);
  if (s.empty()) raise(rt::kInvalidProcedureCall);
  const auto b0 = static_cast<unsigned char>(s[0]);
  std::int32_t cp = b0;
  if (b0 >= 0xC0 && b0 < 0xF0) {
    const size_t n = b0 >= 0xE0 ? 3 : 2;
    if (s.size() >= n) {
      cp = b0 & (n == 3 ? 0x0F : 0x1F);
      for (size_t i = 1; i < n; ++i) cp = (cp << 6) | (static_cast<unsigned char>(s[i]) & 0x3F);
    }
  }
  return Variant::integer(static_cast<std::int16_t>(cp));
}

Variant fnChr(Runtime& rt, Args& a) {
  const std::int32_t n = intArg(rt, a[0]);
  if (n < 0 || n > 255) raise(rt::kInvalidProcedureCall);
  return Variant::str(std::string(1, static_cast<char>(n)));
}

// ChrW: codes up to 255 are one byte, like Chr; higher codes are written as UTF-8.
Variant fnChrW(Runtime& rt, Args& a) {
  std::int32_t n = intArg(rt, a[0]);
  if (n < -32768 || n > 65535) raise(rt::kInvalidProcedureCall);
  if (n < 0) n += 65536;
  std::string s;
  if (n < 256) s += static_cast<char>(n);
  else if (n < 0x800) s += static_cast<char>(0xC0 | (n >> 6)), s += static_cast<char>(0x80 | (n & 0x3F));
  else
    s += static_cast<char>(0xE0 | (n >> 12)), s += static_cast<char>(0x80 | ((n >> 6) & 0x3F)),
        s += static_cast<char>(0x80 | (n & 0x3F));
  return Variant::str(std::move(s));
}

// Escape: letters, digits and @*_+-./ stay; other bytes become %XX.
Variant fnEscape(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const std::string s = toStr(rt, a[0]);
  static const char* hex = "0123456789ABCDEF";
  std::string out;
  for (unsigned char c : s) {
    if (std::isalnum(c) || std::strchr("@*_+-./", c)) {
      out += static_cast<char>(c);
    } else {
      out += '%';
      out += hex[c >> 4];
      out += hex[c & 15];
    }
  }
  return Variant::str(std::move(out));
}

// Unescape: %XX and %uXXXX (codes above 255 as UTF-8, like ChrW); malformed escapes stay.
Variant fnUnescape(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const std::string s = toStr(rt, a[0]);
  auto hexAt = [&](size_t i, size_t n, std::int32_t& v) {
    if (i + n > s.size()) return false;
    v = 0;
    for (size_t k = i; k < i + n; ++k) {
      if (!std::isxdigit(static_cast<unsigned char>(s[k]))) return false;
      v = v * 16 + (std::isdigit(static_cast<unsigned char>(s[k])) ? s[k] - '0' : (s[k] | 0x20) - 'a' + 10);
    }
    return true;
  };
  std::string out;
  for (size_t i = 0; i < s.size(); ++i) {
    std::int32_t v;
    if (s[i] == '%' && i + 1 < s.size() && (s[i + 1] == 'u' || s[i + 1] == 'U') && hexAt(i + 2, 4, v)) {
      Variant code = Variant::longv(v);
      const ArgRefs refs{&code};
      ArgList list(refs);
      out += fnChrW(rt, list).strValue();
      i += 5;
    } else if (s[i] == '%' && hexAt(i + 1, 2, v)) {
      out += static_cast<char>(v);
      i += 2;
    } else {
      out += s[i];
    }
  }
  return Variant::str(std::move(out));
}

// InStr counts its own arguments: its optional start comes before the required strings.
const Builtin kRows[] = {
    {"Len", 1, 1, fnLen},         {"Left", 2, 2, fnLeft},         {"Right", 2, 2, fnRight},
    {"Mid", 2, 3, fnMid},         {"InStr", 0, 4, fnInStr},       {"InStrRev", 2, 4, fnInStrRev},
    {"LCase", 1, 1, fnLCase},     {"UCase", 1, 1, fnUCase},       {"LTrim", 1, 1, fnLTrim},
    {"RTrim", 1, 1, fnRTrim},     {"Trim", 1, 1, fnTrim},         {"Space", 1, 1, fnSpace},
    {"String", 2, 2, fnString},   {"StrReverse", 1, 1, fnStrReverse}, {"StrComp", 2, 3, fnStrComp},
    {"Replace", 3, 6, fnReplace}, {"Split", 1, 4, fnSplit},       {"Join", 1, 2, fnJoin},
    {"Filter", 2, 4, fnFilter},   {"Asc", 1, 1, fnAsc},           {"AscW", 1, 1, fnAscW},
    {"AscB", 1, 1, fnAsc},        {"Chr", 1, 1, fnChr},           {"ChrW", 1, 1, fnChrW},
    {"ChrB", 1, 1, fnChr},        {"Escape", 1, 1, fnEscape},     {"Unescape", 1, 1, fnUnescape},
};
}  // namespace

Table stringFunctions() { return {kRows, std::size(kRows)}; }

}  // namespace lathwick::vbs::builtin

#include "extend/vbscript/convert.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "extend/vbscript/date_time.h"
#include "extend/vbscript/errors.h"
#include "extend/vbscript/runtime.h"
#include "platform/bytes.h"
#include "platform/number_text.h"

namespace lathwick::vbs {

double bankersRound(double v) { return std::nearbyint(v); }

std::string numberText(double v, bool single) {
  if (v == 0) return "0";
  const int digits = single ? 7 : 15;
  char buf[64];
  std::snprintf(buf, sizeof buf, "%.*E", digits - 1, v);
  // buf: [-]d.ddddddE[+-]xx
  std::string s = buf;
  const size_t ePos = s.find('E');
  std::string mant = s.substr(0, ePos);
  const int exp10 = std::atoi(s.c_str() + ePos + 1);
  const bool neg = mant[0] == '-';
  if (neg) mant.erase(0, 1);
  std::string sig;
  for (char c : mant)
    if (c != '.') sig += c;
  while (sig.size() > 1 && sig.back() == '0') sig.pop_back();
  const int decimals = static_cast<int>(sig.size()) - 1 - exp10;
  std::string out;
  if (exp10 >= digits || decimals > digits) {
    out = sig.substr(0, 1);
    if (sig.size() > 1) out += "." + sig.substr(1);
    char e[16];
    std::snprintf(e, sizeof e, "E%c%02d", exp10 < 0 ? '-' : '+', std::abs(exp10));
    out += e;
  } else if (exp10 < 0) {
    out = "0." + std::string(static_cast<size_t>(-exp10 - 1), '0') + sig;
  } else {
    if (static_cast<int>(sig.size()) <= exp10 + 1) {
      out = sig + std::string(static_cast<size_t>(exp10 + 1 - static_cast<int>(sig.size())), '0');
    } else {
      out = sig.substr(0, static_cast<size_t>(exp10 + 1)) + "." + sig.substr(static_cast<size_t>(exp10 + 1));
    }
  }
  return neg ? "-" + out : out;
}

Variant valueOf(Runtime& rt, const Variant& v) {
  if (!v.isObject()) return v;
  Object* o = v.objValue().get();
  if (!o) raise(rt::kObjectVariableNotSet);
  const int id = o->defaultMember();
  if (id < 0) raise(rt::kObjectDoesntSupportThisPropertyOrMethod);
  Variant r = o->invoke(rt, id, InvokeKind::Get, {}, false);
  if (r.isObject()) return valueOf(rt, r);
  return r;
}

double toDouble(Runtime& rt, const Variant& v) {
  switch (v.type()) {
    case VT::Empty: return 0;
    case VT::Null: raise(rt::kInvalidUseOfNull);
    case VT::String: {
      auto d = parseNumberText(v.strValue());
      if (!d) raise(rt::kTypeMismatch);
      return *d;
    }
    case VT::Object: return toDouble(rt, valueOf(rt, v));
    case VT::Array: raise(rt::kTypeMismatch);
    default: return v.number();
  }
}

std::int32_t toLong(Runtime& rt, const Variant& v) {
  if (v.isIntegral()) return v.intValue();
  const double d = bankersRound(toDouble(rt, v));
  if (!(d >= -2147483648.0 && d <= 2147483647.0)) raise(rt::kOverflow);
  return static_cast<std::int32_t>(d);
}

std::int32_t toInteger(Runtime& rt, const Variant& v) {
  const std::int32_t n = toLong(rt, v);
  if (n < -32768 || n > 32767) raise(rt::kOverflow);
  return n;
}

bool toBool(Runtime& rt, const Variant& v) {
  switch (v.type()) {
    case VT::Empty: return false;
    case VT::Null: raise(rt::kInvalidUseOfNull);
    case VT::String: {
      std::string_view s = v.strValue();
      if (equalsIgnoreCase(s, "True") || equalsIgnoreCase(s, "#TRUE#")) return true;
      if (equalsIgnoreCase(s, "False") || equalsIgnoreCase(s, "#FALSE#")) return false;
      auto d = parseNumberText(s);
      if (!d) raise(rt::kTypeMismatch);
      return *d != 0;
    }
    case VT::Object: return toBool(rt, valueOf(rt, v));
    case VT::Array: raise(rt::kTypeMismatch);
    default: return v.number() != 0;
  }
}

std::string plainText(const Variant& v) {
  switch (v.type()) {
    case VT::Empty: return {};
    case VT::String: return v.strValue();
    case VT::Boolean: return v.boolValue() ? "True" : "False";
    case VT::Integer:
    case VT::Long:
    case VT::Byte: return std::to_string(v.intValue());
    case VT::Double: return numberText(v.dblValue());
    case VT::Currency: return numberText(v.dblValue());
    case VT::Single: return numberText(v.dblValue(), true);
    case VT::Date: return formatDate(v.dblValue());
    default: return {};
  }
}

std::string toStr(Runtime& rt, const Variant& v) {
  switch (v.type()) {
    case VT::Null: raise(rt::kInvalidUseOfNull);
    case VT::Object: return toStr(rt, valueOf(rt, v));
    case VT::Array: raise(rt::kTypeMismatch);
    default: return plainText(v);
  }
}

double toDate(Runtime& rt, const Variant& v) {
  switch (v.type()) {
    case VT::String: {
      if (auto d = parseDateText(v.strValue())) return *d;
      if (auto n = parseNumberText(v.strValue())) return *n;
      raise(rt::kTypeMismatch);
    }
    default: return toDouble(rt, v);
  }
}

bool truthOf(Runtime& rt, const Variant& v) {
  switch (v.type()) {
    case VT::Boolean:
    case VT::Integer:
    case VT::Long:
    case VT::Byte: return v.intValue() != 0;
    case VT::Null:
    case VT::Empty: return false;
    case VT::Object: return truthOf(rt, valueOf(rt, v));
    default: return toBool(rt, v);
  }
}

Variant toNumeric(Runtime& rt, const Variant& v) {
  switch (v.type()) {
    case VT::Empty: return Variant::integer(0);
    case VT::Boolean: return Variant::integer(v.intValue());
    case VT::String: {
      auto d = parseNumberText(v.strValue());
      if (!d) raise(rt::kTypeMismatch);
      return Variant::dbl(*d);
    }
    case VT::Object: return toNumeric(rt, valueOf(rt, v));
    case VT::Array: raise(rt::kTypeMismatch);
    default: return v;
  }
}

}  // namespace lathwick::vbs

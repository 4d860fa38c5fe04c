#include "extend/vbscript/operators.h"

#include <cmath>
#include <cstdint>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/runtime.h"
#include "extend/vbscript/errors.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
// Rank of numeric subtypes for result typing.
int rank(VT t) {
  switch (t) {
    case VT::Byte: return 0;
    case VT::Integer: return 1;
    case VT::Long: return 2;
    case VT::Single: return 3;
    case VT::Currency: return 4;
    default: return 5;  // Double
  }
}

Variant checkedDouble(double d) {
  if (std::isnan(d)) raise(rt::kInvalidProcedureCall);
  if (!std::isfinite(d)) raise(rt::kOverflow);
  return Variant::dbl(d);
}

// Integer result of the given rank, promoted upwards on overflow.
Variant integralResult(long long n, int r) {
  if (r == 0 && n >= 0 && n <= 255) return Variant::byte(static_cast<std::int32_t>(n));
  if (r <= 1 && n >= -32768 && n <= 32767) return Variant::integer(static_cast<std::int32_t>(n));
  if (n >= INT32_MIN && n <= INT32_MAX) return Variant::longv(static_cast<std::int32_t>(n));
  return Variant::dbl(static_cast<double>(n));
}

long long roundedInteger(Runtime& rt, const Variant& v) {
  if (v.isIntegral()) return v.intValue();
  const double d = bankersRound(toDouble(rt, v));
  if (!(d >= -2147483648.0 && d <= 2147483647.0)) raise(rt::kOverflow);
  return static_cast<long long>(d);
}
}  // namespace

Variant arith(Runtime& rt, BinOp op, const Variant& a0, const Variant& b0) {
  const Variant& a = a0.isObject() ? valueOf(rt, a0) : a0;
  const Variant& b = b0.isObject() ? valueOf(rt, b0) : b0;
  if (a.isNull() || b.isNull()) {
    if (a.isArray() || b.isArray()) raise(rt::kTypeMismatch);
    return Variant::null();
  }
  if (op == BinOp::Add) {
    if (a.isString() && b.isString()) return Variant::str(a.strValue() + b.strValue());
    if (a.isEmpty() && b.isString()) return b;
    if (b.isEmpty() && a.isString()) return a;
  }
  if (op == BinOp::IntDiv || op == BinOp::Mod) {
    const long long x = roundedInteger(rt, a), y = roundedInteger(rt, b);
    if (y == 0) raise(rt::kDivisionByZero);
    const long long r = op == BinOp::IntDiv ? x / y : x % y;
    auto small = [](const Variant& v) {
      return v.type() == VT::Integer || v.type() == VT::Byte || v.type() == VT::Boolean || v.isEmpty();
    };
    if (small(a) && small(b) && r >= -32768 && r <= 32767) return Variant::integer(static_cast<std::int32_t>(r));
    if (r < INT32_MIN || r > INT32_MAX) raise(rt::kOverflow);
    return Variant::longv(static_cast<std::int32_t>(r));
  }
  const Variant x = toNumeric(rt, a), y = toNumeric(rt, b);
  if (op == BinOp::Pow) return checkedDouble(std::pow(x.number(), y.number()));
  if (op == BinOp::Div) {
    const double d = y.number();
    if (d == 0) raise(x.number() == 0 ? rt::kOverflow : rt::kDivisionByZero);
    const double q = x.number() / d;
    if (x.type() != VT::Double && y.type() != VT::Double && (x.type() == VT::Single || y.type() == VT::Single) &&
        rank(x.type()) <= 3 && rank(y.type()) <= 3)
      return Variant::single(q);
    return checkedDouble(q);
  }
  const bool aDate = x.type() == VT::Date, bDate = y.type() == VT::Date;
  if (aDate || bDate) {
    const double r = op == BinOp::Add ? x.number() + y.number()
                     : op == BinOp::Sub ? x.number() - y.number()
                                        : x.number() * y.number();
    if (op == BinOp::Sub && aDate && bDate) return checkedDouble(r);
    if (op == BinOp::Mul) return checkedDouble(r);
    return Variant::date(r);
  }
  if (x.isIntegral() && y.isIntegral()) {
    const long long p = x.intValue(), q = y.intValue();
    const long long r = op == BinOp::Add ? p + q : op == BinOp::Sub ? p - q : p * q;
    int rk = std::max(rank(x.type() == VT::Boolean ? VT::Integer : x.type()),
                      rank(y.type() == VT::Boolean ? VT::Integer : y.type()));
    return integralResult(r, rk);
  }
  const double p = x.number(), q = y.number();
  const double r = op == BinOp::Add ? p + q : op == BinOp::Sub ? p - q : p * q;
  const int rk = std::max(rank(x.type()), rank(y.type()));
  if (rk == 3 && x.type() != VT::Long && y.type() != VT::Long) {
    if (!std::isfinite(static_cast<float>(r))) raise(rt::kOverflow);
    return Variant::single(r);
  }
  return checkedDouble(r);
}

Variant concat(Runtime& rt, const Variant& a0, const Variant& b0) {
  if (a0.isNull() && b0.isNull()) return Variant::null();
  const Variant& a = a0.isObject() ? valueOf(rt, a0) : a0;
  const Variant& b = b0.isObject() ? valueOf(rt, b0) : b0;
  if (a.isArray() || b.isArray()) raise(rt::kTypeMismatch);
  std::string s = plainText(a);
  const std::string tail = plainText(b);
  rt.noteStringGrowth(s.size() + tail.size(), s.size() + tail.size());
  s += tail;
  return Variant::str(std::move(s));
}

Variant negate(Runtime& rt, const Variant& a0) {
  const Variant& a = a0.isObject() ? valueOf(rt, a0) : a0;
  switch (a.type()) {
    case VT::Null: return a;
    case VT::Empty: return Variant::integer(0);
    case VT::Boolean:
    case VT::Integer: return integralResult(-static_cast<long long>(a.intValue()), 1);
    case VT::Byte: return Variant::integer(-a.intValue());
    case VT::Long: return integralResult(-static_cast<long long>(a.intValue()), 2);
    case VT::Single: return Variant::single(-a.dblValue());
    case VT::Date: return Variant::date(-a.dblValue());
    case VT::Double: return Variant::dbl(-a.dblValue());
    default: return Variant::dbl(-toDouble(rt, a));
  }
}

namespace {
// Operand of a bitwise operator: 0 Boolean, 1 Integer (incl. Byte), 2 Long; value in `n`.
int bitOperand(Runtime& rt, const Variant& v, std::int32_t& n) {
  switch (v.type()) {
    case VT::Boolean: n = v.intValue(); return 0;
    case VT::Integer:
    case VT::Byte: n = v.intValue(); return 1;
    case VT::Long: n = v.intValue(); return 2;
    case VT::Empty: n = 0; return 2;
    case VT::String: {
      const std::string& s = v.strValue();
      if (s.size() == 4 || s.size() == 5) {
        if (equalsIgnoreCase(s, "True")) { n = -1; return 0; }
        if (equalsIgnoreCase(s, "False")) { n = 0; return 0; }
      }
      n = toLong(rt, v);
      return 2;
    }
    default: n = toLong(rt, v); return 2;
  }
}
Variant bitResult(std::int32_t n, int kind) {
  if (kind == 0) return Variant::boolean(n != 0);
  if (kind == 1) return Variant::integer(static_cast<std::int16_t>(n));
  return Variant::longv(n);
}
}  // namespace

Variant notOp(Runtime& rt, const Variant& a0) {
  const Variant& a = a0.isObject() ? valueOf(rt, a0) : a0;
  if (a.isNull()) return a;
  std::int32_t n;
  const int k = bitOperand(rt, a, n);
  return bitResult(~n, k);
}

Variant logical(Runtime& rt, BinOp op, const Variant& a0, const Variant& b0) {
  const Variant& a = a0.isObject() ? valueOf(rt, a0) : a0;
  const Variant& b = b0.isObject() ? valueOf(rt, b0) : b0;
  if (a.isNull() || b.isNull()) {
    if (a.isNull() && b.isNull()) return Variant::null();
    const Variant& other = a.isNull() ? b : a;
    std::int32_t n;
    const int k = bitOperand(rt, other, n);
    switch (op) {
      case BinOp::And:
        if (n == 0) return bitResult(0, k);
        return Variant::null();
      case BinOp::Or:
        if (n == -1) return bitResult(-1, k);
        return Variant::null();
      case BinOp::Imp:
        if (a.isNull()) return n == -1 ? bitResult(-1, k) : Variant::null();
        return n == 0 ? bitResult(-1, k) : Variant::null();
      default: return Variant::null();
    }
  }
  std::int32_t x, y;
  const int kx = bitOperand(rt, a, x), ky = bitOperand(rt, b, y);
  const int k = (kx == 0 && ky == 0) ? 0 : std::max(std::max(kx, ky), 1);
  std::int32_t r = 0;
  switch (op) {
    case BinOp::And: r = x & y; break;
    case BinOp::Or: r = x | y; break;
    case BinOp::Xor: r = x ^ y; break;
    case BinOp::Eqv: r = ~(x ^ y); break;
    case BinOp::Imp: r = ~x | y; break;
    default: break;
  }
  return bitResult(r, k);
}

bool sameObject(const Variant& a, const Variant& b) {
  if (!a.isObject() || !b.isObject()) raise(rt::kObjectRequired);
  return a.objValue() == b.objValue();
}

namespace {
int cmpNum(double x, double y) { return x < y ? -1 : (x > y ? 1 : 0); }
int cmpStr(const std::string& x, const std::string& y) {
  const int c = x.compare(y);
  return c < 0 ? -1 : (c > 0 ? 1 : 0);
}
bool numberLike(const Variant& v) { return v.isNumeric(); }
}  // namespace

int compare(Runtime& rt, const Variant& a0, const Variant& b0, bool aLit, bool bLit) {
  const Variant& a = a0.isObject() ? valueOf(rt, a0) : a0;
  const Variant& b = b0.isObject() ? valueOf(rt, b0) : b0;
  if (a.isArray() || b.isArray()) raise(rt::kTypeMismatch);
  if (a.isNull() || b.isNull()) return 2;
  if (a.isEmpty() && b.isEmpty()) return 0;
  if (numberLike(a) && numberLike(b)) return cmpNum(a.number(), b.number());
  if (a.isString() && b.isString()) return cmpStr(a.strValue(), b.strValue());
  if (a.isEmpty()) return cmpStr("", b.strValue());
  if (b.isEmpty()) return cmpStr(a.strValue(), "");
  // One string, one number.
  const bool aStr = a.isString();
  const Variant& s = aStr ? a : b;
  const Variant& n = aStr ? b : a;
  const bool numLit = aStr ? bLit : aLit;
  int r;
  if (n.type() == VT::Boolean) {
    r = cmpStr(s.strValue(), n.boolValue() ? "True" : "False");
  } else if (numLit) {
    auto d = parseNumberText(s.strValue());
    if (!d) raise(rt::kTypeMismatch);
    r = cmpNum(*d, n.number());
  } else if (n.type() == VT::Integer || n.type() == VT::Long) {
    r = 1;  // the string is greater, never equal
  } else {
    r = cmpStr(s.strValue(), plainText(n));
  }
  return aStr ? r : -r;
}

Variant comparison(Runtime& rt, BinOp op, const Variant& a, const Variant& b, bool aLit, bool bLit) {
  if (op == BinOp::Is) return Variant::boolean(sameObject(a, b));
  const int c = compare(rt, a, b, aLit, bLit);
  if (c == 2) return Variant::null();
  bool r = false;
  switch (op) {
    case BinOp::Eq: r = c == 0; break;
    case BinOp::Ne: r = c != 0; break;
    case BinOp::Lt: r = c < 0; break;
    case BinOp::Gt: r = c > 0; break;
    case BinOp::Le: r = c <= 0; break;
    case BinOp::Ge: r = c >= 0; break;
    default: break;
  }
  return Variant::boolean(r);
}

}  // namespace lathwick::vbs

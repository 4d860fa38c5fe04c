// Math functions.
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "extend/vbscript/builtins.h"

namespace lathwick::vbs::builtin {

namespace {
Variant number(Runtime& rt, const Variant& v) { return toNumeric(rt, v); }

Variant fnAbs(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const Variant n = number(rt, a[0]);
  switch (n.type()) {
    case VT::Integer: return Variant::fitted(std::llabs(n.intValue()));
    case VT::Long: return n.intValue() == INT32_MIN ? Variant::dbl(2147483648.0) : Variant::longv(std::abs(n.intValue()));
    case VT::Byte: return n;
    case VT::Single: return Variant::single(std::fabs(n.dblValue()));
    case VT::Date: return Variant::date(std::fabs(n.dblValue()));
    default: return Variant::dbl(std::fabs(n.number()));
  }
}

Variant fnSgn(Runtime& rt, Args& a) {
  if (a[0].isNull()) raise(rt::kInvalidUseOfNull);
  const double d = toDouble(rt, a[0]);
  return Variant::integer(d > 0 ? 1 : (d < 0 ? -1 : 0));
}

Variant rounding(Runtime& rt, const Variant& v, double (*fn)(double)) {
  if (v.isNull()) return Variant::null();
  const Variant n = number(rt, v);
  if (n.isIntegral()) return n;
  if (n.type() == VT::Single) return Variant::single(fn(n.dblValue()));
  if (n.type() == VT::Date) return Variant::date(fn(n.dblValue()));
  return Variant::dbl(fn(n.number()));
}
Variant fnInt(Runtime& rt, Args& a) { return rounding(rt, a[0], [](double d) { return std::floor(d); }); }
Variant fnFix(Runtime& rt, Args& a) { return rounding(rt, a[0], [](double d) { return std::trunc(d); }); }

Variant fnRound(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const std::int32_t digits = given(a, 1) ? intArg(rt, a[1]) : 0;
  if (digits < 0) raise(rt::kInvalidProcedureCall);
  const Variant n = number(rt, a[0]);
  if (n.isIntegral()) return n;
  const double scale = std::pow(10.0, digits);
  double r = bankersRound(n.number() * scale) / scale;
  if (!std::isfinite(r)) r = n.number();
  if (n.type() == VT::Single) return Variant::single(r);
  return Variant::dbl(r);
}

Variant checked(double d) {
  if (std::isnan(d)) raise(rt::kInvalidProcedureCall);
  if (!std::isfinite(d)) raise(rt::kOverflow);
  return Variant::dbl(d);
}

Variant fnSqr(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const double d = toDouble(rt, a[0]);
  if (d < 0) raise(rt::kInvalidProcedureCall);
  return Variant::dbl(std::sqrt(d));
}
Variant fnLog(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const double d = toDouble(rt, a[0]);
  if (d <= 0) raise(rt::kInvalidProcedureCall);
  return Variant::dbl(std::log(d));
}
Variant unaryMath(Runtime& rt, const Variant& v, double (*fn)(double)) {
  if (v.isNull()) return Variant::null();
  return checked(fn(toDouble(rt, v)));
}
Variant fnExp(Runtime& rt, Args& a) { return unaryMath(rt, a[0], [](double d) { return std::exp(d); }); }
Variant fnSin(Runtime& rt, Args& a) { return unaryMath(rt, a[0], [](double d) { return std::sin(d); }); }
Variant fnCos(Runtime& rt, Args& a) { return unaryMath(rt, a[0], [](double d) { return std::cos(d); }); }
Variant fnTan(Runtime& rt, Args& a) { return unaryMath(rt, a[0], [](double d) { return std::tan(d); }); }
Variant fnAtn(Runtime& rt, Args& a) { return unaryMath(rt, a[0], [](double d) { return std::atan(d); }); }

Variant radix(Runtime& rt, const Variant& v, const char* fmt) {
  if (v.isNull()) return Variant::null();
  if (v.isEmpty()) return Variant::str("0");
  const Variant n = number(rt, v);
  std::int32_t x;
  if (n.isIntegral()) x = n.intValue();
  else {
    const double d = bankersRound(n.number());
    if (!(d >= -2147483648.0 && d <= 2147483647.0)) raise(rt::kOverflow);
    x = static_cast<std::int32_t>(d);
  }
  // Integer-typed negatives show as 16-bit patterns, others as 32-bit.
  const bool small = (n.type() == VT::Integer || n.type() == VT::Byte || n.type() == VT::Boolean);
  const std::uint32_t bits = small && x < 0 ? static_cast<std::uint16_t>(x) : static_cast<std::uint32_t>(x);
  char buf[24];
  std::snprintf(buf, sizeof buf, fmt, bits);
  return Variant::str(buf);
}
Variant fnHex(Runtime& rt, Args& a) { return radix(rt, a[0], "%X"); }
Variant fnOct(Runtime& rt, Args& a) { return radix(rt, a[0], "%o"); }

Variant fnRnd(Runtime& rt, Args& a) {
  Runtime::RandomState& s = rt.random;
  double n = given(a, 0) ? toDouble(rt, a[0]) : 1.0;
  if (n == 0) return Variant::single(s.last);
  if (n < 0) {
    const float f = static_cast<float>(n);
    std::uint32_t bits;
    std::memcpy(&bits, &f, sizeof bits);
    s.seed = (bits + (bits >> 24)) & 0xFFFFFF;
  }
  s.seed = static_cast<std::uint32_t>((static_cast<std::uint64_t>(s.seed) * 1140671485u + 12820163u) & 0xFFFFFF);
  s.last = static_cast<double>(s.seed) / 16777216.0;
  return Variant::single(s.last);
}

Variant fnRandomize(Runtime& rt, Args& a) {
  Runtime::RandomState& s = rt.random;
  double n;
  if (given(a, 0)) n = toDouble(rt, a[0]);
  else n = static_cast<double>(std::chrono::steady_clock::now().time_since_epoch().count() % 86400000) / 1000.0;
  std::uint64_t bits;
  std::memcpy(&bits, &n, sizeof bits);
  const std::uint32_t hi = static_cast<std::uint32_t>(bits >> 32);
  const std::uint32_t mix = ((hi & 0xFFFF) ^ (hi >> 16)) << 8;
  s.seed = (s.seed & 0xFF) | (mix & 0xFFFF00);
  return {};
}

const Builtin kRows[] = {
    {"Abs", 1, 1, fnAbs}, {"Sgn", 1, 1, fnSgn}, {"Int", 1, 1, fnInt}, {"Fix", 1, 1, fnFix},
    {"Round", 1, 2, fnRound}, {"Sqr", 1, 1, fnSqr}, {"Log", 1, 1, fnLog}, {"Exp", 1, 1, fnExp},
    {"Sin", 1, 1, fnSin}, {"Cos", 1, 1, fnCos}, {"Tan", 1, 1, fnTan}, {"Atn", 1, 1, fnAtn},
    {"Hex", 1, 1, fnHex}, {"Oct", 1, 1, fnOct}, {"Rnd", 0, 1, fnRnd}, {"Randomize", 0, 1, fnRandomize},
};
}  // namespace

Table mathFunctions() { return {kRows, std::size(kRows)}; }

}  // namespace lathwick::vbs::builtin

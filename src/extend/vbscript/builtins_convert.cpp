// Conversion functions, type inspection and array functions.
#include <cmath>

#include "extend/vbscript/builtins.h"
#include "extend/vbscript/date_time.h"

namespace lathwick::vbs::builtin {

namespace {
// Shared rules of the C* functions: "" and other text that is no number -> 13, Null -> 94.
const Variant& convertible(Runtime& rt, const Variant& v, Variant& hold) {
  if (v.isNull()) raise(rt::kInvalidUseOfNull);
  if (v.isObject()) {
    hold = valueOf(rt, v);
    return convertible(rt, hold, hold);
  }
  if (v.isArray()) raise(rt::kTypeMismatch);
  return v;
}

Variant fnCBool(Runtime& rt, Args& a) {
  Variant h;
  return Variant::boolean(toBool(rt, convertible(rt, a[0], h)));
}
Variant fnCByte(Runtime& rt, Args& a) {
  Variant h;
  const double d = bankersRound(toDouble(rt, convertible(rt, a[0], h)));
  if (d < 0 || d > 255) raise(rt::kOverflow);
  return Variant::byte(static_cast<std::int32_t>(d));
}
Variant fnCInt(Runtime& rt, Args& a) {
  Variant h;
  return Variant::integer(toInteger(rt, convertible(rt, a[0], h)));
}
Variant fnCLng(Runtime& rt, Args& a) {
  Variant h;
  return Variant::longv(toLong(rt, convertible(rt, a[0], h)));
}
Variant fnCSng(Runtime& rt, Args& a) {
  Variant h;
  const double d = toDouble(rt, convertible(rt, a[0], h));
  if (std::fabs(d) > 3.402823466e38) raise(rt::kOverflow);
  return Variant::single(d);
}
Variant fnCDbl(Runtime& rt, Args& a) {
  Variant h;
  return Variant::dbl(toDouble(rt, convertible(rt, a[0], h)));
}
Variant fnCCur(Runtime& rt, Args& a) {
  Variant h;
  const double d = toDouble(rt, convertible(rt, a[0], h));
  if (std::fabs(d) > 922337203685477.0) raise(rt::kOverflow);
  Variant r = Variant::dbl(bankersRound(d * 10000.0) / 10000.0);
  return r;
}
Variant fnCDate(Runtime& rt, Args& a) {
  Variant h;
  const double d = toDate(rt, convertible(rt, a[0], h));
  if (d < -657434.0 || d >= 2958466.0) raise(rt::kOverflow);
  return Variant::date(d);
}
Variant fnCStr(Runtime& rt, Args& a) {
  Variant h;
  return Variant::str(toStr(rt, convertible(rt, a[0], h)));
}

Variant fnIsArray(Runtime&, Args& a) { return Variant::boolean(a[0].isArray()); }
Variant fnIsEmpty(Runtime&, Args& a) { return Variant::boolean(a[0].isEmpty()); }
Variant fnIsNull(Runtime&, Args& a) { return Variant::boolean(a[0].isNull()); }
Variant fnIsObject(Runtime&, Args& a) { return Variant::boolean(a[0].isObject()); }

Variant fnIsNumeric(Runtime& rt, Args& a) {
  Variant v = a[0];
  if (v.isObject()) {
    if (!v.objValue() || v.objValue()->defaultMember() < 0) return Variant::boolean(false);
    try {
      v = valueOf(rt, v);
    } catch (const ScriptError&) {
      return Variant::boolean(false);
    }
  }
  switch (v.type()) {
    case VT::String: return Variant::boolean(parseNumberText(v.strValue()).has_value());
    case VT::Null:
    case VT::Array:
    case VT::Date:
    case VT::Object: return Variant::boolean(false);
    default: return Variant::boolean(true);
  }
}

Variant fnIsDate(Runtime&, Args& a) {
  if (a[0].type() == VT::Date) return Variant::boolean(true);
  if (!a[0].isString()) return Variant::boolean(false);
  try {
    return Variant::boolean(parseDateText(a[0].strValue()).has_value());
  } catch (const ScriptError&) {
    return Variant::boolean(false);
  }
}

Variant fnVarType(Runtime&, Args& a) { return Variant::integer(static_cast<std::int32_t>(a[0].type())); }

Variant fnTypeName(Runtime&, Args& a) {
  const Variant& v = a[0];
  switch (v.type()) {
    case VT::Empty: return Variant::str("Empty");
    case VT::Null: return Variant::str("Null");
    case VT::Integer: return Variant::str("Integer");
    case VT::Long: return Variant::str("Long");
    case VT::Single: return Variant::str("Single");
    case VT::Double: return Variant::str("Double");
    case VT::Currency: return Variant::str("Currency");
    case VT::Date: return Variant::str("Date");
    case VT::String: return Variant::str("String");
    case VT::Boolean: return Variant::str("Boolean");
    case VT::Byte: return Variant::str("Byte");
    case VT::Array: return Variant::str("Variant()");
    case VT::Object: return Variant::str(v.objValue() ? v.objValue()->typeName() : "Nothing");
    default: return Variant::str("Error");
  }
}

Variant fnArray(Runtime&, Args& a) { return Variant::array(ArrayData::ofValues(a.values())); }

Variant bound(Runtime& rt, Args& a, bool upper) {
  if (!a[0].isArray()) raise(rt::kTypeMismatch);
  const ArrayData& arr = *a[0].arrValue();
  const std::int32_t dim = given(a, 1) ? intArg(rt, a[1]) : 1;
  if (!arr.allocated() || dim < 1 || static_cast<size_t>(dim) > arr.upper.size()) raise(rt::kSubscriptOutOfRange);
  return Variant::longv(upper ? arr.upper[static_cast<size_t>(dim - 1)] : 0);
}
Variant fnLBound(Runtime& rt, Args& a) { return bound(rt, a, false); }
Variant fnUBound(Runtime& rt, Args& a) { return bound(rt, a, true); }

const Builtin kRows[] = {
    {"CBool", 1, 1, fnCBool},       {"CByte", 1, 1, fnCByte},     {"CInt", 1, 1, fnCInt},
    {"CLng", 1, 1, fnCLng},         {"CSng", 1, 1, fnCSng},       {"CDbl", 1, 1, fnCDbl},
    {"CCur", 1, 1, fnCCur},         {"CDate", 1, 1, fnCDate},     {"CStr", 1, 1, fnCStr},
    {"IsArray", 1, 1, fnIsArray},   {"IsEmpty", 1, 1, fnIsEmpty}, {"IsNull", 1, 1, fnIsNull},
    {"IsObject", 1, 1, fnIsObject}, {"IsNumeric", 1, 1, fnIsNumeric}, {"IsDate", 1, 1, fnIsDate},
    {"VarType", 1, 1, fnVarType},   {"TypeName", 1, 1, fnTypeName}, {"Array", 0, 1 << 20, fnArray},
    {"LBound", 1, 2, fnLBound},     {"UBound", 1, 2, fnUBound},
};
}  // namespace

Table conversionFunctions() { return {kRows, std::size(kRows)}; }

}  // namespace lathwick::vbs::builtin

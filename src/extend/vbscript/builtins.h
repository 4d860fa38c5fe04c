#pragma once
// Built-in functions and constants: shared argument helpers and the per-group tables.
#include <cstdint>
#include <string>
#include <vector>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/errors.h"
#include "extend/vbscript/runtime.h"

namespace lathwick::vbs::builtin {

using Args = ArgList;

inline bool given(const Args& a, size_t i) { return a.size() > i && !a.omitted(i); }
// Integer argument rounded half to even; Null -> 94.
inline std::int32_t intArg(Runtime& rt, const Variant& v) {
  if (v.isNull()) raise(rt::kInvalidUseOfNull);
  return toLong(rt, v);
}
inline std::string strArg(Runtime& rt, const Variant& v) {
  if (v.isNull()) raise(rt::kInvalidUseOfNull);
  return toStr(rt, v);
}
// The text of a value without copying it when it already is a String (`hold` keeps a
// converted value alive).
inline const std::string& textOf(Runtime& rt, const Variant& v, std::string& hold) {
  if (v.isString()) return v.strValue();
  hold = toStr(rt, v);
  return hold;
}
// Compare mode argument: 0 binary, 1 or 2 text.
bool textCompare(Runtime& rt, const Args& a, size_t i);
std::string lowerText(std::string s);

struct Table {
  const Builtin* rows;
  size_t count;
};
Table stringFunctions();
Table mathFunctions();
Table conversionFunctions();
Table dateFunctions();
Table miscFunctions();
Table constantValues();

}  // namespace lathwick::vbs::builtin

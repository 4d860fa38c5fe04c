// Lookup of built-in functions and constants by name.
#include <unordered_map>

#include "extend/vbscript/builtins.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

namespace builtin {
bool textCompare(Runtime& rt, const Args& a, size_t i) {
  if (!given(a, i)) return false;
  const std::int32_t mode = intArg(rt, a[i]);
  if (mode < 0 || mode > 2) raise(rt::kInvalidProcedureCall);
  return mode != 0;
}

std::string lowerText(std::string s) {
  for (char& c : s) c = asciiLower(c);
  return s;
}
}  // namespace builtin

const Builtin* findBuiltin(std::string_view name) {
  static const std::unordered_map<std::string, const Builtin*> table = [] {
    std::unordered_map<std::string, const Builtin*> t;
    for (auto group : {builtin::stringFunctions(), builtin::mathFunctions(), builtin::conversionFunctions(),
                       builtin::dateFunctions(), builtin::miscFunctions(), builtin::constantValues()})
      for (size_t i = 0; i < group.count; ++i) t.emplace(lowerName(group.rows[i].name), &group.rows[i]);
    return t;
  }();
  auto it = table.find(lowerName(name));
  return it == table.end() ? nullptr : it->second;
}

}  // namespace lathwick::vbs

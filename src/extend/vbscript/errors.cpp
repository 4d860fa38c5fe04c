#include "extend/vbscript/errors.h"

namespace lathwick::vbs {

void raise(int number, const std::string& name) {
  throw ScriptError(number, errorText(number), kRuntimeSource, name);
}

std::string ErrorRecord::message() const {
  return name.empty() ? description : description + ": '" + name + "'";
}

}  // namespace lathwick::vbs

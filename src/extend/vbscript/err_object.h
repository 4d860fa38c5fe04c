#pragma once
// The script's Err object: the state of the last error, Clear and Raise.
#include "extend/vbscript/variant.h"

namespace lathwick::vbs {

ObjRef makeErrObject();

}  // namespace lathwick::vbs

#pragma once
// The built-in RegExp object (`New RegExp`) with its Matches, Match and SubMatches objects.
#include "extend/vbscript/variant.h"

namespace lathwick::vbs {

ObjRef makeRegExp();

}  // namespace lathwick::vbs

#pragma once
// The comment pair and block-skip text of a scheme, for reading a program as the colorizer
// colours it under that scheme.
#include <string>

#include "extend/toolpath/block_reader.h"
#include "format/scheme_record.h"

namespace lathwick::toolpath {

// commentOverride, when given, replaces the scheme's comment text (as --comment does).
ReaderOptions readerOptionsFor(const SchemeRecord& scheme, const std::string* commentOverride = nullptr);

}  // namespace lathwick::toolpath

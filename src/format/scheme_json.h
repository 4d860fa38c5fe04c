#pragma once
// A scheme record as JSON, every field of the stored layout, texts without their padding blanks.
#include <string>

#include "format/scheme_record.h"

namespace lathwick {

// Bytes 128-255 of the one-byte texts are written as the characters U+0080 to U+00FF.
std::string schemeJson(const SchemeRecord& record, long recordNumber);

}  // namespace lathwick

#pragma once
// The rich-text reader: turns RTF bytes into text, runs of character formats and the paragraph
// indent. It never fails: malformed input (unbalanced braces, a truncated file, absurd numbers,
// deep nesting) yields whatever text could be recovered.
#include <string>
#include <string_view>

#include "document/rtf_document.h"

namespace lathwick {

RtfDocument readRtf(std::string_view rtf);

// Reads a file as rich text; throws AppError when the file cannot be read.
RtfDocument readRtfFile(const std::string& path);

}  // namespace lathwick

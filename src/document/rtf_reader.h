#pragma once
// The rich-text reader: turns RTF bytes into text, runs of character formats and the paragraph
// indent. It never fails: malformed input (unbalanced braces, a truncated file, absurd numbers,
// deep nesting) yields whatever text could be recovered.
//
// A document can be read whole (RtfDocument) or streamed into an RtfTextSink; a file is then
// read a piece at a time, so neither the file nor the text is ever held whole by the reader.
// Both ways give the same text and runs.
#include <string>
#include <string_view>

#include "document/rtf_document.h"

namespace lathwick {

RtfDocument readRtf(std::string_view rtf);

// Reads a file as rich text; throws AppError when the file cannot be read.
RtfDocument readRtfFile(const std::string& path);

// The streamed forms: the text goes to `sink` as it is read; the result is the format table
// the runs refer to, complete. A file that does not start with "{\rtf" is read as plain text
// (one run in the empty format).
RtfFormatTable readRtf(std::string_view rtf, RtfTextSink& sink);
RtfFormatTable readRtfFile(const std::string& path, RtfTextSink& sink);

// For tests: the file read with a read buffer of `bufferBytes` (at least 2 * 65536), so that
// tokens meet the buffer's end in other places.
RtfFormatTable readRtfFile(const std::string& path, RtfTextSink& sink, std::size_t bufferBytes);

}  // namespace lathwick

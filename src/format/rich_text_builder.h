#pragma once
// Turns a scheme's style fields into the rich-text fragments pasted around program text: the
// document header (font table, colour table, paragraph defaults), one attribute string per
// style and the trailer. Numbers are written in decimal without a leading blank.
#include <cstdint>
#include <string>

#include "format/scheme_record.h"

namespace lathwick {

inline constexpr const char* kRtfTrailer = "\\par}";
inline constexpr const char* kSampleFileName = "sampletext.rtf";
inline constexpr int kTwipsPerIndentStep = 200;

// "\redR\greenG\blueB" of a colour stored red in the lowest byte; no separator.
std::string colourEntry(std::int32_t colour);

// The style's control words from its current font and colour numbers, ending in one blank,
// e.g. "\f1\fs20\cf3\b\i0\strike0\ul0 ".
std::string attributeString(const SchemeRecord& record, int set, int style);

// Recomputes the font and colour numbers, every attribute string, the header and the trailer
// of the record. Each text is held as its field reads back: cut to the field's width (512
// characters for the header, 256 for an attribute string), trailing blanks removed. Run it after every read and
// after every change to a style.
void buildSchemeFragments(SchemeRecord& record);

// The one-line preview of (set, style), written as the scheme editor shows it.
std::string sampleText(const SchemeRecord& record, int set, int style);
// Writes sampleText to "sampletext.rtf" in appFolder (through a temporary file); returns its path.
std::string writeSample(const SchemeRecord& record, int set, int style, const std::string& appFolder);

}  // namespace lathwick

#pragma once
// Reading a rich-text file on a helper thread while the caller puts what was read to use: the
// caller fills the text control with one piece while the next is being read, so a large file
// loads in about the time of the slower of the two instead of both together.
#include <string>

#include "document/rtf_document.h"

namespace lathwick {

// Reads `path` as readRtfFile does, and hands the same pieces to `sink`, in order, on the
// calling thread. Throws what readRtfFile throws (before any text when the file cannot be
// opened). When the sink throws, the reading stops and the exception goes on to the caller.
RtfFormatTable readRtfFileAhead(const std::string& path, RtfTextSink& sink);

}  // namespace lathwick

#pragma once
// The index kept beside each recovered text: what the document was (its file or "untitled", its
// caption, its line ends, plain or rich text) and when the copy was made, so that the copy can be
// offered by name and opened as the document it was. A small text file of "key=value" lines
// under a first line naming the format; values escape "\", CR and LF as "\\", "\r" and "\n".
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "document/line_convention.h"

namespace lathwick {

enum class RecoveredKind { Plain, Rich };

struct RecoveryIndex {
  std::string originalPath;  // empty: a document never saved ("untitled")
  std::string caption;       // the window's caption when the copy was made
  std::int64_t savedAt = 0;  // seconds since 1970 (UTC) of the copy
  LineEnds lineEnds = LineEnds::CrLf;  // what Save writes; the copy itself is as the window holds it
  RecoveredKind kind = RecoveredKind::Plain;
  std::string textFile;      // the copy's name in the same folder (no folder part)
  bool operator==(const RecoveryIndex&) const = default;
};

std::string encodeRecoveryIndex(const RecoveryIndex& index);
// Nothing for bytes that are not an index: another first line, no time, an unknown kind or a
// text name that is empty or reaches outside its folder. Unknown keys are passed over.
std::optional<RecoveryIndex> decodeRecoveryIndex(std::string_view bytes);

// The name a recovered document is offered under: its file's name, or for a document never saved
// its caption ("Untitled 2").
std::string recoveredDocumentName(const RecoveryIndex& index);

}  // namespace lathwick

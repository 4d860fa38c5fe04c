#include "document/recovery_index.h"

#include <charconv>

namespace lathwick {

namespace {
constexpr std::string_view kFirstLine = "Lathwick recovery 1";

std::string escaped(std::string_view value) {
  std::string out;
  for (const char c : value) {
    if (c == '\\') out += "\\\\";
    else if (c == '\r') out += "\\r";
    else if (c == '\n') out += "\\n";
    else out += c;
  }
  return out;
}

std::string unescaped(std::string_view value) {
  std::string out;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\' || i + 1 == value.size()) {
      out += value[i];
      continue;
    }
    const char next = value[++i];
    out += next == 'r' ? '\r' : next == 'n' ? '\n' : next;
  }
  return out;
}

bool plainFileName(const std::string& name) {
  return !name.empty() && name != "." && name != ".." && name.find('/') == std::string::npos &&
         name.find('\\') == std::string::npos && name.find('\0') == std::string::npos;
}

// Applies one "key=value" line; false when its value is unusable.
bool apply(RecoveryIndex& index, std::string_view key, const std::string& value, bool& timeSeen) {
  if (key == "path") {
    index.originalPath = value;
  } else if (key == "caption") {
    index.caption = value;
  } else if (key == "time") {
    const auto r = std::from_chars(value.data(), value.data() + value.size(), index.savedAt);
    timeSeen = r.ec == std::errc() && r.ptr == value.data() + value.size();
    return timeSeen;
  } else if (key == "lineEnds") {
    if (value != "CRLF" && value != "LF") return false;
    index.lineEnds = value == "LF" ? LineEnds::Lf : LineEnds::CrLf;
  } else if (key == "kind") {
    if (value != "plain" && value != "rich") return false;
    index.kind = value == "rich" ? RecoveredKind::Rich : RecoveredKind::Plain;
  } else if (key == "text") {
    index.textFile = value;
  }
  return true;
}
}  // namespace

std::string encodeRecoveryIndex(const RecoveryIndex& index) {
  std::string out(kFirstLine);
  out += "\npath=" + escaped(index.originalPath);
  out += "\ncaption=" + escaped(index.caption);
  out += "\ntime=" + std::to_string(index.savedAt);
  out += std::string("\nlineEnds=") + (index.lineEnds == LineEnds::Lf ? "LF" : "CRLF");
  out += std::string("\nkind=") + (index.kind == RecoveredKind::Rich ? "rich" : "plain");
  out += "\ntext=" + escaped(index.textFile) + "\n";
  return out;
}

std::optional<RecoveryIndex> decodeRecoveryIndex(std::string_view bytes) {
  std::size_t end = bytes.find('\n');
  if (bytes.substr(0, end) != kFirstLine) return std::nullopt;
  RecoveryIndex index;
  bool timeSeen = false;
  while (end != std::string_view::npos) {
    const std::size_t start = end + 1;
    end = bytes.find('\n', start);
    const std::string_view line = bytes.substr(start, end == std::string_view::npos ? end : end - start);
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    if (!apply(index, line.substr(0, equals), unescaped(line.substr(equals + 1)), timeSeen)) return std::nullopt;
  }
  if (!timeSeen || !plainFileName(index.textFile)) return std::nullopt;
  return index;
}

std::string recoveredDocumentName(const RecoveryIndex& index) {
  if (index.originalPath.empty()) return index.caption;
  const std::size_t slash = index.originalPath.find_last_of("/\\");
  return slash == std::string::npos ? index.originalPath : index.originalPath.substr(slash + 1);
}

}  // namespace lathwick

#include "transform/spaces.h"

#include "platform/bytes.h"

namespace lathwick::transform {

size_t codePartLength(std::string_view line, std::string_view commentStart) {
  if (commentStart.empty()) return line.size();
  const size_t p = line.find(commentStart);
  return p == std::string_view::npos ? line.size() : p + commentStart.size();
}

namespace {
// Replaces the code part of `line` with `code` trimmed of blanks; true when the line changed.
bool replaceCodePart(std::string& line, size_t codeLength, std::string_view code) {
  const size_t first = code.find_first_not_of(' ');
  const std::string_view trimmed =
      first == std::string_view::npos ? std::string_view() : code.substr(first, code.find_last_not_of(' ') + 1 - first);
  if (trimmed.size() == codeLength && line.compare(0, codeLength, trimmed) == 0) return false;
  line.replace(0, codeLength, trimmed);
  return true;
}
}  // namespace

AddSpacesLine::AddSpacesLine(std::string commentStart) : comment_(trimBlanks(commentStart)) {}

bool AddSpacesLine::apply(long, std::string& line) {
  const size_t codeLength = codePartLength(line, comment_);
  // At most one space goes before each character, so twice the length always suffices.
  scratch_.clear();
  for (size_t i = 0; i < codeLength; ++i) {
    const char c = line[i];
    const char u = asciiUpper(c);
    if (u >= 'A' && u <= 'Z' && previousNumeric_) scratch_.push_back(' ');
    previousNumeric_ = (c >= '0' && c <= '9') || c == '.';
    scratch_.push_back(c);
  }
  return replaceCodePart(line, codeLength, scratch_);
}

RemoveSpacesLine::RemoveSpacesLine(std::string commentStart) : comment_(trimBlanks(commentStart)) {}

bool RemoveSpacesLine::apply(long, std::string& line) {
  const size_t codeLength = codePartLength(line, comment_);
  size_t kept = 0;
  for (size_t i = 0; i < codeLength; ++i)
    if (line[i] != ' ') line[kept++] = line[i];
  if (kept == codeLength) return false;
  line.erase(kept, codeLength - kept);
  return true;
}

PassResult runAddSpaces(const std::string& inPath, const std::string& outPath, const std::string& commentStart,
                        PassMonitor& monitor) {
  AddSpacesLine transform(commentStart);
  PlainPassSettings settings;
  settings.statusText = kAddingSpacesStatus;
  settings.failureMessage = kAddSpacesFailed;
  return runPlainPass(inPath, outPath, transform, settings, monitor);
}

PassResult runRemoveSpaces(const std::string& inPath, const std::string& outPath, const std::string& commentStart,
                           PassMonitor& monitor) {
  RemoveSpacesLine transform(commentStart);
  PlainPassSettings settings;
  settings.statusText = kRemovingSpacesStatus;
  settings.failureMessage = kRemoveSpacesFailed;
  return runPlainPass(inPath, outPath, transform, settings, monitor);
}

}  // namespace lathwick::transform

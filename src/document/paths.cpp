#include "document/paths.h"

#include "platform/bytes.h"

namespace lathwick {

std::string FileNameOf(std::string& path) {
  path = trimBlanks(path);
  for (size_t i = path.size(); i-- > 0;)
    if (isPathSeparator(path[i]) || path[i] == ':') return path.substr(i + 1);
  return {};
}

std::string PathOf(std::string& path) {
  path = trimBlanks(path);
  for (size_t i = path.size(); i-- > 0;)
    if (isPathSeparator(path[i])) return path.substr(0, i + 1);
  return path;
}

void ChangeExtension(std::string& path, const std::string& extension) {
  const std::string dotted = "." + extension;
  if (path.size() >= 4 && path[path.size() - 4] == '.') {
    const size_t at = path.size() - 4;
    path.replace(at, std::min<size_t>(4, dotted.size()), dotted.substr(0, 4));
  } else {
    path += dotted;
  }
}

namespace {
// The length of the part a shortened path starts with: a drive's root, else the first folder
// (with the leading separator of an absolute path).
std::size_t rootLength(const std::string& path) {
  if (path.size() >= 3 && path[1] == ':' && isPathSeparator(path[2])) return 3;
  for (std::size_t i = 1; i < path.size(); ++i)
    if (isPathSeparator(path[i])) return i;
  return path.size();
}

std::size_t lastSeparator(const std::string& path) {
  for (std::size_t i = path.size(); i-- > 0;)
    if (isPathSeparator(path[i])) return i;
  return std::string::npos;
}
}  // namespace

std::string ShortenPath(const std::string& path, int maximum) {
  const long length = static_cast<long>(path.size());
  if (length <= maximum) return path;
  std::size_t tail = lastSeparator(path);
  for (long i = std::max(1L, length - maximum + 6); i <= length; ++i) {  // i is 1-based
    if (isPathSeparator(path[i - 1])) {
      tail = static_cast<std::size_t>(i - 1);
      break;
    }
  }
  const std::size_t root = rootLength(path);
  // Nothing between the root and the tail to leave out: the path stays as it is.
  if (tail == std::string::npos || tail <= root) return path;
  return path.substr(0, root) + " ..." + path.substr(tail);
}

}  // namespace lathwick

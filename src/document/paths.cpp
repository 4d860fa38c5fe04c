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

std::string ShortenPath(const std::string& path, int maximum) {
  const long length = static_cast<long>(path.size());
  if (length <= maximum) return path;
  const std::string head = path.substr(0, 3) + " ...";
  for (long i = std::max(1L, length - maximum + 6); i <= length; ++i)  // i is 1-based
    if (isPathSeparator(path[i - 1])) return head + path.substr(i - 1);
  return head;
}

}  // namespace lathwick

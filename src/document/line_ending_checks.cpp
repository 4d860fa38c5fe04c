#include "document/line_ending_checks.h"

#include <array>
#include <cstdio>
#include <cstring>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

namespace {
struct Counts {
  long lf = 0;
  bool anyCr = false;
  bool anyCrLf = false;
};

Counts countBreaks(const std::string& path) {
  std::FILE* f = std::fopen(nativePath(path).c_str(), "rb");
  if (!f) throw makeError(err::kFileNotFound);
  Counts c;
  std::array<char, 1 << 16> buf;
  char previous = 0;  // last byte of the previous block, for a CR LF split across blocks
  size_t n;
  while ((n = std::fread(buf.data(), 1, buf.size(), f)) > 0) {
    const char* data = buf.data();
    if (!c.anyCr) c.anyCr = std::memchr(data, '\r', n) != nullptr;
    for (const char* p = data; (p = static_cast<const char*>(std::memchr(p, '\n', n - (p - data))));
         ++p) {
      ++c.lf;
      if (!c.anyCrLf && (p == data ? previous : p[-1]) == '\r') c.anyCrLf = true;
    }
    previous = data[n - 1];
  }
  std::fclose(f);
  return c;
}
}  // namespace

long LineCountCheck(const std::string& path) {
  const Counts c = countBreaks(path);
  return (c.lf > 0 && !c.anyCr) ? -1 : c.lf;
}

bool FormatCheck(const std::string& path) {
  const Counts c = countBreaks(path);
  return c.lf == 0 || c.anyCrLf;
}

}  // namespace lathwick

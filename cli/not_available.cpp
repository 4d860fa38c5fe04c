#include <cstdio>

#include "commands.h"

namespace lathwick::cli {

int notAvailable(const char* name) {
  std::fprintf(stderr, "lathwick-cli %s: not available in this build yet\n", name);
  return 1;
}

}  // namespace lathwick::cli

#include "commands.h"

namespace lathwick::cli {

int cmdColorize(const Args&) { return notAvailable("colorize"); }

}  // namespace lathwick::cli

#include "commands.h"

namespace lathwick::cli {

int cmdRun(const Args&) { return notAvailable("run"); }

}  // namespace lathwick::cli

#include "commands.h"

namespace lathwick::cli {

int cmdRenumber(const Args&) { return notAvailable("renumber"); }

}  // namespace lathwick::cli

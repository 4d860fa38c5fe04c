#include "commands.h"

namespace lathwick::cli {

int cmdReplace(const Args&) { return notAvailable("replace"); }

}  // namespace lathwick::cli

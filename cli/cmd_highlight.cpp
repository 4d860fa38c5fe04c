#include "commands.h"

namespace lathwick::cli {

int cmdHighlight(const Args&) { return notAvailable("highlight"); }

}  // namespace lathwick::cli

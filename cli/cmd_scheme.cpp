#include "commands.h"

namespace lathwick::cli {

int cmdScheme(const Args&) { return notAvailable("scheme"); }

}  // namespace lathwick::cli

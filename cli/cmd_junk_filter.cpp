#include "commands.h"

namespace lathwick::cli {

int cmdJunkFilter(const Args&) { return notAvailable("junk-filter"); }

}  // namespace lathwick::cli

#include "commands.h"

namespace lathwick::cli {

int cmdAddSpaces(const Args&) { return notAvailable("add-spaces"); }

}  // namespace lathwick::cli

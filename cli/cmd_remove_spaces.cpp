#include "commands.h"

namespace lathwick::cli {

int cmdRemoveSpaces(const Args&) { return notAvailable("remove-spaces"); }

}  // namespace lathwick::cli

#include "commands.h"

namespace lathwick::cli {

int cmdOperate(const Args&) { return notAvailable("operate"); }

}  // namespace lathwick::cli

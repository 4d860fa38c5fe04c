#include "commands.h"

namespace lathwick::cli {

int cmdRtfText(const Args&) { return notAvailable("rtf-text"); }

}  // namespace lathwick::cli

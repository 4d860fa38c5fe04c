#include "transform/gui/cancel_flag.h"

namespace lathwick::gui {

namespace {
bool& flag() {
  static bool cancel = false;
  return cancel;
}
}  // namespace

void requestCancel() { flag() = true; }
void clearCancel() { flag() = false; }
bool cancelRequested() { return flag(); }

}  // namespace lathwick::gui

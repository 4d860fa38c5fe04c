#include "transform/gui/pass_observer.h"

namespace lathwick::gui {

namespace {
PassObserver& observer() {
  static PassObserver o;
  return o;
}
}  // namespace

void setPassObserver(PassObserver o) { observer() = std::move(o); }

void notifyPassDone(TransformTarget& target, PassKind kind) {
  if (observer()) observer()(target, kind);
}

}  // namespace lathwick::gui

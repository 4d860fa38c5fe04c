#pragma once
// Whoever wants to know that a pass's output has entered a document (the motion check) hears of
// it here, without the dialogs and the document window knowing who listens.
#include <functional>

namespace lathwick::gui {

class TransformTarget;

enum class PassKind {
  KeepsMotion,    // renumber, add and remove spaces, junk filter: the motion should stay as it was
  ChangesMotion,  // operate: the motion changes on purpose
};

// Called after the output has been reloaded into `target`; its input work file still holds the
// document as it was before the pass.
using PassObserver = std::function<void(TransformTarget& target, PassKind kind)>;

// One observer for the process; an empty one removes it.
void setPassObserver(PassObserver observer);
void notifyPassDone(TransformTarget& target, PassKind kind);

}  // namespace lathwick::gui

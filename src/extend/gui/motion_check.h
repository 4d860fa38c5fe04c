#pragma once
// The editor's motion check: after a pass has changed a document, the motion of the document as
// it was (the input work file) is compared with the document now, and the status bar says
// "Motion unchanged." or where it changed (after operate: how many moves changed).
#include <string>

#include "transform/gui/pass_observer.h"

namespace lathwick::gui {

class TransformTarget;

// Makes every pass of the editor report on the motion (registers the pass observer).
void installMotionCheck();

// The check for one document; returns the status-bar text it showed ("" when the document
// could not be written or read back, in which case nothing is shown).
std::string checkMotionAfterPass(TransformTarget& target, PassKind kind);

}  // namespace lathwick::gui

#include "transform/gui/transform_dialogs.h"

#include "transform/gui/frm_operate.h"
#include "transform/gui/frm_renumber.h"
#include "transform/gui/frm_search.h"

namespace lathwick::gui {

TransformDialogs::TransformDialogs(SettingsStore& settings, QWidget* mainWindow)
    : settings_(settings), mainWindow_(mainWindow), search_(new frmSearch(settings, mainWindow)) {}

TransformDialogs::~TransformDialogs() {
  delete search_.data();
  delete renumber_.data();
  delete operate_.data();
}

frmSearch& TransformDialogs::search() { return *search_; }

void TransformDialogs::showSearch(TransformTarget& target) { search_->showFor(target); }
void TransformDialogs::findNext(TransformTarget& target) { search_->findNext(target); }
void TransformDialogs::replaceNext(TransformTarget& target) { search_->replaceNext(target); }
void TransformDialogs::setSearchReplace(TransformTarget& target) { search_->setSearchReplace(target); }

void TransformDialogs::renumber(TransformTarget& target) {
  delete renumber_.data();
  renumber_ = new frmRenumber(settings_, mainWindow_);
  renumber_->setAttribute(Qt::WA_DeleteOnClose);
  renumber_->showFor(target);
}

void TransformDialogs::operate(TransformTarget& target) {
  delete operate_.data();
  operate_ = new frmOperate(settings_, mainWindow_);
  operate_->setAttribute(Qt::WA_DeleteOnClose);
  operate_->showFor(target);
}

void TransformDialogs::operateUnattended(TransformTarget& target, const transform::OperateEntries& entries) {
  frmOperate dialog(settings_, mainWindow_);
  dialog.runUnattended(target, entries);
}

void TransformDialogs::forget(const TransformTarget* target) {
  if (search_) search_->forget(target);
  if (renumber_) renumber_->forget(target);
  if (operate_) operate_->forget(target);
}

}  // namespace lathwick::gui

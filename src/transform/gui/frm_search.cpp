#include "transform/gui/frm_search.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/errors.h"
#include "platform/gui/command_guard.h"
#include "platform/gui/dialogs.h"
#include "platform/gui/help_key.h"
#include "platform/vb_convert.h"
#include "workspace/history.h"
#include "platform/settings_table.h"
#include "platform/app_names.h"
#include "transform/gui/cancel_flag.h"
#include "transform/gui/combo_history.h"
#include "transform/gui/document_pass.h"
#include "transform/gui/text_bytes.h"
#include "transform/gui/transform_target.h"
#include "transform/search_match.h"
#include "transform/search_pass.h"

namespace lathwick::gui {

using namespace lathwick::transform;

namespace {

struct CheckRow {
  const char* caption;
  const char* tooltip;
};
// Index i stands for bit 4 >> i: the indexes and the bits run in opposite directions.
constexpr std::array<CheckRow, 3> kChecks{{
    {"Match &Case", "Matches upper or lower case only"},
    {"Match &Whole Word", "Word position is marked by a space"},
    {"&Exclude Comments From Global Operations.", "No replacements or operations made within comments when checked"},
}};
constexpr int flagOf(int index) { return kMatchCase >> index; }

QPushButton* button(QWidget* parent, const char* name, const char* caption, const char* tooltip) {
  auto* b = new QPushButton(QString::fromLatin1(caption), parent);
  b->setObjectName(name);
  if (tooltip) b->setToolTip(QString::fromLatin1(tooltip));
  b->setAutoDefault(false);
  return b;
}

QComboBox* historyBox(QWidget* parent, const char* name) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setMinimumWidth(260);
  return box;
}

}  // namespace

frmSearch::frmSearch(SettingsStore& settings, QWidget* parent) : QDialog(parent), settings_(settings) {
  addHelpKey(this, "search.html");
  setObjectName("frmSearch");
  setWindowTitle("Search And Replace");
  setWindowModality(Qt::ApplicationModal);

  // Made in this order, which is the order Tab goes through them.
  QLayout* fields = makeFields();
  QLayout* checks = makeChecks();
  QLayout* buttons = makeButtons();
  auto* help = new QLabel(kSearchHelpLine, this);
  help->setObjectName("lblHelp");
  help->setWordWrap(true);
  lblRange_ = new QLabel(this);
  lblRange_->setObjectName("lblRange");
  lblStatus_ = new QLabel(this);
  lblStatus_->setObjectName("lblStatus");
  progReplace_ = new QProgressBar(this);
  progReplace_->setObjectName("progReplace");
  progReplace_->hide();
  auto* left = new QVBoxLayout;
  left->addLayout(fields);
  left->addLayout(checks);
  for (QWidget* w : std::initializer_list<QWidget*>{help, lblRange_, lblStatus_, progReplace_}) left->addWidget(w);
  auto* top = new QHBoxLayout(this);
  top->addLayout(left, 1);
  top->addLayout(buttons);
}

QLayout* frmSearch::makeFields() {
  cboFind_ = historyBox(this, "cboFind");
  cboReplace_ = historyBox(this, "cboReplace");
  auto* fields = new QGridLayout;
  auto* findLabel = new QLabel("&Find What :", this);
  findLabel->setBuddy(cboFind_);
  auto* replaceLabel = new QLabel("&Replace With :", this);
  replaceLabel->setBuddy(cboReplace_);
  fields->addWidget(findLabel, 0, 0);
  fields->addWidget(cboFind_, 0, 1);
  fields->addWidget(replaceLabel, 1, 0);
  fields->addWidget(cboReplace_, 1, 1);
  return fields;
}

QLayout* frmSearch::makeChecks() {
  auto* checks = new QVBoxLayout;
  for (int i = 0; i < 3; ++i) {
    auto* box = new QCheckBox(QString::fromLatin1(kChecks[i].caption), this);
    box->setObjectName(QStringLiteral("chkSearchMethod_%1").arg(i));
    box->setToolTip(QString::fromLatin1(kChecks[i].tooltip));
    connect(box, &QCheckBox::clicked, this, [this] { flagsFromChecks(); });
    chkSearchMethod_[i] = box;
    checks->addWidget(box);
  }
  return checks;
}

QLayout* frmSearch::makeButtons() {
  cmdOK_ = button(this, "cmdOK", "OK", "Accepts entries for use with F3 and F4 keys.");
  cmdOK_->setDefault(true);
  cmdReplaceAll_ = button(this, "cmdReplaceAll", "Replace &All", "Makes all replacements within current range.");
  cmdHighlight_ = button(this, "cmdHighlight", "&Highlight All", "Highlights text within current range.");
  cmdUndo_ = button(this, "cmdUndo", "&Undo", nullptr);
  cmdUndo_->setEnabled(false);
  cmdCancel_ = button(this, "cmdCancel", "&Cancel", nullptr);
  auto* buttons = new QVBoxLayout;
  for (QPushButton* b : {cmdOK_, cmdReplaceAll_, cmdHighlight_, cmdUndo_, cmdCancel_}) buttons->addWidget(b);
  buttons->addStretch();
  connect(cmdOK_, &QPushButton::clicked, this, guarded([this] { onOK(); }));
  connect(cmdReplaceAll_, &QPushButton::clicked, this, guarded([this] { onReplaceAll(); }));
  connect(cmdHighlight_, &QPushButton::clicked, this, guarded([this] { onHighlight(); }));
  connect(cmdUndo_, &QPushButton::clicked, this, guarded([this] { onUndo(); }));
  connect(cmdCancel_, &QPushButton::clicked, this, guarded([this] { onCancel(); }));
  return buttons;
}

frmSearch::~frmSearch() {
  if (loaded_) writeSearchFlags(settings_, flags_);
}

void frmSearch::load() {
  if (loaded_) return;
  loaded_ = true;
  readFlags();
  state_ = FindNextState{};
  state_.setFlags(flags_);
}

void frmSearch::unload() {
  hide();
  if (!loaded_) return;
  writeSearchFlags(settings_, flags_);
  loaded_ = false;
  state_ = FindNextState{};
  cboFind_->setEditText({});
  cboReplace_->setEditText({});
  lblStatus_->clear();
  cmdUndo_->setEnabled(false);
}

void frmSearch::readFlags() {
  const int stored = readSearchFlags(settings_);
  for (int i = 0; i < 3; ++i) chkSearchMethod_[i]->setChecked((stored & flagOf(i)) != 0);
  flagsFromChecks();
}

void frmSearch::flagsFromChecks() {
  flags_ = 0;
  for (int i = 0; i < 3; ++i)
    if (chkSearchMethod_[i]->isChecked()) flags_ |= flagOf(i);
  state_.setFlags(flags_);
}

void frmSearch::bind(TransformTarget& target) { target_ = &target; }

void frmSearch::forget(const TransformTarget* target) {
  if (target_ != target) return;
  target_ = nullptr;
  hide();
}

void frmSearch::showFor(TransformTarget& target) {
  bind(target);
  load();
  loadComboHistory(*cboFind_, settings_);
  loadComboHistory(*cboReplace_, settings_);
  cboFind_->setEditText({});
  cboReplace_->setEditText({});
  const SearchDialogRange r = searchDialogRange(
      target.textLength(), target.selectionStart(), target.selectionLength(),
      [&target](long position) { return target.lineFromChar(position); }, target.selectedText());
  range_ = r.range;
  if (r.fillFindText) cboFind_->setEditText(fromBytes(r.findText));
  lblRange_->setText(fromBytes(range_.label));
  state_.setRange(range_.firstChar, range_.lastChar);
  show();
  raise();
  activateWindow();
  cboFind_->setFocus();
}

void frmSearch::findNext(TransformTarget& target) {
  bind(target);
  load();
  act(state_.findNext(target));
}

void frmSearch::replaceNext(TransformTarget& target) {
  bind(target);
  load();
  act(state_.replaceAndFindNext(target));
}

void frmSearch::setSearchReplace(TransformTarget& target) {
  unload();
  findNext(target);
}

void frmSearch::act(FindStep step) {
  switch (step) {
    case FindStep::Found:
      return;
    case FindStep::ShowDialog:
      showFor(*target_);
      return;
    case FindStep::SearchComplete:
      dialogs().message(kSearchComplete, kAppTitle, Buttons::Ok, Icon::None);
      unload();
      return;
  }
}

void frmSearch::saveHistories() {
  updateComboHistory(*cboFind_, settings_, kSearchHistoryLength);
  updateComboHistory(*cboReplace_, settings_, kSearchHistoryLength);
}

void frmSearch::onOK() {
  saveHistories();
  state_.setTexts(toBytes(cboFind_->currentText()), toBytes(cboReplace_->currentText()));
  state_.setFlags(flags_);
  hide();
}

void frmSearch::onReplaceAll() {
  saveHistories();
  cmdUndo_->setEnabled(true);
  runPass(false);
}

void frmSearch::onHighlight() {
  saveHistories();
  runPass(true);
}

void frmSearch::runPass(bool highlight) {
  if (!target_) return;
  TransformTarget& target = *target_;
  try {
    SearchRequest request;
    request.findText = toBytes(cboFind_->currentText());
    request.replaceText = toBytes(cboReplace_->currentText());
    request.flags = flags_;
    request.range = range_.lines;
    request.displayLineCount = target.lineCount();
    const PassFrame frame = target.passFrame();
    PassRun run;
    run.bar = progReplace_;
    run.parent = this;
    std::optional<PassResult> result;
    {
      const ButtonsHeld held(*this, cmdCancel_);
      result = runDocumentPass(target, run, [&](const std::string& in, const std::string& out, PassMonitor& monitor) {
        return highlight ? runHighlightAll(in, out, request, frame, monitor)
                         : runReplaceAll(in, out, request, frame, monitor);
      });
    }
    if (!loaded_) cmdUndo_->setEnabled(false);  // cancelled and unloaded while the pass ran
    if (!result || result->outcome != PassOutcome::Completed) return;
    lblStatus_->setText(fromBytes(result->statusLabel));
  } catch (const AppError& e) {
    dialogs().message(highlight ? highlightCommandError(e.number(), e.description())
                                : replaceCommandError(e.number(), e.description()),
                      kAppTitle, Buttons::Ok, Icon::None);
  }
}

void frmSearch::onUndo() {
  if (target_) target_->undo();
  cmdUndo_->setEnabled(false);
}

void frmSearch::onCancel() {
  requestCancel();
  unload();
}

void frmSearch::reject() { onCancel(); }

}  // namespace lathwick::gui

#include "transform/gui/frm_operate.h"

#include <QComboBox>
#include <QFormLayout>
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
#include "platform/settings_table.h"
#include "platform/app_names.h"
#include "transform/gui/cancel_flag.h"
#include "transform/gui/combo_history.h"
#include "transform/gui/document_pass.h"
#include "transform/gui/key_filters.h"
#include "transform/gui/pass_observer.h"
#include "transform/gui/text_bytes.h"
#include "transform/gui/transform_target.h"
#include "transform/operate.h"
#include "transform/rich_pass.h"

namespace lathwick::gui {

using namespace lathwick::transform;

namespace {

inline constexpr const char* kDefaultValue = "1";
inline constexpr const char* kDefaultFormat = "##0.0###";

QComboBox* historyBox(QWidget* parent, const char* name, QValidator* (*filter)(QObject*)) {
  auto* box = new QComboBox(parent);
  box->setObjectName(name);
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setValidator(filter(box));
  return box;
}

QValidator* asValidator(CharacterFilter* f) { return f; }
QValidator* address(QObject* p) { return asValidator(addressFilter(p)); }
QValidator* picture(QObject* p) { return asValidator(formatFilter(p)); }
QValidator* operand(QObject* p) { return asValidator(valueFilter(p)); }

// The stored search options read as one switch: any option turns comment exclusion on.
bool excludeCommentsSetting(const SettingsStore& settings) {
  return readSearchFlags(settings) != 0;
}

}  // namespace

frmOperate::frmOperate(SettingsStore& settings, QWidget* parent) : QDialog(parent), settings_(settings) {
  addHelpKey(this, "operate.html");
  setObjectName("frmOperate");
  setWindowTitle("Operate");
  setWindowModality(Qt::ApplicationModal);

  cboAddress_ = historyBox(this, "cboAddress", address);
  cboAddress_->setToolTip("Enter one or more characters XYZ etc...");
  cboOperators_ = new QComboBox(this);
  cboOperators_->setObjectName("cboOperators");
  cboOperators_->addItems({"*", "+", "-", "/"});
  cboValue_ = historyBox(this, "cboValue", operand);
  cboFormat_ = historyBox(this, "cboFormat", picture);
  connect(cboOperators_, &QComboBox::activated, this, &frmOperate::onOperatorChosen);

  auto* form = new QFormLayout;
  form->addRow("&Address Characters", cboAddress_);
  form->addRow("O&perator", cboOperators_);
  form->addRow("&Value", cboValue_);
  form->addRow("Output &Format", cboFormat_);

  cmdOK_ = new QPushButton("OK", this);
  cmdOK_->setObjectName("cmdOK");
  cmdOK_->setDefault(true);
  cmdCancel_ = new QPushButton("&Cancel", this);
  cmdCancel_->setObjectName("cmdCancel");
  cmdUndo_ = new QPushButton("&Undo", this);
  cmdUndo_->setObjectName("cmdUndo");
  cmdUndo_->setEnabled(false);
  for (QPushButton* b : {cmdCancel_, cmdUndo_}) b->setAutoDefault(false);
  connect(cmdOK_, &QPushButton::clicked, this, guarded([this] { onOK(); }));
  connect(cmdCancel_, &QPushButton::clicked, this, &frmOperate::reject);
  connect(cmdUndo_, &QPushButton::clicked, this, guarded([this] { onUndo(); }));

  lblRange_ = new QLabel(this);
  lblRange_->setObjectName("lblRange");
  lblStatus_ = new QLabel(this);
  lblStatus_->setObjectName("lblStatus");
  progOperate_ = new QProgressBar(this);
  progOperate_->setObjectName("progOperate");
  progOperate_->hide();

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(cmdOK_);
  buttons->addWidget(cmdCancel_);
  buttons->addWidget(cmdUndo_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(lblRange_);
  layout->addWidget(lblStatus_);
  layout->addWidget(progOperate_);
  layout->addLayout(buttons);
}

void frmOperate::loadFields() {
  // The history's default is the table's; a remembered address then takes the edit line.
  loadComboHistory(*cboAddress_, settings_, settingDefault(Setting::OperateAddress));
  const OperateSettings stored = readOperateSettings(settings_);
  if (isSettingStored(settings_, Setting::OperateAddress) && !stored.address.empty())
    cboAddress_->setEditText(fromBytes(stored.address));
  const int op = cboOperators_->findText(fromBytes(stored.op));
  cboOperators_->setCurrentIndex(op >= 0 ? op : 0);
  loadComboHistory(*cboValue_, settings_, kDefaultValue);
  loadComboHistory(*cboFormat_, settings_, kDefaultFormat);
}

void frmOperate::showFor(TransformTarget& target) {
  target_ = &target;
  loadFields();
  range_ = operationRange(target.textLength(), target.selectionStart(), target.selectionLength(),
                          [&target](long position) { return target.lineFromChar(position); });
  lblRange_->setText(fromBytes(range_.label));
  lblStatus_->clear();
  show();
  raise();
  activateWindow();
}

void frmOperate::runUnattended(TransformTarget& target, const OperateEntries& entries) {
  target_ = &target;
  loadFields();
  range_ = operationRange(target.textLength(), target.selectionStart(), target.selectionLength(),
                          [&target](long position) { return target.lineFromChar(position); });
  cboAddress_->setEditText(fromBytes(entries.address));
  const int op = cboOperators_->findText(fromBytes(entries.op));
  if (op >= 0) cboOperators_->setCurrentIndex(op);
  cboValue_->setEditText(fromBytes(entries.value));
  cboFormat_->setEditText(fromBytes(entries.format));
  onOK();
  target_ = nullptr;
}

void frmOperate::forget(const TransformTarget* target) {
  if (target_ != target) return;
  target_ = nullptr;
  QDialog::reject();
}

void frmOperate::onOperatorChosen() {
  if (cboOperators_->currentText() == "/" && leadingValue(toBytes(cboValue_->currentText())) == 0) {
    dialogs().message(kDivisionByZeroOnChoice, kAppTitle, Buttons::Ok, Icon::Information);
    cboOperators_->setCurrentText("+");
  }
}

void frmOperate::onOK() {
  if (!target_) return;
  TransformTarget& target = *target_;
  const OperateEntries entries{toBytes(cboAddress_->currentText()), toBytes(cboOperators_->currentText()),
                               toBytes(cboValue_->currentText()), toBytes(cboFormat_->currentText())};
  const OperateValidation check = validateOperate(entries);
  if (!check.message.empty()) {
    dialogs().message(check.message, kAppTitle, Buttons::Ok, Icon::None);
    if (check.resetOperator) cboOperators_->setCurrentText("+");
    return;
  }
  writeOperateSettings(settings_, {entries.address, entries.op});
  for (QComboBox* box : {cboAddress_, cboValue_, cboFormat_}) updateComboHistory(*box, settings_, kOperateHistoryLength);

  try {
    OperateRequest request;
    request.addresses = entries.address;
    request.op = entries.op.front();
    request.operand = leadingValue(entries.value);
    request.format = entries.format;
    request.excludeComments = excludeCommentsSetting(settings_);
    request.range = range_.lines;
    request.displayLineCount = target.lineCount();
    const PassFrame frame = target.passFrame();
    PassRun run;
    run.bar = progOperate_;
    run.parent = this;
    run.notify = PassKind::ChangesMotion;
    std::optional<PassResult> result;
    {
      const ButtonsHeld held(*this, cmdCancel_);
      result = runDocumentPass(target, run, [&](const std::string& in, const std::string& out, PassMonitor& monitor) {
        return runOperate(in, out, request, frame, monitor);
      });
    }
    if (!result || result->outcome != PassOutcome::Completed) return;
    if (result->reload) cmdUndo_->setEnabled(true);
    lblStatus_->setText(fromBytes(result->statusLabel));
  } catch (const AppError& e) {
    dialogs().message(passErrorMessage(e.number(), e.description(), kOperateErrorEnding), kAppTitle, Buttons::Ok,
                      Icon::Exclamation);
  }
}

void frmOperate::onUndo() {
  if (target_) target_->undo();
  cmdUndo_->setEnabled(false);
}

void frmOperate::reject() {
  requestCancel();
  QDialog::reject();
}

}  // namespace lathwick::gui

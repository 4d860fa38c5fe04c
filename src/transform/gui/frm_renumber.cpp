#include "transform/gui/frm_renumber.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/gui/command_guard.h"
#include "platform/gui/dialogs.h"
#include "platform/gui/help_key.h"
#include "platform/vb_convert.h"
#include "platform/settings_table.h"
#include "platform/app_names.h"
#include "transform/gui/cancel_flag.h"
#include "transform/gui/document_pass.h"
#include "transform/gui/key_filters.h"
#include "transform/gui/pass_observer.h"
#include "transform/gui/text_bytes.h"
#include "transform/gui/transform_target.h"
#include "transform/renumber.h"

namespace lathwick::gui {

using namespace lathwick::transform;

namespace {

constexpr std::array<const char*, 3> kMethodCaptions{"&All lines", "&Existing numbers only",
                                                     "All &non-comment lines"};

QLineEdit* field(QWidget* parent, const char* name, const std::string& text) {
  auto* edit = new QLineEdit(fromBytes(text), parent);
  edit->setObjectName(name);
  return edit;
}

// The start and increment as whole numbers; an empty field counts as 0. Numbers beyond the
// 32-bit range fail the command (AppError 6).
std::int32_t wholeNumber(const QString& text) {
  const std::string bytes = toBytes(text);
  return trimBlanks(bytes).empty() ? 0 : toInt32(bytes);
}

}  // namespace

frmRenumber::frmRenumber(SettingsStore& settings, QWidget* parent) : QDialog(parent), settings_(settings) {
  addHelpKey(this, "renumber.html");
  setObjectName("frmRenumber");
  setWindowTitle("Renumber File");
  setWindowModality(Qt::ApplicationModal);

  const NumberingSettings stored = readNumberingSettings(settings_);
  method_ = stored.method;
  QLayout* form = makeFields(stored);
  QWidget* methods = makeMethods();

  // Off by default: a plain renumber leaves every other word of the program as it is.
  chkReferences_ = new QCheckBox("Update &references", this);
  chkReferences_->setObjectName("chkReferences");
  chkReferences_->setToolTip("Rewrite the words that name a renumbered block: P and Q of G70 to G73, "
                             "P of M97 and M99, H of M98, GOTO");
  chkReferences_->setChecked(stored.updateReferences);

  lblRange_ = new QLabel(this);
  lblRange_->setObjectName("lblRange");
  cmdOK_ = new QPushButton("OK", this);
  cmdOK_->setObjectName("cmdOK");
  cmdOK_->setDefault(true);
  Command1_ = new QPushButton("&Cancel", this);
  Command1_->setObjectName("Command1");
  Command1_->setAutoDefault(false);
  connect(cmdOK_, &QPushButton::clicked, this, guarded([this] { onOK(); }));
  connect(Command1_, &QPushButton::clicked, this, &frmRenumber::reject);

  auto* buttons = new QHBoxLayout;
  buttons->addWidget(lblRange_, 1);
  buttons->addWidget(cmdOK_);
  buttons->addWidget(Command1_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(methods);
  layout->addWidget(chkReferences_);
  layout->addLayout(buttons);
}

QLayout* frmRenumber::makeFields(const NumberingSettings& stored) {
  txtStart_ = field(this, "txtStart", stored.start);
  txtStart_->setValidator(digitsFilter(txtStart_));
  txtStep_ = field(this, "txtStep", stored.increment);
  txtStep_->setValidator(digitsFilter(txtStep_));
  txtSeqChr_ = field(this, "txtSeqChr", stored.character);
  txtSkipLines_ = field(this, "txtSkipLines", stored.skipLines);

  auto* form = new QFormLayout;
  form->addRow("Start &Number", txtStart_);
  form->addRow("&Increment", txtStep_);
  form->addRow("Sequence &Chr", txtSeqChr_);
  form->addRow("Skip LInes Starting &With", txtSkipLines_);
  return form;
}

QWidget* frmRenumber::makeMethods() {
  auto* methods = new QGroupBox("Method", this);
  auto* methodLayout = new QVBoxLayout(methods);
  auto* group = new QButtonGroup(this);
  for (int i = 0; i < 3; ++i) {
    auto* option = new QRadioButton(QString::fromLatin1(kMethodCaptions[i]), methods);
    option->setObjectName(QStringLiteral("Option1_%1").arg(i));
    group->addButton(option, i);
    methodLayout->addWidget(option);
    Option1_[i] = option;
  }
  Option1_[method_]->setChecked(true);
  connect(group, &QButtonGroup::idClicked, this, [this](int id) { method_ = id; });
  return methods;
}

void frmRenumber::done(int result) {
  saveSettings();
  QDialog::done(result);
}

void frmRenumber::saveSettings() {
  NumberingSettings s;
  s.start = toBytes(txtStart_->text());
  s.increment = toBytes(txtStep_->text());
  s.character = toBytes(txtSeqChr_->text());
  s.skipLines = toBytes(txtSkipLines_->text());
  s.method = method_;
  s.updateReferences = chkReferences_->isChecked();
  writeNumberingSettings(settings_, s);
}

void frmRenumber::showFor(TransformTarget& target) {
  target_ = &target;
  range_ = operationRange(target.textLength(), target.selectionStart(), target.selectionLength(),
                          [&target](long position) { return target.lineFromChar(position); });
  lblRange_->setText(fromBytes(range_.label));
  show();
  raise();
  activateWindow();
}

void frmRenumber::forget(const TransformTarget* target) {
  if (target_ != target) return;
  target_ = nullptr;
  QDialog::reject();
}

void frmRenumber::onOK() {
  if (!target_) return;
  TransformTarget& target = *target_;
  RenumberRequest request;
  request.sequenceText = trimBlanks(toBytes(txtSeqChr_->text()));
  if (request.sequenceText.empty()) {
    dialogs().message(kSequenceRequired, kSequenceRequiredTitle, Buttons::Ok, Icon::None);
    return;
  }
  request.skipCharacters = toBytes(txtSkipLines_->text());
  request.method = static_cast<RenumberMethod>(method_);
  request.commentStart = trimBlanks(target.commentStartText());
  request.range = range_.lines;
  request.updateReferences = chkReferences_->isChecked();
  try {
    request.start = wholeNumber(txtStart_->text());
    request.increment = wholeNumber(txtStep_->text());
  } catch (const AppError&) {
    dialogs().message(kRenumberFailed, kAppTitle, Buttons::Ok, Icon::Exclamation);
    return;
  }
  PassRun run;
  run.parent = this;
  run.output = ReloadFormat::Plain;
  run.notify = PassKind::KeepsMotion;
  const auto result =
      runDocumentPass(target, run, [&](const std::string& in, const std::string& out, PassMonitor& monitor) {
        return runRenumber(in, out, request, monitor);
      });
  if (result && (result->outcome == PassOutcome::Completed || result->outcome == PassOutcome::Failed)) accept();
}

void frmRenumber::reject() {
  requestCancel();
  QDialog::reject();
}

}  // namespace lathwick::gui

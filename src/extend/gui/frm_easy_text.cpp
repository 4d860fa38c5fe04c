#include "extend/gui/frm_easy_text.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include "platform/bytes.h"
#include "platform/gui/dialogs.h"
#include "platform/app_names.h"
#include "platform/gui/help_key.h"
#include "transform/gui/text_bytes.h"
#include "workspace/workspace.h"

namespace lathwick::gui {
namespace {
constexpr const char* kNewCaption = "New Easy Text";
constexpr const char* kNewPrompt = "Name of the new easy text:";

// The text box shows line breaks as line feeds; the files and documents keep CR LF.
QString shown(const std::string& text) {
  QString out = fromBytes(text);
  out.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return out;
}
}  // namespace

frmEasyText::frmEasyText(const std::string& datLocation, EasyTextMemory& memory,
                         std::function<WorkspaceDocument*()> activeDocument, QWidget* parent)
    : QDialog(parent), list_(datLocation), memory_(memory), activeDocument_(std::move(activeDocument)) {
  setObjectName(QStringLiteral("frmEasyText"));
  setWindowTitle(QStringLiteral("Easy Text"));
  buildControls();
  addHelpKey(this, "easytext.html");
}

QAction* frmEasyText::menuAction(const char* object, const char* caption, void (frmEasyText::*slot)()) {
  auto* action = new QAction(QString::fromLatin1(caption), this);
  action->setObjectName(QString::fromLatin1(object));
  connect(action, &QAction::triggered, this, slot);
  return action;
}

void frmEasyText::buildControls() {
  QMenuBar* bar = makeMenu();
  cboFileName_ = new QComboBox(this);
  cboFileName_->setObjectName(QStringLiteral("cboFileName"));
  auto* category = new QLabel(QStringLiteral("Category:"), this);
  category->setObjectName(QStringLiteral("lblCategory"));
  category->setBuddy(cboFileName_);
  lstSections_ = new QListWidget(this);
  lstSections_->setObjectName(QStringLiteral("lstSections"));
  txtEdit_ = new QPlainTextEdit(this);
  txtEdit_->setObjectName(QStringLiteral("txtEdit"));
  txtEdit_->setLineWrapMode(QPlainTextEdit::NoWrap);
  txtEdit_->setFont(QFont(QStringLiteral("Monospace")));
  cmdInsert_ = new QPushButton(QStringLiteral("&Insert"), this);
  cmdCopy_ = new QPushButton(QStringLiteral("&Copy"), this);
  cmdExit_ = new QPushButton(QStringLiteral("E&xit"), this);
  cmdInsert_->setObjectName(QStringLiteral("cmdInsert"));
  cmdCopy_->setObjectName(QStringLiteral("cmdCopy"));
  cmdExit_->setObjectName(QStringLiteral("cmdExit"));

  auto* layout = new QGridLayout(this);
  layout->setMenuBar(bar);
  auto* top = new QHBoxLayout;
  top->addWidget(category);
  top->addWidget(cboFileName_, 1);
  layout->addLayout(top, 0, 0, 1, 2);
  layout->addWidget(lstSections_, 1, 0);
  layout->addWidget(txtEdit_, 1, 1);
  layout->setColumnStretch(1, 2);
  layout->addLayout(makeButtonRow(), 2, 0, 1, 2);
  resize(620, 380);

  setSnippetCommands(false);
  mnuNew_->setEnabled(false);
  connect(cboFileName_, &QComboBox::activated, this, &frmEasyText::loadCategory);
  connect(lstSections_, &QListWidget::itemClicked, this, &frmEasyText::onSectionChosen);
  connect(cmdInsert_, &QPushButton::clicked, this, &frmEasyText::onInsert);
  connect(cmdCopy_, &QPushButton::clicked, this, &frmEasyText::onCopy);
  connect(cmdExit_, &QPushButton::clicked, this, &frmEasyText::close);
}

QMenuBar* frmEasyText::makeMenu() {
  auto* bar = new QMenuBar(this);
  QMenu* file = bar->addMenu(QStringLiteral("&File"));
  mnuNew_ = menuAction("mnuNew", "&New", &frmEasyText::onNew);
  mnuSave_ = menuAction("mnuSave", "&Save", &frmEasyText::onSave);
  mnuDelete_ = menuAction("mnuDelete", "&Delete", &frmEasyText::onDelete);
  mnuExit_ = new QAction(QStringLiteral("E&xit"), this);
  mnuExit_->setObjectName(QStringLiteral("mnuExit"));
  connect(mnuExit_, &QAction::triggered, this, &QWidget::close);
  file->addActions({mnuNew_, mnuSave_, mnuDelete_});
  file->addSeparator();
  file->addAction(mnuExit_);
  return bar;
}

// The menu's New, Save and Delete as buttons, then Insert, Copy and Exit.
QLayout* frmEasyText::makeButtonRow() {
  auto* buttons = new QHBoxLayout;
  for (QAction* action : {mnuNew_, mnuSave_, mnuDelete_}) {
    auto* tool = new QToolButton(this);
    tool->setDefaultAction(action);
    tool->setObjectName(action->objectName().replace(QStringLiteral("mnu"), QStringLiteral("cmd")));
    buttons->addWidget(tool);
  }
  buttons->addStretch();
  for (QPushButton* b : {cmdInsert_, cmdCopy_, cmdExit_}) {
    b->setAutoDefault(false);
    buttons->addWidget(b);
  }
  return buttons;
}

void frmEasyText::showRemembered() {
  cboFileName_->clear();
  for (const std::string& name : extend::listCategories(list_.DatLocation())) cboFileName_->addItem(fromBytes(name));
  if (cboFileName_->count() == 0) return;
  const int remembered = cboFileName_->findText(fromBytes(memory_.category), Qt::MatchExactly);
  const std::string snippet = memory_.snippet;
  loadCategory(remembered >= 0 ? remembered : 0);
  const int position = list_.positionOf(snippet);
  if (remembered < 0 || position < 0) return;
  lstSections_->setCurrentRow(position);
  onSectionChosen();
}

void frmEasyText::loadCategory(int comboIndex) {
  cboFileName_->setCurrentIndex(comboIndex);
  const std::string name = toBytes(cboFileName_->itemText(comboIndex));
  memory_.category = name;
  memory_.snippet.clear();
  txtEdit_->clear();
  const auto failed = list_.load(name);
  fillSections();
  mnuNew_->setEnabled(true);
  report(failed);
}

void frmEasyText::fillSections() {
  lstSections_->clear();
  for (int p = 0; p < list_.count(); ++p) lstSections_->addItem(fromBytes(list_.name(p)));
  setSnippetCommands(false);
}

int frmEasyText::selectedPosition() const {
  QListWidgetItem* item = lstSections_->currentItem();
  return item && item->isSelected() ? lstSections_->row(item) : -1;
}

void frmEasyText::setSnippetCommands(bool on) {
  mnuSave_->setEnabled(on);
  mnuDelete_->setEnabled(on);
}

void frmEasyText::onSectionChosen() {
  const int p = selectedPosition();
  if (p < 0) return;
  txtEdit_->setPlainText(shown(list_.text(p)));
  memory_.snippet = list_.name(p);
  setSnippetCommands(true);
}

std::string frmEasyText::editText() const {
  QString text = txtEdit_->toPlainText();
  text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
  return toBytes(text);
}

void frmEasyText::onInsert() {
  // With no document open there is nowhere to put it, and nothing to say about that.
  WorkspaceDocument* document = activeDocument_ ? activeDocument_() : nullptr;
  if (!document) return;
  const std::string text = editText();
  const long start = document->selectionStart();
  document->replaceSelection(text);
  // The caret goes after the text, as typing it would leave it, so a second Insert adds again.
  document->setSelection(start + static_cast<long>(text.size()), 0);
}

void frmEasyText::onCopy() { QApplication::clipboard()->setText(fromBytes(editText())); }

void frmEasyText::onNew() {
  const auto answer = dialogs().askText(kNewPrompt, kNewCaption, "");
  if (!answer || trimBlanks(*answer).empty()) return;
  // A name already in the category chooses that snippet rather than making a second one.
  int position = list_.positionOf(*answer);
  if (position < 0) {
    position = list_.append(*answer);
    lstSections_->addItem(fromBytes(*answer));
  }
  lstSections_->setCurrentRow(position);
  onSectionChosen();
}

void frmEasyText::onSave() { report(list_.store(selectedPosition(), editText())); }

void frmEasyText::onDelete() {
  const int p = selectedPosition();
  if (p < 0) return;
  const auto failed = list_.remove(p);
  delete lstSections_->takeItem(p);
  lstSections_->setCurrentRow(-1);
  txtEdit_->clear();
  memory_.snippet.clear();
  setSnippetCommands(false);
  report(failed);
}

void frmEasyText::report(const std::optional<std::string>& message) {
  if (message) dialogs().message(*message, kAppTitle, Buttons::Ok, Icon::Information);
}

}  // namespace lathwick::gui

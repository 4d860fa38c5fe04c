#include "extend/gui/frm_send_to.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "document/paths.h"
#include "platform/gui/dialogs.h"
#include "platform/app_names.h"
#include "platform/gui/help_key.h"
#include "transform/gui/text_bytes.h"

namespace lathwick::gui {
namespace {
constexpr const char* kBrowseTitle = "Find Program File";
constexpr const char* kBrowseFilter = "Program File (*.EXE;*.BAT)|*.exe;*.bat|All Files (*.*)|*.*";

QPushButton* button(const char* object, const QString& caption, QWidget* parent) {
  auto* b = new QPushButton(caption, parent);
  b->setObjectName(QString::fromLatin1(object));
  b->setAutoDefault(false);
  return b;
}

QLineEdit* field(const char* object, const char* tip, QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(QString::fromLatin1(object));
  edit->setToolTip(QString::fromLatin1(tip));
  return edit;
}

QLabel* label(const char* object, const char* caption, QWidget* buddy, QWidget* parent) {
  auto* l = new QLabel(QString::fromLatin1(caption), parent);
  l->setObjectName(QString::fromLatin1(object));
  l->setBuddy(buddy);
  return l;
}
}  // namespace

frmSendTo::frmSendTo(const std::string& datName, QWidget* parent) : QDialog(parent), list_(datName) {
  setObjectName(QStringLiteral("frmSendTo"));
  setWindowTitle(QStringLiteral("Send-To List"));
  buildControls();
  addHelpKey(this, "sendto.html");
}

void frmSendTo::buildControls() {
  txtTitle_ = field("txtTitle", "Change this field to enable \"Add\" button.", this);
  txtExePath_ = field("txtExePath", "Type the path and file name or use the browse button.", this);
  txtParameters_ = field("txtParameters", "See specific program documentation for available parameters.", this);
  lstSendTo_ = new QListWidget(this);
  lstSendTo_->setObjectName(QStringLiteral("lstSendTo"));
  lstSendTo_->setToolTip(QStringLiteral("Click items in list to re-position, edit, add or remove."));
  cmdAdd_ = button("cmd1(0)", QStringLiteral("&Add"), this);
  cmdRemove_ = button("cmd1(1)", QStringLiteral("&Remove"), this);
  cmdSave_ = button("cmd1(2)", QStringLiteral("&Save"), this);
  cmdBrowse_ = button("cmdBrowse", QStringLiteral("&Browse"), this);
  cmdUp_ = button("cmdupDn(0)", QString(), this);
  cmdDown_ = button("cmdupDn(1)", QString(), this);
  cmdUp_->setIcon(style()->standardIcon(QStyle::SP_ArrowUp));
  cmdDown_->setIcon(style()->standardIcon(QStyle::SP_ArrowDown));
  cmdUp_->setToolTip(QStringLiteral("Moves selected program up in list."));
  cmdDown_->setToolTip(QStringLiteral("Moves selected program down in list."));

  auto* layout = new QGridLayout(this);
  layout->addWidget(label("lblTitle", "&Title to be shown in menu.", txtTitle_, this), 0, 0, 1, 2);
  layout->addWidget(txtTitle_, 1, 0);
  layout->addWidget(label("lblExePath", "Full path and file &name to the external program.", txtExePath_, this), 2, 0, 1, 2);
  layout->addWidget(txtExePath_, 3, 0);
  layout->addWidget(cmdBrowse_, 3, 1);
  layout->addWidget(label("lblParameters", "&Parameters to be passed to the external program.", txtParameters_, this),
                    4, 0, 1, 2);
  layout->addWidget(txtParameters_, 5, 0);
  layout->addWidget(lstSendTo_, 6, 0);
  auto* moves = new QVBoxLayout;
  moves->addStretch();
  moves->addWidget(cmdUp_);
  moves->addWidget(cmdDown_);
  moves->addStretch();
  layout->addLayout(moves, 6, 1);
  auto* commands = new QHBoxLayout;
  for (QPushButton* b : {cmdAdd_, cmdRemove_, cmdSave_}) commands->addWidget(b);
  commands->addStretch();
  layout->addLayout(commands, 7, 0, 1, 2);
  resize(520, 420);

  for (QPushButton* b : {cmdAdd_, cmdRemove_, cmdSave_, cmdUp_, cmdDown_}) b->setEnabled(false);
  connect(lstSendTo_, &QListWidget::itemClicked, this, &frmSendTo::onItemClicked);
  connect(lstSendTo_, &QListWidget::currentRowChanged, this, [this] { updateMoves(); });
  connect(txtTitle_, &QLineEdit::textEdited, this, &frmSendTo::onTitleChanged);
  connect(txtExePath_, &QLineEdit::textEdited, this, &frmSendTo::onFieldChanged);
  connect(txtParameters_, &QLineEdit::textEdited, this, &frmSendTo::onFieldChanged);
  connect(cmdAdd_, &QPushButton::clicked, this, &frmSendTo::onAdd);
  connect(cmdRemove_, &QPushButton::clicked, this, &frmSendTo::onRemove);
  connect(cmdSave_, &QPushButton::clicked, this, &frmSendTo::onSave);
  connect(cmdBrowse_, &QPushButton::clicked, this, &frmSendTo::onBrowse);
  connect(cmdUp_, &QPushButton::clicked, this, [this] { onMove(-1); });
  connect(cmdDown_, &QPushButton::clicked, this, [this] { onMove(1); });
}

void frmSendTo::load() {
  if (const auto failed = list_.read()) dialogs().message(*failed, kAppTitle, Buttons::Ok, Icon::Information);
  fillList();
}

void frmSendTo::fillList() {
  lstSendTo_->clear();
  for (int p = 0; p < list_.count(); ++p) {
    auto* item = new QListWidgetItem(fromBytes(list_.at(p).title), lstSendTo_);
    item->setData(Qt::UserRole, list_.itemData(p));
  }
  updateMoves();
}

int frmSendTo::selectedPosition() const {
  QListWidgetItem* item = lstSendTo_->currentItem();
  return item && item->isSelected() ? lstSendTo_->row(item) : -1;
}

extend::SendToEntry frmSendTo::fields() const {
  return {toBytes(txtTitle_->text()), toBytes(txtExePath_->text()), toBytes(txtParameters_->text())};
}

void frmSendTo::updateMoves() {
  const int p = selectedPosition();
  cmdUp_->setEnabled(p > 0);
  cmdDown_->setEnabled(p >= 0 && p + 1 < lstSendTo_->count());
}

void frmSendTo::onItemClicked() {
  const int p = selectedPosition();
  if (p < 0) return;
  const extend::SendToEntry& entry = list_.at(p);
  txtTitle_->setText(fromBytes(entry.title));
  txtExePath_->setText(fromBytes(entry.program));
  txtParameters_->setText(fromBytes(entry.parameters));
  cmdAdd_->setEnabled(false);  // its title is in the list
  cmdRemove_->setEnabled(true);
  cmdSave_->setEnabled(false);
  updateMoves();
}

void frmSendTo::onTitleChanged() { cmdAdd_->setEnabled(!list_.titleInUse(toBytes(txtTitle_->text()))); }

void frmSendTo::onFieldChanged() { cmdSave_->setEnabled(selectedPosition() >= 0); }

void frmSendTo::onAdd() { finish(list_.add(fields()), true); }

void frmSendTo::onSave() { finish(list_.save(selectedPosition(), fields()), true); }

void frmSendTo::onRemove() {
  const int p = selectedPosition();
  if (p < 0) return;
  const auto message = list_.remove(p);
  if (!message) {
    txtTitle_->clear();
    txtExePath_->clear();
    txtParameters_->clear();
  }
  finish(message, true);
}

void frmSendTo::finish(const std::optional<std::string>& message, bool written) {
  if (message) {
    // A refusal, or a write or read-back that failed: the list keeps what it held.
    dialogs().message(*message, kAppTitle, Buttons::Ok, Icon::Information);
    return;
  }
  fillList();
  for (QPushButton* b : {cmdAdd_, cmdRemove_, cmdSave_, cmdUp_, cmdDown_}) b->setEnabled(false);
  if (written) emit listSaved();
}

void frmSendTo::onBrowse() {
  std::string current = toBytes(txtExePath_->text());
  FileRequest request{false, kBrowseTitle, kBrowseFilter, current.empty() ? std::string("/usr/bin") : PathOf(current), ""};
  const auto chosen = dialogs().chooseFile(request);
  if (!chosen) return;
  txtExePath_->setText(fromBytes(*chosen));
  onFieldChanged();
}

void frmSendTo::onMove(int direction) {
  const int p = selectedPosition();
  if (!list_.move(p, direction)) return;
  QListWidgetItem* item = lstSendTo_->takeItem(p);
  lstSendTo_->insertItem(p + direction, item);
  lstSendTo_->setCurrentItem(item);
  item->setSelected(true);
  cmdSave_->setEnabled(true);  // the new order is written with the next save
  updateMoves();
}

}  // namespace lathwick::gui

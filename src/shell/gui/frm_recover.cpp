#include "shell/gui/frm_recover.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/app_names.h"

namespace lathwick::gui {

namespace {
QString q(const std::string& s) { return QString::fromLocal8Bit(s.c_str()); }

QString kindText(const RecoveryIndex& index) {
  if (index.kind == RecoveredKind::Rich) return QStringLiteral("Rich text");
  return index.lineEnds == LineEnds::Lf ? QStringLiteral("Text, LF line ends") : QStringLiteral("Text");
}
}  // namespace

QString recoveryTimeText(std::int64_t secondsSince1970) {
  return QDateTime::fromSecsSinceEpoch(secondsSince1970).toString(QStringLiteral("yyyy-MM-dd hh:mm"));
}

frmRecover::frmRecover(const std::vector<RecoveredDocument>& documents, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("frmRecover"));
  setWindowTitle(QStringLiteral("Recovered Documents"));
  auto* layout = new QVBoxLayout(this);
  auto* intro = new QLabel(QStringLiteral(
      "Lathwick did not close normally last time. These documents had changes that were not saved.\n"
      "Open brings the ticked ones back as changed documents under their own names: nothing is written\n"
      "to their files until you save them."), this);
  layout->addWidget(intro);

  list_ = new QTreeWidget(this);
  list_->setObjectName(QStringLiteral("lstDocuments"));
  list_->setRootIsDecorated(false);
  list_->setHeaderLabels({QStringLiteral("Document"), QStringLiteral("File"), QStringLiteral("Copy made"),
                          QStringLiteral("Kind")});
  for (const RecoveredDocument& document : documents) {
    const RecoveryIndex& index = document.index;
    auto* row = new QTreeWidgetItem(list_);
    row->setText(0, q(recoveredDocumentName(index)));
    row->setText(1, index.originalPath.empty() ? QStringLiteral("(never saved)") : q(index.originalPath));
    row->setToolTip(1, row->text(1));
    row->setText(2, recoveryTimeText(index.savedAt));
    row->setText(3, kindText(index));
    row->setFlags(row->flags() | Qt::ItemIsUserCheckable);
    row->setCheckState(0, Qt::Checked);
  }
  // Wide enough to show every column whole, up to most of a screen.
  int width = 2 * list_->frameWidth() + 8;
  for (int column = 0; column < list_->columnCount(); ++column) {
    list_->resizeColumnToContents(column);
    width += list_->columnWidth(column);
  }
  list_->setMinimumWidth(std::clamp(width, 560, 1100));
  layout->addWidget(list_);
  connect(list_, &QTreeWidget::itemChanged, this, [this] { updateButtons(); });

  auto* buttons = new QHBoxLayout;
  open_ = new QPushButton(QStringLiteral("&Open"), this);
  open_->setObjectName(QStringLiteral("cmdOpen"));
  discard_ = new QPushButton(QStringLiteral("&Discard"), this);
  discard_->setObjectName(QStringLiteral("cmdDiscard"));
  keep_ = new QPushButton(QStringLiteral("&Keep for Later"), this);
  keep_->setObjectName(QStringLiteral("cmdKeep"));
  buttons->addStretch();
  for (QPushButton* b : {open_, discard_, keep_}) buttons->addWidget(b);
  layout->addLayout(buttons);
  open_->setDefault(true);
  connect(open_, &QPushButton::clicked, this, [this] { choose(RecoveryChoice::Open); });
  connect(discard_, &QPushButton::clicked, this, [this] { choose(RecoveryChoice::Discard); });
  connect(keep_, &QPushButton::clicked, this, [this] { choose(RecoveryChoice::KeepForLater); });
  updateButtons();
}

std::vector<bool> frmRecover::ticked() const {
  std::vector<bool> out;
  for (int i = 0; i < list_->topLevelItemCount(); ++i) out.push_back(list_->topLevelItem(i)->checkState(0) == Qt::Checked);
  return out;
}

QPushButton* frmRecover::button(RecoveryChoice choice) const {
  return choice == RecoveryChoice::Open ? open_ : choice == RecoveryChoice::Discard ? discard_ : keep_;
}

void frmRecover::choose(RecoveryChoice choice) {
  choice_ = choice;
  accept();
}

void frmRecover::updateButtons() {
  bool any = false;
  for (const bool t : ticked()) any = any || t;
  open_->setEnabled(any);
  discard_->setEnabled(any);
}

}  // namespace lathwick::gui

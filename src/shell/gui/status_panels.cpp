#include "shell/gui/status_panels.h"

#include <QDateTime>
#include <QLocale>
#include <QMouseEvent>
#include <QStatusBar>
#include <QTimer>

namespace lathwick::gui {

void StatusPanel::mousePressEvent(QMouseEvent* event) {
  emit pressed(event->button());
  QLabel::mousePressEvent(event);
}

StatusPanels::StatusPanels(QStatusBar* bar) : QObject(bar), clock_(new QTimer(this)) {
  bar->setSizeGripEnabled(true);
  StatusPanel* message = add("Stat", QString::fromLatin1(kHelpPrompt), 2540, true);
  connect(message, &StatusPanel::pressed, this, [this](Qt::MouseButton) { emit messagePressed(); });
  add("Range", QStringLiteral("Line"), 656);
  add("Date", QString(), 1100);
  add("Time", QString(), 800);
  add("Caps", QStringLiteral("CAPS"), 600);
  add("Num", QStringLiteral("NUM"), 600);
  add("Ins", QStringLiteral("INS"), 500);
  add("Blank", QString(), 300);
  for (int n = 1; n <= 3; ++n) {
    StatusPanel* book = add("Book" + std::to_string(n), QString::number(n), 529);
    book->setAlignment(Qt::AlignCenter);
    book->setToolTip(QString::fromLatin1(kBookmarkTip));
    book->setFrameShadow(QFrame::Raised);
    connect(book, &StatusPanel::pressed, this, [this, n](Qt::MouseButton button) { emit bookmarkPressed(n, button); });
  }
  setLockKeys(false, false);
  setOverwrite(false);
  refreshClock();
  connect(clock_, &QTimer::timeout, this, &StatusPanels::refreshClock);
  clock_->start(1000);
}

StatusPanel* StatusPanels::add(const std::string& key, const QString& text, int twips, bool stretch) {
  auto* label = new StatusPanel(text);
  label->setObjectName(QString::fromLatin1(key.c_str()));
  label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
  label->setMinimumWidth(twipsToPixels(twips));
  auto* bar = static_cast<QStatusBar*>(parent());
  if (stretch)
    bar->addWidget(label, 1);
  else
    bar->addPermanentWidget(label);
  panels_[key] = label;
  return label;
}

StatusPanel* StatusPanels::panel(const std::string& key) const {
  auto it = panels_.find(key);
  return it == panels_.end() ? nullptr : it->second;
}

void StatusPanels::setText(const std::string& key, const std::string& text) {
  if (StatusPanel* p = panel(key)) p->setText(QString::fromLocal8Bit(text.c_str()));
}

std::string StatusPanels::text(const std::string& key) const {
  StatusPanel* p = panel(key);
  return p ? p->text().toLocal8Bit().toStdString() : std::string();
}

void StatusPanels::setOverwrite(bool overwrite) { panel("Ins")->setEnabled(!overwrite); }

void StatusPanels::setLockKeys(bool caps, bool num) {
  panel("Caps")->setEnabled(caps);
  panel("Num")->setEnabled(num);
}

void StatusPanels::refreshClock() {
  const QDateTime now = QDateTime::currentDateTime();
  const QLocale locale;
  panel("Date")->setText(locale.toString(now.date(), QLocale::ShortFormat));
  panel("Time")->setText(locale.toString(now.time(), QLocale::ShortFormat));
}

void StatusPanels::markBookmark(int number) {
  marked_ = number;
  for (int n = 1; n <= 3; ++n)
    panel("Book" + std::to_string(n))->setFrameShadow(n == number ? QFrame::Sunken : QFrame::Raised);
}

}  // namespace lathwick::gui

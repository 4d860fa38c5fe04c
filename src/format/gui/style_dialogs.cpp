#include "format/gui/style_dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QInputDialog>
#include <QPushButton>
#include <QVBoxLayout>

namespace lathwick::gui {

namespace {

QColor qColour(std::int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }
std::int32_t recordColour(const QColor& c) { return c.red() | (c.green() << 8) | (c.blue() << 16); }

// The font dialog with its effects: Qt's font dialog has no colour, so a colour button sits
// beside it, and underline and strike-out are its own effects.
class FontWithColourDialog : public QDialog {
 public:
  FontWithColourDialog(const FontChoice& initial, QWidget* parent) : QDialog(parent), colour_(qColour(initial.colour)) {
    setWindowTitle(QStringLiteral("Font"));
    auto* layout = new QVBoxLayout(this);
    fonts_ = new QFontDialog(this);
    fonts_->setOptions(QFontDialog::NoButtons);
    QFont font(QString::fromLatin1(initial.name.c_str()), initial.size);
    font.setBold(initial.bold);
    font.setItalic(initial.italic);
    font.setUnderline(initial.underline);
    font.setStrikeOut(initial.strikeout);
    fonts_->setCurrentFont(font);
    layout->addWidget(fonts_);
    colourButton_ = new QPushButton(QStringLiteral("&Color..."), this);
    connect(colourButton_, &QPushButton::clicked, this, [this] {
      const QColor chosen = QColorDialog::getColor(colour_, this);
      if (chosen.isValid()) setColour(chosen);
    });
    setColour(colour_);
    layout->addWidget(colourButton_);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
  }
  FontChoice choice() const {
    const QFont f = fonts_->currentFont();
    return {f.family().toLatin1().toStdString(), qRound(f.pointSizeF()), recordColour(colour_),
            f.bold(), f.italic(), f.underline(), f.strikeOut()};
  }

 private:
  void setColour(const QColor& colour) {
    colour_ = colour;
    colourButton_->setStyleSheet(QStringLiteral("QPushButton { color: %1; }").arg(colour.name()));
  }
  QFontDialog* fonts_;
  QPushButton* colourButton_;
  QColor colour_;
};

class QtStyleDialogs : public StyleDialogs {
 public:
  std::optional<FontChoice> chooseFont(const FontChoice& initial) override {
    FontWithColourDialog dialog(initial, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.choice();
  }
  std::optional<std::int32_t> chooseColour(std::int32_t initial) override {
    const QColor chosen = QColorDialog::getColor(qColour(initial), QApplication::activeWindow());
    if (!chosen.isValid()) return std::nullopt;
    return recordColour(chosen);
  }
  std::optional<std::string> query(const std::string& prompt, const std::string& initial) override {
    bool ok = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), QStringLiteral("Lathwick"),
                                               QString::fromLatin1(prompt.c_str()), QLineEdit::Normal,
                                               QString::fromLatin1(initial.c_str()), &ok);
    if (!ok) return std::nullopt;
    return text.toLatin1().toStdString();
  }
};

StyleDialogs*& current() {
  static QtStyleDialogs real;
  static StyleDialogs* inUse = &real;
  return inUse;
}

}  // namespace

StyleDialogs& styleDialogs() { return *current(); }

ScopedStyleDialogs::ScopedStyleDialogs(StyleDialogs& replacement) : previous_(current()) { current() = &replacement; }
ScopedStyleDialogs::~ScopedStyleDialogs() { current() = previous_; }

}  // namespace lathwick::gui

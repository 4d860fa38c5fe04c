#include "extend/gui/toolpath_setup.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

#include "format/scheme_record.h"
#include "platform/gui/help_key.h"

namespace lathwick::gui {

using namespace lathwick::toolpath;

namespace {

constexpr const char* kColourNames[kPathColourCount] = {"&Rapid moves", "F&eed moves", "Arcs &clockwise",
                                                         "Arcs c&ounter-clockwise", "&Background"};

QColor qColour(std::int32_t rgb) { return QColor(rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF); }
std::int32_t rgbOf(const QColor& c) { return c.red() | (c.green() << 8) | (c.blue() << 16); }

}  // namespace

std::optional<PathColours> schemePathColours(const SchemeRecord* scheme) {
  if (!scheme) return std::nullopt;
  return PathColours{scheme->style(0, 3).colour, scheme->style(0, 4).colour, scheme->style(0, 5).colour,
                     scheme->style(0, 6).colour, scheme->backColour};
}

ToolpathSetup::ToolpathSetup(const GraphicsSettings& settings, std::optional<PathColours> scheme, QWidget* parent)
    : QDialog(parent), settings_(settings), scheme_(scheme), view_(new QComboBox(this)), rapids_(new QCheckBox(this)),
      schemeColours_(new QPushButton(QStringLiteral("&Scheme colours"), this)) {
  setObjectName(QStringLiteral("frmToolpathSetup"));
  setWindowTitle(QStringLiteral("Graphics Setup"));
  addHelpKey(this, "toolpath.html");
  auto* form = new QFormLayout(this);
  view_->addItems({QStringLiteral("Top"), QStringLiteral("Front"), QStringLiteral("Side"), QStringLiteral("Isometric")});
  view_->setCurrentIndex(static_cast<int>(settings_.view));
  form->addRow(QStringLiteral("&View:"), view_);
  rapids_->setText(QStringLiteral("Show ra&pid moves"));
  rapids_->setChecked(settings_.showRapids);
  form->addRow(rapids_);
  for (int i = 0; i < kPathColourCount; ++i) {
    colourButtons_[i] = new QPushButton(this);
    const auto which = static_cast<PathColour>(i);
    connect(colourButtons_[i], &QPushButton::clicked, this, [this, which] { chooseColour(which); });
    form->addRow(QString::fromLatin1(kColourNames[i]) + QLatin1Char(':'), colourButtons_[i]);
  }
  connect(schemeColours_, &QPushButton::clicked, this, [this] {
    settings_.colours.fill(-1);
    showColours();
  });
  form->addRow(schemeColours_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::accepted, this, [this] {
    settings_.view = static_cast<ViewKind>(view_->currentIndex());
    settings_.showRapids = rapids_->isChecked();
    accept();
  });
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  form->addRow(buttons);
  showColours();
}

void ToolpathSetup::chooseColour(PathColour which) {
  const QColor now = qColour(settings_.colour(which, scheme_ ? &*scheme_ : nullptr));
  const QColor chosen = QColorDialog::getColor(now, this, QString::fromLatin1(kColourNames[static_cast<int>(which)]).remove(QLatin1Char('&')));
  if (!chosen.isValid()) return;
  settings_.colours[static_cast<std::size_t>(which)] = rgbOf(chosen);
  showColours();
}

void ToolpathSetup::showColours() {
  for (int i = 0; i < kPathColourCount; ++i) {
    const auto which = static_cast<PathColour>(i);
    const QColor c = qColour(settings_.colour(which, scheme_ ? &*scheme_ : nullptr));
    const bool fromScheme = settings_.colours[static_cast<std::size_t>(i)] < 0;
    colourButtons_[i]->setText(fromScheme ? QStringLiteral("(scheme)") : c.name());
    colourButtons_[i]->setStyleSheet(QStringLiteral("background-color: %1; color: %2")
                                         .arg(c.name(), c.lightness() < 128 ? QStringLiteral("white") : QStringLiteral("black")));
  }
}

}  // namespace lathwick::gui

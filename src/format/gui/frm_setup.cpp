// The scheme editor's controls: building them, filling them from the current record, and what
// pressing or typing in them does. The record operations are in frm_setup_records.cpp.
#include "format/gui/frm_setup.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "format/rich_text_builder.h"
#include "format/scheme_edits.h"
#include "platform/bytes.h"
#include "document/gui/rich_text_box.h"
#include "platform/gui/help_key.h"

namespace lathwick::gui {

namespace {

QString latin(const std::string& s) { return QString::fromLatin1(s.data(), static_cast<qsizetype>(s.size())); }
QString cssColour(std::int32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF).name(); }

}  // namespace

frmSetup::frmSetup(SetupHost& host, QWidget* parent) : QDialog(parent), host_(host) {
  setObjectName(QStringLiteral("frmSetup"));
  setWindowTitle(QStringLiteral("Edit Schemes"));
  addHelpKey(this, "schemes.html");
  buildControls();
  buildMenus();
  loadList(host_.rememberedRecord());
}

frmSetup::~frmSetup() = default;

void frmSetup::buildControls() {
  auto* layout = new QVBoxLayout(this);
  auto* top = new QHBoxLayout;
  cboScheme_ = new QComboBox(this);
  cboScheme_->setObjectName(QStringLiteral("cboScheme"));
  cboScheme_->setEditable(true);
  cboScheme_->setInsertPolicy(QComboBox::NoInsert);
  cboScheme_->setMinimumWidth(200);
  connect(cboScheme_, &QComboBox::activated, this, &frmSetup::chooseScheme);
  connect(cboScheme_->lineEdit(), &QLineEdit::textEdited, this, &frmSetup::onNameEdited);
  cboIndent_ = new QComboBox(this);
  cboIndent_->setObjectName(QStringLiteral("cboIndent"));
  for (int i = 0; i < kIndentStepChoices; ++i) cboIndent_->addItem(QString::number(i));
  connect(cboIndent_, &QComboBox::activated, this, &frmSetup::onIndentChosen);
  top->addWidget(new QLabel(QStringLiteral("Scheme:"), this));
  top->addWidget(cboScheme_, 1);
  top->addWidget(new QLabel(QStringLiteral("Indent:"), this));
  top->addWidget(cboIndent_);
  layout->addLayout(top);
  layout->addWidget(buildStyleGrid());

  lblFont_ = new QLabel(this);
  lblFont_->setObjectName(QStringLiteral("lblFont"));
  layout->addWidget(lblFont_);
  auto* bottom = new QHBoxLayout;
  rtfSample_ = new RichTextBox(this);
  rtfSample_->setObjectName(QStringLiteral("rtfSample"));
  rtfSample_->setReadOnly(true);
  rtfSample_->setFixedHeight(48);
  rtfSample_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  rtfSample_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  bottom->addWidget(rtfSample_, 1);
  cmdEdit_ = new QPushButton(QStringLiteral("&Edit"), this);
  cmdEdit_->setObjectName(QStringLiteral("cmdEdit"));
  connect(cmdEdit_, &QPushButton::clicked, this, &frmSetup::editStyle);
  bottom->addWidget(cmdEdit_);
  layout->addLayout(bottom);
}

QWidget* frmSetup::buildStyleGrid() {
  auto* row = new QWidget(this);
  auto* columns = new QHBoxLayout(row);
  columns->setContentsMargins(0, 0, 0, 0);
  auto* fixed = new QGroupBox(QStringLiteral("Styles"), row);
  auto* codes = new QGroupBox(QStringLiteral("Codes"), row);
  auto* fixedGrid = new QGridLayout(fixed);
  auto* codeGrid = new QGridLayout(codes);
  for (int i = 0; i < kStyleCount; ++i) {
    QPushButton* label = label1_[static_cast<std::size_t>(i)] = new QPushButton(QString::fromLatin1(kFixedStyleLabels[static_cast<std::size_t>(i)]), fixed);
    label->setObjectName(QStringLiteral("label1(%1)").arg(i));
    label->setFlat(true);
    label->setCheckable(true);
    label->setAutoFillBackground(true);
    connect(label, &QPushButton::clicked, this, [this, i] { selectStyle(0, i); });
    fixedGrid->addWidget(label, i % 7, i / 7);
    QLineEdit* box = text1_[static_cast<std::size_t>(i)] = new QLineEdit(codes);
    box->setObjectName(QStringLiteral("text1(%1)").arg(i));
    box->setMaxLength(static_cast<int>(kMarkerWidth));
    box->installEventFilter(this);
    connect(box, &QLineEdit::textEdited, this, [this, i](const QString& text) { onMarkerEdited(i, text); });
    codeGrid->addWidget(box, i % 7, i / 7);
  }
  columns->addWidget(fixed, 3);
  columns->addWidget(codes, 2);
  return row;
}

void frmSetup::buildMenus() {
  auto* bar = new QMenuBar(this);
  QMenu* file = bar->addMenu(QStringLiteral("&File"));
  file->setObjectName(QStringLiteral("mnuFile"));
  const auto add = [this, file](const char* name, const char* caption, auto slot) {
    QAction* action = file->addAction(QString::fromLatin1(caption));
    action->setObjectName(QString::fromLatin1(name));
    connect(action, &QAction::triggered, this, slot);
  };
  add("mnuNew", "&New", [this] { NewRecord(); });
  add("mnuSave", "&Save", [this] { saveRecord(); });
  add("mnuCopy", "&Copy", [this] { copyRecord(); });
  add("mnuDelete", "&Delete", [this] { RemoveRecord(); });
  file->addSeparator();
  add("mnuExit", "E&xit", [this] { close(); });
  layout()->setMenuBar(bar);
}

void frmSetup::showRecord() {
  filling_ = true;
  cboIndent_->setCurrentIndex(std::clamp<int>(record_.indentSteps(), 0, kIndentStepChoices - 1));
  for (int i = 0; i < kStyleCount; ++i)
    text1_[static_cast<std::size_t>(i)]->setText(latin(record_.style(1, i).marker));
  filling_ = false;
  showStyles();
  showSample();
}

// Each label shows its style: its colour on the scheme's background, bold and italic as set.
void frmSetup::showStyles() {
  for (int i = 0; i < kStyleCount; ++i) {
    const SchemeStyle& s = record_.style(0, i);
    const std::int32_t colour = i == kBackgroundStyle ? record_.style(0, kOtherTextStyle).colour : s.colour;
    QPushButton* label = label1_[static_cast<std::size_t>(i)];
    label->setStyleSheet(QStringLiteral("QPushButton { color: %1; background: %2; font-weight: %3; font-style: %4;"
                                        " text-align: left; padding: 2px 6px; border: 2px solid %5; }")
                             .arg(cssColour(colour), cssColour(record_.backColour), s.bold ? "bold" : "normal",
                                  s.italic ? "italic" : "normal",
                                  set_ == 0 && style_ == i ? QStringLiteral("#3070d0") : cssColour(record_.backColour)));
    label->setChecked(set_ == 0 && style_ == i);
  }
}

void frmSetup::showSample() {
  const SchemeStyle& s = record_.style(set_, style_);
  lblFont_->setText(QStringLiteral("Font Name: %1   Size: %2").arg(latin(trimBlanks(s.fontName))).arg(s.size));
  const std::int32_t back = record_.backColour;
  rtfSample_->setBackColor(QColor(back & 0xFF, (back >> 8) & 0xFF, (back >> 16) & 0xFF));
  rtfSample_->setReadOnly(false);  // the control refuses its own loads while read-only
  try {
    rtfSample_->loadFile(writeSample(record_, set_, style_, host_.appFolder()), FileKind::RichText);
  } catch (const std::exception&) {
    rtfSample_->loadRtf(sampleText(record_, set_, style_));  // the folder refused the sample file
  }
  rtfSample_->setReadOnly(true);
}

void frmSetup::selectStyle(int set, int style) {
  set_ = set;
  style_ = style;
  showStyles();
  showSample();
}

void frmSetup::onNameEdited(const QString& text) {
  if (filling_) return;
  record_.name = text.toLatin1().toStdString().substr(0, kSchemeNameWidth);
  markChanged();
}

void frmSetup::onMarkerEdited(int style, const QString& text) {
  if (filling_) return;
  StyleChange change;
  change.marker = text.toLatin1().toStdString();
  changeStyle(record_, 1, style, change);
  markChanged();
}

void frmSetup::onIndentChosen(int steps) {
  changeIndent(record_, steps);
  markChanged();
  showSample();
}

bool frmSetup::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn || event->type() == QEvent::MouseButtonPress)
    for (int i = 0; i < kStyleCount; ++i)
      if (watched == text1_[static_cast<std::size_t>(i)] && !(set_ == 1 && style_ == i)) selectStyle(1, i);
  return QDialog::eventFilter(watched, event);
}

void frmSetup::closeEvent(QCloseEvent* event) {
  ChangedMsg();
  host_.rememberRecord(recordNumber_);
  host_.editorClosed(recordNumber_);
  event->accept();
}

}  // namespace lathwick::gui

#include "extend/gui/toolpath_window.h"

#include <QAction>
#include <QActionGroup>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>
#include <cmath>

#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/frm_editor.h"
#include "document/paths.h"
#include "extend/gui/toolpath_setup.h"
#include "extend/gui/toolpath_view.h"
#include "extend/toolpath/toolpath_text.h"
#include "platform/gui/help_key.h"
#include "platform/pass_result.h"
#include "transform/gui/qt_pass_monitor.h"
#include "workspace/toolpath_reading.h"

namespace lathwick::gui {

using namespace lathwick::toolpath;

namespace {

QColor qColour(std::int32_t rgb) { return QColor(rgb & 0xFF, (rgb >> 8) & 0xFF, (rgb >> 16) & 0xFF); }

QString duration(double minutes) {
  const long seconds = std::lround(minutes * 60);
  return QString::asprintf("%ld:%02ld:%02ld", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

QByteArray fileNameOf(const frmEditor& editor) {
  std::string path = editor.filename();
  return QByteArray::fromStdString(FileNameOf(path));
}

}  // namespace

ToolpathWindow::ToolpathWindow(EditorHost& host, SettingsStore& settings)
    : QWidget(host.frameWidget(), Qt::Window), host_(host), settings_(settings), view_(new ToolpathView(this)), summary_(new QLabel(this)) {
  setObjectName(QStringLiteral("frmToolpath"));
  setWindowTitle(QStringLiteral("Tool Path"));
  addHelpKey(this, "toolpath.html");
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  buildToolbar();
  layout->addWidget(view_, 1);
  summary_->setObjectName(QStringLiteral("lblSummary"));
  summary_->setContentsMargins(6, 3, 6, 3);
  summary_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  summary_->setWordWrap(true);  // the window's width is the user's, not the text's
  layout->addWidget(summary_);
  connect(view_, &ToolpathView::moveClicked, this, &ToolpathWindow::goToMove);
  resize(720, 560);
  applySettings();
}

void ToolpathWindow::buildToolbar() {
  auto* bar = new QToolBar(this);
  layout()->addWidget(bar);
  auto* views = new QActionGroup(this);
  const std::pair<const char*, ViewKind> kViews[] = {
      {"&Top", ViewKind::Top}, {"&Front", ViewKind::Front}, {"&Side", ViewKind::Side}, {"&Isometric", ViewKind::Isometric}};
  for (const auto& [caption, kind] : kViews) {
    QAction* a = bar->addAction(QString::fromLatin1(caption), this, [this, kind = kind] { view_->setViewKind(kind); });
    a->setCheckable(true);
    a->setData(static_cast<int>(kind));
    views->addAction(a);
  }
  bar->addSeparator();
  bar->addAction(QStringLiteral("Zoom to &Fit"), this, [this] { view_->zoomToFit(); });
  rapids_ = bar->addAction(QStringLiteral("&Rapids"), this, [this](bool on) {
    view_->setShowRapids(on);
    view_->zoomToFit();
  });
  rapids_->setCheckable(true);
}

void ToolpathWindow::applySettings() {
  const GraphicsSettings s = GraphicsSettings::load(settings_);
  const std::optional<toolpath::PathColours> fromScheme = schemePathColours(host_.currentSchemeRecord());
  const toolpath::PathColours* scheme = fromScheme ? &*fromScheme : nullptr;
  PathColours c;
  c.rapid = qColour(s.colour(PathColour::Rapid, scheme));
  c.feed = qColour(s.colour(PathColour::Feed, scheme));
  c.arcCw = qColour(s.colour(PathColour::ArcCw, scheme));
  c.arcCcw = qColour(s.colour(PathColour::ArcCcw, scheme));
  c.background = qColour(s.colour(PathColour::Background, scheme));
  c.marked = c.background.lightness() < 128 ? QColor(255, 220, 0) : QColor(255, 120, 0);
  view_->setColours(c);
  view_->setShowRapids(s.showRapids);
  rapids_->setChecked(s.showRapids);
  for (QAction* a : findChildren<QAction*>())
    if (a->isCheckable() && a != rapids_) a->setChecked(a->data().toInt() == static_cast<int>(s.view));
  view_->setViewKind(s.view);
}

bool ToolpathWindow::showFor(frmEditor& editor) {
  ModelOptions options;
  options.reader = toolpathReaderOptions(editor.passFrame());
  const std::string text = editor.rtfTextBox().text();
  auto program = std::make_unique<ModelledProgram>();
  {
    BusyCursor busy;
    host_.setPassRunning(true);
    QtPassMonitor monitor(nullptr, [this](const std::string& t) { host_.setPanelText("Stat", t); }, host_.frameWidget());
    *program = modelProgramText(text, options, monitor);
    host_.setPassRunning(false);
  }
  host_.setPanelText("Stat", kReadyStatus);
  if (program->cancelled) return false;
  program_ = std::move(program);
  path_ = std::make_shared<PathLines>(buildPathLines(*program_));
  view_->setPath(path_, program_->summary.allExtents);
  if (editor_ != &editor) {
    disconnect(caretConnection_);
    editor_ = &editor;
    caretConnection_ = connect(&editor.rtfTextBox(), &TextControl::selectionChanged, this, &ToolpathWindow::followCaret);
  }
  setWindowTitle(QStringLiteral("Tool Path - ") + QString::fromLocal8Bit(fileNameOf(editor)));
  showSummary();
  followCaret();
  return true;
}

QString ToolpathWindow::summaryText() const {
  if (!program_) return {};
  const PathSummary& s = program_->summary;
  const QString unit = QString::fromLatin1(unitsName(s.displayUnits()));
  QString text;
  if (s.allExtents.empty) {
    text = QStringLiteral("No moves.");
  } else {
    const Extents& e = s.feedExtents.empty ? s.allExtents : s.feedExtents;
    for (int axis = 0; axis < 3; ++axis)
      text += QString::asprintf("%c %s to %s   ", "XYZ"[axis], fixed4(e.min[axis]).c_str(), fixed4(e.max[axis]).c_str());
    text += unit + QStringLiteral("\nFeed %1  Rapid %2   Time %3")
                       .arg(QString::fromStdString(fixed4(s.feedLength)), QString::fromStdString(fixed4(s.rapidLength)),
                            duration(s.feedMinutes));
  }
  if (program_->warningCount > 0)
    text += QStringLiteral("\n%1 warning(s), the first: %2")
                .arg(program_->warningCount)
                .arg(QString::fromStdString(warningText(program_->warnings.front())));
  return text;
}

void ToolpathWindow::showSummary() { summary_->setText(summaryText()); }

void ToolpathWindow::followCaret() {
  if (!editor_ || !path_) return;
  const auto [first, last] = movesOfLine(*path_, static_cast<std::uint32_t>(editor_->currentLine() + 1));
  view_->setMarkedMoves(first, last);
}

void ToolpathWindow::goToMove(long move) {
  if (!editor_ || !path_ || move < 0 || static_cast<std::size_t>(move) >= path_->line.size()) return;
  TextControl& text = editor_->rtfTextBox();
  const int line = static_cast<int>(path_->line[static_cast<std::size_t>(move)]) - 1;
  if (line >= text.lineCount()) return;  // the document has changed since the path was made
  text.setSelection(text.lineIndex(line), 0);
}

}  // namespace lathwick::gui

#include "document/gui/frm_editor.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/rich_text_control.h"
#include "document/gui/undo_snapshot.h"
#include "document/selection_length.h"
#include "platform/bytes.h"
#include "format/scheme_data_file.h"
#include "format/scheme_record.h"
#include "workspace/command_dispatch.h"
#include "workspace/gui/menu_set.h"

namespace lathwick::gui {

namespace {
// A window opens wholly inside the frame's working area: the cascade of earlier windows may
// have pushed it past the right or lower edge.
void keepInside(QMdiSubWindow& sub, const QSize& room) {
  if (sub.isMaximized() || sub.isMinimized() || room.isEmpty()) return;
  QRect r = sub.geometry();
  r.setSize(r.size().boundedTo(room));
  if (r.right() >= room.width()) r.moveRight(room.width() - 1);
  if (r.bottom() >= room.height()) r.moveBottom(room.height() - 1);
  r.moveTopLeft(QPoint(std::max(0, r.left()), std::max(0, r.top())));
  if (r != sub.geometry()) sub.setGeometry(r);
}
}  // namespace

frmEditor::frmEditor(EditorHost& frame, int tag) : frame_(frame), tag_(tag), undoable_(frame.undoGroup()) {
  setAttribute(Qt::WA_DeleteOnClose, false);  // the sub-window owns and deletes this window
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  rich_ = new RichTextControl(this);
  text_ = rich_;
  layout->addWidget(text_->widget());
  setFocusProxy(text_->widget());

  menus_ = std::make_unique<MenuSet>(documentMenuTable(), this, frame_.commands(), true);

  QWidget* inner = text_->widget();
  inner->installEventFilter(this);
  inner->setContextMenuPolicy(Qt::PreventContextMenu);
  if (auto* area = qobject_cast<QAbstractScrollArea*>(inner)) area->viewport()->installEventFilter(this);

  connect(text_, &TextControl::textChanged, this, &frmEditor::onTextChanged);
  connect(text_, &TextControl::selectionChanged, this, &frmEditor::onSelectionChanged);
}

frmEditor::~frmEditor() { frame_.forgetEditor(*this); }

RichTextBox& frmEditor::richTextBox() const { return rich_->box(); }

DocumentRecord& frmEditor::record() const { return frame_.documents().record(tag_); }

std::string frmEditor::filename() const { return record().fileName; }

void frmEditor::prepare() {
  // The window comes up, in front, empty and ready for its text; auto format runs once the text
  // is in (the frame sees to it).
  show();
  if (auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget())) {
    sub->show();
    if (QMdiArea* area = sub->mdiArea()) {
      area->setActiveSubWindow(sub);
      keepInside(*sub, area->viewport()->size());
    }
  }
  text_->widget()->setFocus();
}

void frmEditor::setFileUndoable(bool undoable) {
  undoable_.set(undoable);  // the group clears every other window's claim
  En_Dis_able();
}

DefaultTextStyle frmEditor::defaultTextStyle() const {
  DefaultTextStyle style;
  if (const SchemeRecord* scheme = frame_.currentSchemeRecord()) {
    const SchemeStyle& text = scheme->style(0, kOtherTextStyle);
    if (!text.fontName.empty()) style.fontName = text.fontName;
    style.sizePoints = text.size;
    style.foreColour = static_cast<std::uint32_t>(text.colour);
    style.backColour = static_cast<std::uint32_t>(scheme->backColour);
    style.bold = text.bold;
    style.italic = text.italic;
    style.underline = text.underline;
    style.fixedPitch = trimBlanks(text.family) == "fmodern";
    style.indentTwips = scheme->indentSteps() * 200;
  }
  return style;
}

bool frmEditor::reloadDocument(const std::string& path, TextKind kind) {
  const std::unique_ptr<UndoSnapshot> snapshot = std::move(passSnapshot_);
  const bool done = ::lathwick::ReloadDocument(rich_->box(), path,
                                               kind == TextKind::Rich ? FileKind::RichText : FileKind::PlainText,
                                               defaultTextStyle(), frame_.editorFiles().undo, snapshot.get());
  ShowLineNum();
  return done;
}

void frmEditor::ShowLineNum() {
  frame_.setPanelText("Range", "Line " + std::to_string(currentLine() + 1) + " of " +
                                             std::to_string(LineCount()) + " ");
}

long frmEditor::selectionLength() const { return correctedSelectionLength(text_->selStart(), text_->selLength()); }

void frmEditor::En_Dis_able() {
  if (frame_.scriptRunning()) return;
  const bool selection = selectionLength() >= 1;
  for (const char* name : {"mnuLcase", "mnuUcase", "mnuTitlecase", "mnuCut", "mnuCopy", "mnuAppend"})
    menus_->setEnabled(name, selection);
  menus_->setEnabled("mnuUndo", undoable_.get() || text_->canUndo());
  frame_.refreshCommandStates();
}

void frmEditor::Form_Activate() {
  ShowLineNum();
  frame_.setCurrentScheme(record().scheme);
  if (const SchemeRecord* scheme = frame_.currentSchemeRecord())
    text_->setColours(scheme->backColour, scheme->style(0, kOtherTextStyle).colour);
  frame_.setOverwrite(text_->overwriteMode());
  En_Dis_able();
}

void frmEditor::onTextChanged() {
  record().changed = true;
  undoable_.set(false);  // after a hand edit, undo falls back to the control's own
  En_Dis_able();
}

void frmEditor::onSelectionChanged() {
  const int length = static_cast<int>(selectionLength());
  if (length >= 1) frame_.lastSelection() = LastSelection{text_->selStart(), length, text_->selText()};
  if (frame_.activeEditor() == this) En_Dis_able();
}

bool frmEditor::Save() {
  if (saveNeedsName(record().fileName)) return frame_.saveAsPlain(*this);
  return frame_.saveFile(*this, record().fileName);
}

void frmEditor::LoadMenuArray() {
  SchemeList list;
  try {
    list = loadSchemeList(frame_.editorFiles().dataFile, record().scheme);
  } catch (const AppError&) {
    list.dataFileProblem = true;
  }
  if (list.dataFileProblem) frame_.reportDataFileProblem();
  if (list.entries.empty()) return;  // the menu keeps its single placeholder entry
  std::vector<std::string> captions;
  for (const SchemeListEntry& entry : list.entries) captions.push_back(entry.name);
  const auto actions = menus_->setNumberedEntries("mnuColorSchemes", "mnuScheme", 1, captions);
  for (std::size_t i = 0; i < actions.size(); ++i) {
    actions[i]->setCheckable(true);
    actions[i]->setChecked(list.entries[i].record == record().scheme);
  }
}

void frmEditor::applyScheme(int index) {
  record().scheme = static_cast<std::int16_t>(index);
  frame_.setCurrentScheme(record().scheme);
  for (QAction* action : menus_->allActions())
    if (action->objectName().startsWith(QStringLiteral("mnuScheme(")))
      action->setChecked(action == menus_->action("mnuScheme", index));
  if (const SchemeRecord* scheme = frame_.currentSchemeRecord())
    text_->setColours(scheme->backColour, scheme->style(0, kOtherTextStyle).colour);
  Colorize(0);
}

std::string frmEditor::Scheme() const {
  QAction* entry = menus_->action("mnuScheme", frame_.currentScheme());
  return entry ? entry->text().toLatin1().toStdString() : std::string();
}

void frmEditor::setScheme(const std::string& name) {
  for (QAction* action : menus_->allActions()) {
    const QString object = action->objectName();
    if (!object.startsWith(QStringLiteral("mnuScheme(")) || action->text().toLatin1().toStdString() != name) continue;
    const int index = object.mid(10, object.size() - 11).toInt();
    frame_.commands().run("mnuScheme", index);
    return;
  }
}

void frmEditor::closeEvent(QCloseEvent* event) {
  if (frame_.queryClose(*this)) {
    event->ignore();
    return;
  }
  event->accept();
  frame_.forgetWindow(tag_);
}

bool frmEditor::handleAltKey(int key) {
  switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Down:
      for (frmEditor* window : frame_.editors()) window->rtfTextBox().scrollLines(key == Qt::Key_Up ? -1 : 1);
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown: {
      const int top = text_->firstVisibleLine();
      for (frmEditor* window : frame_.editors())
        if (window != this) window->rtfTextBox().scrollLines(top - window->rtfTextBox().firstVisibleLine());
      return true;
    }
    default:
      return false;
  }
}

void frmEditor::changeEvent(QEvent* event) {
  // The caption may be a shortened path: the window's title bar tells the whole path on hover.
  auto* sub = qobject_cast<QMdiSubWindow*>(parentWidget());
  if (event->type() == QEvent::WindowTitleChange && sub && frame_.documents().valid(tag_))
    sub->setToolTip(QString::fromLocal8Bit(filename().c_str()));
  QWidget::changeEvent(event);
}

bool frmEditor::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::ToolTip:
      return true;  // the text itself has none: the window's path tooltip is for its title bar
    case QEvent::KeyPress: {
      auto* key = static_cast<QKeyEvent*>(event);
      const auto mods = key->modifiers() & ~Qt::KeypadModifier;
      if (mods == Qt::AltModifier && handleAltKey(key->key())) return true;
      // Ctrl+Z is Edit > Undo: while the window holds the undo file it brings back the text
      // from before the last transformation; otherwise the control undoes its own last edit.
      if (mods == Qt::ControlModifier && key->key() == Qt::Key_Z && FileUndoable()) {
        Undo();
        return true;
      }
      break;
    }
    case QEvent::KeyRelease:
      ShowLineNum();
      frame_.setOverwrite(text_->overwriteMode());
      break;
    case QEvent::MouseButtonRelease:
      ShowLineNum();
      break;
    case QEvent::MouseButtonPress: {
      auto* mouse = static_cast<QMouseEvent*>(event);
      if (mouse->button() != Qt::RightButton) break;
      const auto mods = mouse->modifiers();
      QMenu* popup = mods == Qt::ControlModifier ? menus_->menu("mnuSend")
                     : mods == Qt::NoModifier    ? menus_->menu("mnuEdit")
                                                 : nullptr;
      if (popup) {
        popup->popup(mouse->globalPosition().toPoint());
        return true;
      }
      break;
    }
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace lathwick::gui

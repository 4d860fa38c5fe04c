#include "shell/gui/frame_scripts.h"

#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QToolBar>
#include <cstdlib>

#include "document/gui/frm_editor.h"
#include "document/gui/rich_text_box.h"
#include "document/paths.h"
#include "platform/app_names.h"
#include "transform/gui/text_bytes.h"
#include "shell/gui/mdi_form.h"
#include "transform/gui/transform_dialogs.h"
#include "workspace/key_recording.h"

namespace lathwick::gui {

namespace {

QMessageBox::StandardButtons buttonsOf(int code) {
  switch (code & 7) {
    case 1: return QMessageBox::Ok | QMessageBox::Cancel;
    case 2: return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case 3: return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case 4: return QMessageBox::Yes | QMessageBox::No;
    case 5: return QMessageBox::Retry | QMessageBox::Cancel;
    default: return QMessageBox::Ok;
  }
}

QMessageBox::Icon iconOf(int code) {
  switch (code & 0x70) {
    case 16: return QMessageBox::Critical;
    case 32: return QMessageBox::Question;
    case 48: return QMessageBox::Warning;
    case 64: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

// The answer codes of the language (vbOK = 1 ... vbNo = 7).
int answerOf(QMessageBox::StandardButton b) {
  switch (b) {
    case QMessageBox::Ok: return 1;
    case QMessageBox::Cancel: return 2;
    case QMessageBox::Abort: return 3;
    case QMessageBox::Retry: return 4;
    case QMessageBox::Ignore: return 5;
    case QMessageBox::Yes: return 6;
    case QMessageBox::No: return 7;
    default: return 2;
  }
}

struct NamedKey {
  const char* name;
  Qt::Key key;
};

constexpr NamedKey kNamedKeys[] = {
    {"BKSP", Qt::Key_Backspace}, {"BS", Qt::Key_Backspace}, {"BACKSPACE", Qt::Key_Backspace},
    {"TAB", Qt::Key_Tab},        {"ENTER", Qt::Key_Return}, {"PGUP", Qt::Key_PageUp},
    {"PGDN", Qt::Key_PageDown},  {"END", Qt::Key_End},      {"HOME", Qt::Key_Home},
    {"LEFT", Qt::Key_Left},      {"UP", Qt::Key_Up},        {"RIGHT", Qt::Key_Right},
    {"DOWN", Qt::Key_Down},      {"INS", Qt::Key_Insert},   {"INSERT", Qt::Key_Insert},
    {"DEL", Qt::Key_Delete},     {"DELETE", Qt::Key_Delete}, {"ESC", Qt::Key_Escape},
};

void postKey(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
  QWidget* target = QApplication::focusWidget();
  if (!target) return;
  QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyPress, key, modifiers, text));
  QCoreApplication::postEvent(target, new QKeyEvent(QEvent::KeyRelease, key, modifiers, text));
}

// The key of a {NAME}: a named key, F1 to F16, or a character in braces ("{+}").
int keyOfName(const std::string& name, QString& text) {
  const std::string upper = QString::fromStdString(name).toUpper().toStdString();
  for (const NamedKey& k : kNamedKeys)
    if (upper == k.name) return k.key;
  if (upper.size() >= 2 && upper[0] == 'F') {
    const int n = std::atoi(upper.c_str() + 1);
    if (n >= 1 && n <= 16) return Qt::Key_F1 + n - 1;
  }
  if (name.size() == 1) {
    text = QString(QLatin1Char(name[0]));
    return QChar(QLatin1Char(name[0])).toUpper().unicode();
  }
  return 0;
}

}  // namespace

FrameScripts::FrameScripts(MDIForm1& frame, const std::string& scriptFolder)
    : QObject(&frame), frame_(frame), procedures_(new QMenu(&frame)) {
  procedures_->setObjectName(QStringLiteral("mnuProcedures"));
  host_ = std::make_unique<ScriptHost>(frame_, *this, scriptFolder);
  vbs::UiCallbacks ui;
  ui.msgBox = [this](const std::string& prompt, int buttons, const std::string& title) {
    QMessageBox box(iconOf(buttons), fromBytes(title.empty() ? std::string(kAppTitle) : title), fromBytes(prompt),
                    buttonsOf(buttons), &frame_);
    return answerOf(static_cast<QMessageBox::StandardButton>(box.exec()));
  };
  ui.inputBox = [this](const std::string& prompt, const std::string& title,
                       const std::string& defaultText) -> std::optional<std::string> {
    bool ok = false;
    const QString text = QInputDialog::getText(&frame_, fromBytes(title.empty() ? std::string(kAppTitle) : title),
                                               fromBytes(prompt), QLineEdit::Normal, fromBytes(defaultText), &ok);
    if (!ok) return std::nullopt;
    return toBytes(text);
  };
  // The window repaints and Esc arrives while a long macro runs.
  ui.poll = [] { QCoreApplication::processEvents(QEventLoop::AllEvents, 20); };
  host_->setUi(std::move(ui));
  host_->setAfterRun([this] {
    for (frmEditor* editor : frame_.editors()) editor->scriptEnded();
    if (!frame_.activeEditor()) frame_.En_Dis_able();
  });
}

FrameScripts::~FrameScripts() = default;

void FrameScripts::executeFile() {
  FileRequest request{false, "Run Script File", "Script Files (*.vbs)|*.vbs", host_->scriptFolder(), ""};
  const std::optional<std::string> chosen = frame_.chooseFile(request);
  if (!chosen) return;
  host_->addScriptFile(*chosen, ShortenPath(*chosen, 25));
}

void FrameScripts::fillProcedures() {
  procedures_->clear();
  for (const MacroEntry& entry : host_->macros()) {
    QAction* action = procedures_->addAction(fromBytes(entry.caption));
    action->setData(fromBytes(entry.tag));
    const std::string tag = entry.tag;
    connect(action, &QAction::triggered, this, [this, tag] { host_->runMacro(tag); });
  }
}

void FrameScripts::execute() {
  QPoint at = frame_.mapToGlobal(frame_.rect().center());
  if (frmEditor* editor = frame_.activeEditor()) {
    if (auto* box = dynamic_cast<RichTextBox*>(editor->rtfTextBox().widget()))
      at = box->viewport()->mapToGlobal(box->caretPixelPosition());
  }
  fillProcedures();
  if (!procedures_->isEmpty()) procedures_->exec(at);
  host_->showScriptError(host_->mainScriptLabel());
}

void FrameScripts::postKeys(const std::string& keys) {
  Qt::KeyboardModifiers modifiers;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const char c = keys[i];
    if (c == '+') { modifiers |= Qt::ShiftModifier; continue; }
    if (c == '^') { modifiers |= Qt::ControlModifier; continue; }
    if (c == '%') { modifiers |= Qt::AltModifier; continue; }
    QString text;
    int key = 0;
    if (c == '{') {
      const std::size_t close = keys.find('}', i + 2);
      if (close == std::string::npos) return;
      key = keyOfName(keys.substr(i + 1, close - i - 1), text);
      i = close;
    } else if (c == '~') {
      key = Qt::Key_Return;
    } else {
      text = QString(QLatin1Char(c));
      key = QChar(QLatin1Char(c)).toUpper().unicode();
    }
    if (key == Qt::Key_Return || key == Qt::Key_Tab) text = key == Qt::Key_Tab ? QStringLiteral("\t") : QStringLiteral("\r");
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier)) text.clear();
    if (key) postKey(key, modifiers, text);
    modifiers = {};
  }
}

namespace {
// The Windows key numbers the recorder's table is written in; 0 for keys it does not know.
int windowsKeyCode(int key) {
  switch (key) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab: return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    default: return key >= Qt::Key_F1 && key <= Qt::Key_F16 ? 112 + (key - Qt::Key_F1) : 0;
  }
}
}  // namespace

void FrameScripts::noteKey(QObject* receiver, const QKeyEvent& event) {
  frmEditor* editor = frame_.activeEditor();
  auto* widget = qobject_cast<QWidget*>(receiver);
  if (!recording_ || !editor || !widget || widget != QApplication::focusWidget() || !editor->isAncestorOf(widget)) return;
  std::string& pending = pendingText_[editor];
  const int code = windowsKeyCode(event.key());
  const Qt::KeyboardModifiers m = event.modifiers();
  if (code == 0) {
    const std::string typed = toBytes(event.text());
    if (!(m & (Qt::ControlModifier | Qt::AltModifier)) && !typed.empty() && static_cast<unsigned char>(typed[0]) >= 32)
      pending += typed;
    return;
  }
  const int shift = ((m & Qt::ShiftModifier) ? kShiftBit : 0) | ((m & Qt::ControlModifier) ? kCtrlBit : 0) |
                    ((m & Qt::AltModifier) ? kAltBit : 0);
  recordKey(host_->scriptFolder() + kKeyboardScriptName, pending, code, shift);
}

void FrameScripts::operate(const transform::OperateEntries& entries) {
  if (frmEditor* editor = frame_.activeEditor()) frame_.transforms().operateUnattended(*editor, entries);
}

void FrameScripts::setToolButtonsVisible(bool visible) {
  for (QToolBar* bar : frame_.findChildren<QToolBar*>())
    for (QAction* action : bar->actions())
      if (!action->isSeparator()) action->setVisible(visible);
  for (const char* key : {"New", "Open", "Help"})
    if (QAction* action = frame_.toolButton(key)) action->setVisible(true);
}

void FrameScripts::loadMenuArray() {
  if (frmEditor* editor = frame_.activeEditor()) editor->LoadMenuArray();
}

void FrameScripts::dlgOpen() { frame_.runCommand("mnuOpen"); }

void registerMacroCommands(CommandDispatcher& commands, FrameScripts& scripts) {
  commands.add("mnuExecuteMacro", [&scripts](int index) {
    if (index == 0) scripts.executeFile();
    else scripts.execute();
  });
  commands.add("mnuReset", [&scripts](int) { scripts.resetCode(); });
  commands.add("mnuRecordKeys", [&scripts](int) { scripts.setRecording(!scripts.recording()); });
}

}  // namespace lathwick::gui

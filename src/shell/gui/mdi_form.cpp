#include "shell/gui/mdi_form.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

#include "document/gui/frm_editor.h"
#include "shell/gui/frame_scripts.h"
#include "extend/gui/motion_check.h"
#include "format/bundled_schemes.h"
#include "format/rich_text_builder.h"
#include "format/scheme_data_file.h"
#include "platform/file_system.h"
#include "platform/gui/command_guard.h"
#include "platform/gui/dialogs.h"
#include "platform/app_folder.h"
#include "workspace/gui/menu_set.h"
#include "shell/gui/frame_look.h"
#include "shell/gui/status_panels.h"
#include "platform/gui/help_key.h"
#include "transform/gui/cancel_flag.h"
#include "transform/gui/pass_observer.h"
#include "transform/gui/transform_dialogs.h"

namespace lathwick::gui {

MDIForm1::MDIForm1(const AppValues& values, SettingsStore& settings, QWidget* parent)
    : QMainWindow(parent),
      values_(values),
      editorFiles_{values.Temp2File, values.Temp3File, values.UndoFile, values.DataFilePath},
      settings_(settings),
      mdi_(new QMdiArea(this)),
      currentScheme_(values.CurrentScheme) {
  setObjectName(QStringLiteral("MDIForm1"));
  setWindowTitle(QString::fromLatin1(kAppTitle));
  setWindowIcon(applicationIcon());
  setHelpFolder(values_.AppFolder + "help/");
  setCentralWidget(mdi_);

  transforms_ = std::make_unique<TransformDialogs>(settings_, this);
  installMotionCheck();  // every pass's result says whether the program's motion changed
  registerCommands();
  frameMenus_ = std::make_unique<MenuSet>(frameMenuTable(), this, commands_, false);
  for (const char* name : kSettingToggles) frameMenus_->action(name)->setCheckable(true);
  buildToolbar();
  panels_ = new StatusPanels(statusBar());
  connect(panels_, &StatusPanels::bookmarkPressed, this, &MDIForm1::onBookmark);
  // A click on the message panel stops a running pass, as Esc does.
  connect(panels_, &StatusPanels::messagePressed, this, [this] {
    requestCancel();
    if (scripts_ && scripts_->host().running()) scripts_->host().interrupt();
  });
  connect(mdi_, &QMdiArea::subWindowActivated, this, &MDIForm1::onSubWindowActivated);
  qApp->installEventFilter(this);
  showMenusOf(nullptr);
  En_Dis_able();
}

MDIForm1::~MDIForm1() {
  setEscapedErrorCleanup({});
  qApp->removeEventFilter(this);
  setPassObserver({});
  // The documents go first: their windows still reach the frame while they are torn down. The
  // frame no longer follows them: its menus and toolbar are going too.
  // Closed windows are no longer in the area's list but still its children: take them all.
  for (frmEditor* editor : findChildren<frmEditor*>()) disconnect(editor, nullptr, this, nullptr);
  windows_.clear();
  for (QMdiSubWindow* sub : mdi_->findChildren<QMdiSubWindow*>()) delete sub;
  transforms_.reset();
}

void MDIForm1::buildToolbar() {
  toolbar_ = addToolBar(QStringLiteral("Toolbar1"));
  toolbar_->setObjectName(QStringLiteral("Toolbar1"));
  toolbar_->setMovable(false);
  toolbar_->setIconSize(QSize(24, 24));
  toolbar_->setToolButtonStyle(Qt::ToolButtonIconOnly);
  for (const ToolbarButton& button : toolbarTable()) {
    if (button.isSeparator()) {
      toolbar_->addSeparator();
      continue;
    }
    QAction* action = toolbar_->addAction(toolbarIcon(button.key), QString::fromLatin1(button.key));
    action->setObjectName(QString::fromLatin1(button.key));
    action->setToolTip(QString::fromLatin1(button.tooltip));
    const std::string command = button.command;
    const int index = button.commandIndex;
    connect(action, &QAction::triggered, this, [this, command, index] { commands_.run(command, index); });
    toolActions_[button.key] = action;
  }
  openButton_ = qobject_cast<QToolButton*>(toolbar_->widgetForAction(toolActions_.at("Open")));
  auto* folders = new QMenu(this);
  for (int n = 1; n <= kQuickFolders; ++n) {
    QAction* folder = folders->addAction(QStringLiteral("Folder%1").arg(n));
    folder->setObjectName(QStringLiteral("Folder%1").arg(n));
    connect(folder, &QAction::triggered, this, [this, n] { openDialog(n); });
    quickFolders_.push_back(folder);
  }
  openButton_->setMenu(folders);
  openButton_->setPopupMode(QToolButton::MenuButtonPopup);
}

QAction* MDIForm1::toolButton(const std::string& key) const {
  auto it = toolActions_.find(key);
  return it == toolActions_.end() ? nullptr : it->second;
}

void MDIForm1::refreshAvailability() {
  frameMenus_->refreshAvailability();
  for (frmEditor* editor : editors()) editor->menus().refreshAvailability();
  En_Dis_able();
}

void MDIForm1::En_Dis_able() {
  frmEditor* editor = activeEditor();
  const bool selection = editor && editor->selectionLength() >= 1;
  const bool undo = editor && (editor->FileUndoable() || editor->rtfTextBox().canUndo());
  for (const ToolbarButton& button : toolbarTable()) {
    if (button.isSeparator()) continue;
    bool on = commands_.has(button.command, button.commandIndex) && (!button.needsDocument || editor);
    const std::string key = button.key;
    if (key == "Cut" || key == "Copy") on = on && selection;
    if (key == "Undo") on = on && undo;
    QAction* action = toolActions_.at(key);
    action->setEnabled(on);
    QString tip = QString::fromLatin1(button.tooltip);
    if (!commands_.has(button.command, button.commandIndex))
      tip += QStringLiteral(" (") + QString::fromLatin1(kNotYetAvailable) + QStringLiteral(")");
    action->setToolTip(tip);
  }
}

QAction* MDIForm1::menuAction(const std::string& name, int index) const {
  if (menusShownFor_) return menusShownFor_->menus().action(name, index);
  return frameMenus_->action(name, index);
}

void MDIForm1::showMenusOf(frmEditor* editor) {
  menuBar()->clear();
  const MenuSet& set = editor ? editor->menus() : *frameMenus_;
  for (QMenu* top : set.topMenus()) menuBar()->addMenu(top);
  menusShownFor_ = editor;
  syncSettingChecks();
}

frmEditor* MDIForm1::activeEditor() const {
  QMdiSubWindow* sub = mdi_->currentSubWindow();
  if (!sub) sub = mdi_->activeSubWindow();
  return sub ? qobject_cast<frmEditor*>(sub->widget()) : nullptr;
}

std::vector<frmEditor*> MDIForm1::editors() const {
  std::vector<frmEditor*> out;
  for (const auto& [index, editor] : windows_) out.push_back(editor);
  return out;
}

frmEditor* MDIForm1::editorOf(int index) const {
  auto it = windows_.find(index);
  return it == windows_.end() ? nullptr : it->second;
}

void MDIForm1::onSubWindowActivated(QMdiSubWindow* window) {
  frmEditor* editor = window ? qobject_cast<frmEditor*>(window->widget()) : activeEditor();
  if (editor != menusShownFor_) showMenusOf(editor);
  if (editor)
    editor->Form_Activate();
  else
    En_Dis_able();
}

void MDIForm1::fillWindowList(QMenu* menu) {
  for (QAction* old : menu->actions())
    if (old->property("windowEntry").toBool()) {
      menu->removeAction(old);
      old->deleteLater();
    }
  const auto windows = mdi_->subWindowList();
  if (windows.isEmpty()) return;
  QAction* separator = menu->addSeparator();
  separator->setProperty("windowEntry", true);
  int n = 0;
  for (QMdiSubWindow* sub : windows) {
    ++n;
    QAction* entry = menu->addAction(QStringLiteral("&%1 %2").arg(n).arg(sub->windowTitle()));
    entry->setProperty("windowEntry", true);
    entry->setCheckable(true);
    entry->setChecked(sub == mdi_->currentSubWindow());
    connect(entry, &QAction::triggered, this, [this, sub] { mdi_->setActiveSubWindow(sub); });
  }
}

void MDIForm1::tileVertically() {
  const auto windows = mdi_->subWindowList();
  if (windows.isEmpty()) return;
  const QRect area = mdi_->viewport()->rect();
  const int width = area.width() / static_cast<int>(windows.size());
  int x = 0;
  for (QMdiSubWindow* sub : windows) {
    sub->showNormal();
    sub->setGeometry(x, 0, width, area.height());
    x += width;
  }
}

void MDIForm1::tileHorizontally() {
  const auto windows = mdi_->subWindowList();
  if (windows.isEmpty()) return;
  const QRect area = mdi_->viewport()->rect();
  const int height = area.height() / static_cast<int>(windows.size());
  int y = 0;
  for (QMdiSubWindow* sub : windows) {
    sub->showNormal();
    sub->setGeometry(0, y, area.width(), height);
    y += height;
  }
}

void MDIForm1::setToolbarVisible(bool visible) {
  toolbar_->setVisible(visible);
  syncSettingChecks();
}

void MDIForm1::setStatusVisible(bool visible) {
  statusBar()->setVisible(visible);
  syncSettingChecks();
}

void MDIForm1::setAutoFormat(bool on) {
  autoFormat_ = on;
  syncSettingChecks();
}

bool MDIForm1::toolbarText() const { return toolbar_->toolButtonStyle() == Qt::ToolButtonTextUnderIcon; }

void MDIForm1::setToolbarText(bool on) {
  toolbar_->setToolButtonStyle(on ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
  syncSettingChecks();
}

void MDIForm1::setLineNumbers(bool on) {
  lineNumbers_ = on;
  for (frmEditor* editor : editors()) showLineNumbers(editor->rtfTextBox().widget(), on);
  syncSettingChecks();
}

void MDIForm1::syncSettingChecks() {
  std::vector<MenuSet*> sets{frameMenus_.get()};
  for (frmEditor* editor : editors()) sets.push_back(&editor->menus());
  for (MenuSet* set : sets) {
    const std::pair<const char*, bool> states[] = {{"mnuToolbar", !toolbar_->isHidden()},
                                                   {"mnuStatus", !statusBar()->isHidden()},
                                                   {"mnuAuto", autoFormat_},
                                                   {"mnuLineNumbers", lineNumbers_},
                                                   {"mnuToolbarText", toolbarText()}};
    for (const auto& [name, on] : states) {
      QAction* action = set->action(name);
      action->setCheckable(true);
      action->setChecked(on);
    }
  }
}

void MDIForm1::forgetTarget(const TransformTarget* target) {
  if (transforms_) transforms_->forget(target);
}

const SchemeRecord* MDIForm1::currentSchemeRecord() {
  if (!schemeRecord_ || schemeRecordNumber_ != currentScheme_) {
    schemeRecord_.reset();
    schemeRecordNumber_ = currentScheme_;
    try {
      schemeRecord_ = loadScheme(values_.DataFilePath, currentScheme_);
    } catch (const std::exception&) {
      // The problem is reported where the scheme list is read. The passes still need a whole
      // scheme to write rich text with: the first of the schemes the program ships with.
      const std::vector<SchemeRecord> shipped = bundledSchemes();
      if (!shipped.empty()) {
        schemeRecord_ = shipped.front();
        buildSchemeFragments(*schemeRecord_);
      }
    }
  }
  return schemeRecord_ ? &*schemeRecord_ : nullptr;
}

void MDIForm1::reportDataFileProblem() {
  if (dataFileProblemShown_) return;
  dataFileProblemShown_ = true;
  dialogs().message(kDataFileProblemMessage, kDataFileProblemTitle, Buttons::Ok, Icon::Exclamation);
}

void MDIForm1::showHelp() {
  if (FileExists(values_.HelpFile))
    dialogs().openInBrowser(values_.HelpFile);
  else
    dialogs().message("The help file " + values_.HelpFile + " could not be found.", kAppTitle, Buttons::Ok,
                      Icon::Information);
}

void MDIForm1::onBookmark(int number, Qt::MouseButton button) {
  panels_->markBookmark(number);
  frmEditor* editor = activeEditor();
  if (!editor) return;
  StatusPanel* panel = panels_->panel("Book" + std::to_string(number));
  TextControl& text = editor->rtfTextBox();
  if (button == Qt::RightButton) {
    panel->tag = text.firstVisibleLine();
    panel->setToolTip(QStringLiteral("Top line %1").arg(*panel->tag + 1));
  } else if (button == Qt::LeftButton && panel->tag) {
    text.scrollLines(*panel->tag - text.firstVisibleLine());
  }
}

bool MDIForm1::eventFilter(QObject* watched, QEvent* event) {
  if (scripts_ && scripts_->host().running() && event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    scripts_->host().interrupt();  // Esc stops a running macro wherever the focus is
    return true;
  }
  if (passRunning_ && event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    requestCancel();  // Esc stops a running pass wherever the focus is
    return true;
  }
  if (scripts_ && event->type() == QEvent::KeyPress) scripts_->noteKey(watched, *static_cast<QKeyEvent*>(event));
  if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
    // The X server reports the lock keys in the modifier state of every key event.
    const quint32 state = static_cast<QKeyEvent*>(event)->nativeModifiers();
    const bool caps = (state & 0x02) != 0, num = (state & 0x10) != 0;
    if (caps != capsLock_ || num != numLock_) {
      capsLock_ = caps;
      numLock_ = num;
      panels_->setLockKeys(caps, num);
    }
  }
  return QMainWindow::eventFilter(watched, event);
}

// Load and close -------------------------------------------------------------------------------

void MDIForm1::load() {
  try {
    const QRect screen = QGuiApplication::primaryScreen() ? QGuiApplication::primaryScreen()->availableGeometry()
                                                          : QRect(0, 0, 1280, 800);
    const FrameSettings fs = readFrameSettings(settings_, pixelsToTwips(screen.width()),
                                               pixelsToTwips(screen.height()), executableFolder());
    lastPath_ = fs.lastPath;
    toolbar_->setVisible(fs.toolbar);
    statusBar()->setVisible(fs.status);
    autoFormat_ = fs.autoFormat;
    lineNumbers_ = fs.lineNumbers;
    toolbar_->setToolButtonStyle(fs.toolbarText ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
    for (int n = 1; n <= kQuickFolders; ++n) {
      const std::string& tag = fs.quickFolders[static_cast<std::size_t>(n - 1)];
      quickFolders_[static_cast<std::size_t>(n - 1)]->setData(QString::fromLocal8Bit(tag.c_str()));
      quickFolders_[static_cast<std::size_t>(n - 1)]->setText(QString::fromLocal8Bit(tag.c_str()));
    }
    if (fs.windowState == 0) {
      setGeometry(twipsToPixels(fs.left), twipsToPixels(fs.top), twipsToPixels(fs.width), twipsToPixels(fs.height));
    } else {
      setWindowState(fs.windowState == 2 ? Qt::WindowMaximized : Qt::WindowMinimized);
    }
    syncSettingChecks();
    rebuildRecentMenus();
    scripts_ = new FrameScripts(*this, values_.AppFolder + "Script/");
    registerMacroCommands(commands_, *scripts_);
    refreshAvailability();
    scripts_->host().loadMainScript();
  } catch (const std::exception& e) {
    dialogs().message(e.what(), "MDIForm load", Buttons::Ok, Icon::Information);
  }
}

void MDIForm1::openStartupFile() {
  if (!values_.StartupFile.empty() && FileExists(values_.StartupFile)) LoadDoc(values_.StartupFile);
}

FrameSettings MDIForm1::currentFrameSettings() const {
  FrameSettings fs;
  fs.toolbar = !toolbar_->isHidden();
  fs.status = !statusBar()->isHidden();
  fs.autoFormat = autoFormat_;
  fs.lineNumbers = lineNumbers_;
  fs.toolbarText = toolbarText();
  fs.windowState = isMaximized() ? 2 : isMinimized() ? 1 : 0;
  const QRect normal = isMaximized() || isMinimized() ? normalGeometry() : geometry();
  fs.left = pixelsToTwips(normal.x());
  fs.top = pixelsToTwips(normal.y());
  fs.width = pixelsToTwips(normal.width());
  fs.height = pixelsToTwips(normal.height());
  for (int n = 1; n <= kQuickFolders; ++n)
    fs.quickFolders[static_cast<std::size_t>(n - 1)] =
        quickFolders_[static_cast<std::size_t>(n - 1)]->data().toString().toLocal8Bit().toStdString();
  fs.lastPath = lastPath_;
  fs.record = currentScheme_;
  return fs;
}

void MDIForm1::deleteWorkFiles() {
  for (const std::string* file : {&values_.Temp1File, &values_.Temp2File, &values_.Temp3File, &values_.GrafxFile,
                                  &values_.PrintRtfFile, &values_.UndoFile})
    if (!file->empty() && FileExists(*file)) removeFile(*file);
  const std::string sample = values_.AppFolder + "sampletext.rtf";
  if (FileExists(sample)) removeFile(sample);
}

void MDIForm1::closeEvent(QCloseEvent* event) {
  // Every document is asked first; the first one that stays open keeps the frame open too, and
  // the documents after it are not asked.
  for (QMdiSubWindow* sub : mdi_->subWindowList()) {
    if (!sub->close()) {
      event->ignore();
      return;
    }
  }
  try {
    writeFrameSettings(settings_, currentFrameSettings());
  } catch (const std::exception& e) {
    dialogs().message(e.what(), kAppTitle, Buttons::Ok, Icon::Information);
  }
  deleteWorkFiles();
  event->accept();
}

}  // namespace lathwick::gui

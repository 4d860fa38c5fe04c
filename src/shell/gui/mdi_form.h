#pragma once
// MDIForm1: the frame window. It holds the document windows in an MDI area, the toolbar, the
// status bar and the frame's own short menu (shown while no document window is active), and it
// owns the command dispatcher through which every menu entry and toolbar button runs.
#include <QMainWindow>
#include <array>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/reload_document.h"
#include "format/scheme_record.h"
#include "workspace/command_dispatch.h"
#include "platform/settings_table.h"
#include "shell/startup.h"

class QAction;
class QMdiArea;
class QMdiSubWindow;
class QMenu;
class QToolBar;
class QToolButton;

namespace lathwick::gui {

// The Settings menu's entries that show a check mark for their state.
inline constexpr const char* kSettingToggles[] = {"mnuToolbar", "mnuToolbarText", "mnuStatus", "mnuLineNumbers",
                                                  "mnuAuto"};

class frmEditor;
class MenuSet;
class TransformDialogs;
class TransformTarget;
class StatusPanels;
class FrameScripts;

class MDIForm1 : public QMainWindow, public EditorHost {
  Q_OBJECT
 public:
  MDIForm1(const AppValues& values, SettingsStore& settings, QWidget* parent = nullptr);
  ~MDIForm1() override;

  // The frame's load sequence: settings, window state, quick folders, recent menus. Errors are
  // reported under "MDIForm load". Call before show().
  void load();
  // After the frame is shown: opens the file named on the command line, when it exists.
  void openStartupFile();

  // Documents --------------------------------------------------------------------------------
  frmEditor* newDocument();
  frmEditor* LoadDoc(std::string fileName);  // nullptr when nothing was opened
  bool SaveFile(frmEditor& window, const std::string& fileName);
  bool saveFile(frmEditor& window, const std::string& fileName) override { return SaveFile(window, fileName); }
  bool saveAsPlain(frmEditor& window) override;
  void saveAsRich(frmEditor& window);
  // The close query of a changed document: true when the window is to stay open.
  bool queryClose(frmEditor& window) override;

  frmEditor* activeEditor() const override;
  std::vector<frmEditor*> editors() const override;  // in the order they were opened
  DocumentTable& documents() override { return documents_; }
  frmEditor* editorOf(int index) const;
  // A document window has closed: its slot is free and it no longer takes part in anything.
  void forgetWindow(int index) override;

  // Commands and menus -------------------------------------------------------------------------
  CommandDispatcher& commands() override { return commands_; }
  // After a later part registers commands: menus and toolbar enable what now exists.
  void refreshAvailability();
  // The action of a menu entry in the menu now shown (the active document's, or the frame's).
  QAction* menuAction(const std::string& name, int index = -1) const;
  MenuSet& frameMenus() const { return *frameMenus_; }
  QAction* toolButton(const std::string& key) const;
  QToolButton* openButton() const { return openButton_; }
  QAction* quickFolderAction(int n) const { return quickFolders_.at(n - 1); }
  void En_Dis_able();  // toolbar and menu states for the active document

  // Application-wide state ---------------------------------------------------------------------
  const AppValues& values() const { return values_; }
  SettingsStore& settings() { return settings_; }
  StatusPanels& statusPanels() const { return *panels_; }
  LastSelection& lastSelection() override { return lastSelection_; }
  bool autoFormat() const { return autoFormat_; }
  bool lineNumbers() const { return lineNumbers_; }
  bool toolbarText() const;
  int currentScheme() const override { return currentScheme_; }
  void setCurrentScheme(std::int16_t scheme) override { currentScheme_ = scheme; }
  const std::string& lastPath() const { return lastPath_; }

  // While a long pass runs, Esc anywhere in the program sets the process-wide cancel flag.
  void setPassRunning(bool running) override { passRunning_ = running; }
  bool passRunning() const { return passRunning_; }

  // The search, renumber and operate dialogs; a closing window lets go of them.
  TransformDialogs& transforms() { return *transforms_; }
  void forgetTarget(const TransformTarget* target);

  // The windows that share the one undo file.
  FileUndoGroup& undoGroup() override { return undoGroup_; }

  // The record of the current scheme, read from the data file when the number changes; the first
  // shipped scheme when the data file cannot give it.
  const SchemeRecord* currentSchemeRecord() override;
  // The scheme records were edited: the next currentSchemeRecord() reads the data file again.
  void forgetSchemeRecord() { schemeRecord_.reset(); }

  // The scheme data file could not be read: said once, not for every window.
  void reportDataFileProblem() override;

  void rebuildRecentMenus();
  void recentListUpdate(const std::string& name);

  // The workspace, as commands and scripts see it ----------------------------------------------
  WorkspaceDocument* activeDocument() override;
  std::vector<WorkspaceDocument*> openDocuments() override;
  void setStatusText(const std::string& text) override;
  Answer messageBox(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) override;
  std::optional<std::string> inputBox(const std::string& prompt, const std::string& caption,
                                      const std::string& defaultText) override;
  std::optional<std::string> chooseFile(const FileRequest& request) override;
  bool runCommand(const std::string& name, int index = -1) override { return commands_.run(name, index); }

  // What the document windows ask of their frame ---------------------------------------------
  QWidget* frameWidget() override { return this; }
  const EditorFiles& editorFiles() const override { return editorFiles_; }
  void setPanelText(const std::string& panel, const std::string& text) override;
  void setOverwrite(bool overwrite) override;
  void refreshCommandStates() override { En_Dis_able(); }
  bool scriptRunning() const override;
  void forgetEditor(frmEditor& window) override;

  // The script host, made by load(); nullptr before.
  FrameScripts* scripts() const { return scripts_; }

  QMdiArea* mdiArea() const { return mdi_; }
  void tileVertically();    // side by side
  void tileHorizontally();  // one above the other

 signals:
  // A document window was made, before its text arrives (its menus can be filled now).
  void documentWindowCreated(frmEditor* editor);
  // The document's file was read into its window, or the window's text written to a file.
  void documentRead(frmEditor* editor);
  void documentWritten(frmEditor* editor);
  // The window was closed (not torn down with the frame): nothing need be kept for it.
  void documentClosed(frmEditor* editor);

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void registerCommands();
  void registerFrameCommands();
  void buildToolbar();
  void showMenusOf(frmEditor* editor);
  void onSubWindowActivated(QMdiSubWindow* window);
  void fillWindowList(QMenu* menu);
  void openDialog(int quickFolder);
  void applyAutoFormat();  // 0: the Open command itself
  void showHelp();
  void setToolbarVisible(bool visible);
  void setStatusVisible(bool visible);
  void setAutoFormat(bool on);
  void setLineNumbers(bool on);
  void setToolbarText(bool on);
  void syncSettingChecks();
  void onBookmark(int number, Qt::MouseButton button);
  frmEditor* createWindow(int index);
  void deleteWorkFiles();
  void callLoadDoc(const std::string& fileName);
  FrameSettings currentFrameSettings() const;

  AppValues values_;
  EditorFiles editorFiles_;
  SettingsStore& settings_;
  CommandDispatcher commands_;
  FileUndoGroup undoGroup_;  // before the windows, which leave it as they go
  std::unique_ptr<TransformDialogs> transforms_;
  DocumentTable documents_;
  std::map<int, frmEditor*> windows_;  // by document index
  QMdiArea* mdi_;
  std::unique_ptr<MenuSet> frameMenus_;
  frmEditor* menusShownFor_ = nullptr;
  QToolBar* toolbar_ = nullptr;
  QToolButton* openButton_ = nullptr;
  std::map<std::string, QAction*> toolActions_;
  std::vector<QAction*> quickFolders_;
  StatusPanels* panels_ = nullptr;
  LastSelection lastSelection_;
  std::vector<std::string> recentPaths_;  // the path behind each recent menu entry, 1-based
  std::string lastPath_;
  bool autoFormat_ = false;
  bool lineNumbers_ = true;
  std::int16_t currentScheme_ = 1;
  bool dataFileProblemShown_ = false;
  bool passRunning_ = false;
  std::optional<SchemeRecord> schemeRecord_;
  std::int16_t schemeRecordNumber_ = 0;
  bool capsLock_ = false, numLock_ = false;
  FrameScripts* scripts_ = nullptr;  // a child of the frame
};

}  // namespace lathwick::gui

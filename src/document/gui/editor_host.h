#pragma once
// What a document window needs from the frame that holds it, beyond what any command may ask
// of the workspace: the shared undo group, the record table, the work files, the status panels,
// the saves that ask for a name, and being told when the window's state changes. The frame
// implements it; the window never sees the concrete frame.
#include <cstdint>
#include <string>
#include <vector>

#include "workspace/workspace.h"

class QWidget;

namespace lathwick {
class CommandDispatcher;
class DocumentTable;
class FileUndoGroup;
struct SchemeRecord;
}  // namespace lathwick

namespace lathwick::gui {

class frmEditor;

// The last non-empty selection made in any document.
struct LastSelection {
  int start = 0;
  int length = 0;
  std::string text;
};

// The files a window's runs go through.
struct EditorFiles {
  std::string input;     // the pass input work file
  std::string output;    // the pass output work file
  std::string undo;      // the one undo file
  std::string dataFile;  // the scheme data file
};

class EditorHost : public Workspace {
 public:
  virtual QWidget* frameWidget() = 0;
  virtual CommandDispatcher& commands() = 0;
  virtual DocumentTable& documents() = 0;
  virtual FileUndoGroup& undoGroup() = 0;
  virtual const EditorFiles& editorFiles() const = 0;
  virtual LastSelection& lastSelection() = 0;

  virtual frmEditor* activeEditor() const = 0;
  virtual std::vector<frmEditor*> editors() const = 0;  // in the order they were opened

  // The record of the current scheme (nullptr when the data file cannot give one), and
  // making another number current.
  virtual const SchemeRecord* currentSchemeRecord() = 0;
  virtual void setCurrentScheme(std::int16_t scheme) = 0;
  // The scheme data file could not be read: said once, not for every window.
  virtual void reportDataFileProblem() = 0;

  // A status panel by key ("Stat", "Range" ...), and the insert/overtype panel.
  virtual void setPanelText(const std::string& panel, const std::string& text) = 0;
  virtual void setOverwrite(bool overwrite) = 0;
  // Toolbar and menu states after the active window's state changed.
  virtual void refreshCommandStates() = 0;
  // While a script runs, windows hold back their menu and status updates (a macro may move the
  // selection a million times); the frame brings them up to date when it ends.
  virtual bool scriptRunning() const = 0;
  // While a long pass runs, Esc anywhere cancels it.
  virtual void setPassRunning(bool running) = 0;

  // Saves under `fileName`; asks for a plain-text name first (false: nothing saved).
  virtual bool saveFile(frmEditor& window, const std::string& fileName) = 0;
  virtual bool saveAsPlain(frmEditor& window) = 0;
  // The close query of a changed document: true when the window is to stay open.
  virtual bool queryClose(frmEditor& window) = 0;
  // A window has closed or is going: its slot is free and no dialog holds on to it.
  virtual void forgetWindow(int tag) = 0;
  virtual void forgetEditor(frmEditor& window) = 0;
};

}  // namespace lathwick::gui

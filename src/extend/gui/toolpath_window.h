#pragma once
// The tool-path window of a document: the path drawn beside the text, with the view buttons,
// zoom to fit, rapids on or off, and below the figures a machinist checks before running (X, Y
// and Z extents, feed and rapid lengths, the estimated cutting time, the warnings). The caret's
// line is marked on the path and a click on the path puts the caret on the move's line. The path
// is the document as it was when Show was chosen; Show again takes the document as it is now.
#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>

#include "extend/toolpath/graphics_settings.h"
#include "extend/toolpath/model_program.h"

class QAction;
class QLabel;

namespace lathwick {
class SettingsStore;
}

namespace lathwick::gui {

class EditorHost;
class frmEditor;
class ToolpathView;

class ToolpathWindow : public QWidget {
  Q_OBJECT
 public:
  ToolpathWindow(EditorHost& host, SettingsStore& settings);

  // Models the document's text (with progress and Esc for long ones) and shows its path. False
  // when the user cancelled; the window then keeps what it showed.
  bool showFor(frmEditor& editor);
  // Takes the view, rapids and colours from the settings.
  void applySettings();

  ToolpathView& view() const { return *view_; }
  const toolpath::ModelledProgram& program() const { return *program_; }
  QString summaryText() const;
  frmEditor* editor() const { return editor_; }

 private:
  void buildToolbar();
  void showSummary();
  void followCaret();
  void goToMove(long move);

  EditorHost& host_;
  SettingsStore& settings_;
  ToolpathView* view_;
  QLabel* summary_;
  QAction* rapids_ = nullptr;
  QPointer<frmEditor> editor_;
  QMetaObject::Connection caretConnection_;
  std::unique_ptr<toolpath::ModelledProgram> program_;
  std::shared_ptr<toolpath::PathLines> path_;
};

}  // namespace lathwick::gui

#pragma once
// The text control as a plain, single-byte QScintilla editor. It holds text without formatting,
// so rich text can neither be loaded nor saved through it: those calls fail with a clear
// message instead of writing something that only looks like rich text.
#include "document/gui/text_control.h"

class QsciScintilla;

namespace lathwick::gui {

class PlainTextControl : public TextControl {
  Q_OBJECT
 public:
  explicit PlainTextControl(QWidget* parent);

  QWidget* widget() override;
  std::string text() const override;
  int textLength() const override;
  int selStart() const override;
  int selLength() const override;
  std::string selText() const override;
  void setSelection(int start, int length) override;
  void replaceSelection(const std::string& bytes) override;
  int lineCount() const override;
  int lineFromChar(int position) const override;
  int lineIndex(int line) const override;
  int lineLength(int line) const override;
  int firstVisibleLine() const override;
  void scrollLines(int lines) override;
  void loadFile(const std::string& path, TextKind kind) override;
  void saveFile(const std::string& path, TextKind kind) const override;
  bool supportsRichText() const override { return false; }
  bool canUndo() const override;
  void undo() override;
  void cut() override;
  void copy() override;
  void paste() override;
  void deleteForward() override;
  bool overwriteMode() const override;
  void setColours(std::int32_t background, std::int32_t text) override;
  std::int32_t background() const override;

 private:
  long send(unsigned int message, unsigned long wParam = 0, long lParam = 0) const;
  QsciScintilla* editor_;
  bool loading_ = false;
};

inline constexpr const char* kRichTextNotAvailable =
    "Rich text files cannot be opened or saved by this version of the editor.";

}  // namespace lathwick::gui

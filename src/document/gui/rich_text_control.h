#pragma once
// The document's text control: the rich text control (formats, rich-text load and save) behind
// the window's text-control interface.
#include "document/gui/text_control.h"

namespace lathwick {
class RichTextBox;
}

namespace lathwick::gui {

// Signals come from TextControl; this class adds none, so it needs no meta-object of its own.
class RichTextControl : public TextControl {
 public:
  explicit RichTextControl(QWidget* parent);

  RichTextBox& box() const { return *box_; }

  QWidget* widget() override;
  std::string text() const override;
  int textLength() const override;
  int selStart() const override;
  int selLength() const override;
  std::string selText() const override;
  std::string textRange(int start, int length) const override;
  void setSelection(int start, int length) override;
  void holdCaretScrolling(bool hold) override;
  void replaceSelection(const std::string& bytes) override;
  int lineCount() const override;
  int lineFromChar(int position) const override;
  int lineIndex(int line) const override;
  int lineLength(int line) const override;
  int firstVisibleLine() const override;
  void scrollLines(int lines) override;
  void loadFile(const std::string& path, TextKind kind) override;
  void saveFile(const std::string& path, TextKind kind, Durability durability) const override;
  bool supportsRichText() const override { return true; }
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
  void textAboutToChange();
  RichTextBox* box_;
  bool loading_ = false;
  bool changeQueued_ = false;
};

}  // namespace lathwick::gui

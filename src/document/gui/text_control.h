#pragma once
// What a document window needs from its text control, and nothing more: the text as bytes (one
// byte is one character), the selection, the line model, scrolling, file load and save, and the
// control's own clipboard and undo. The window talks to the control only through this class,
// so the control behind it can be exchanged without touching the window.
#include <QObject>
#include <cstdint>
#include <string>

#include "platform/atomic_file.h"

class QWidget;

namespace lathwick::gui {

enum class TextKind { Plain, Rich };

class TextControl : public QObject {
  Q_OBJECT
 public:
  using QObject::QObject;
  ~TextControl() override = default;

  virtual QWidget* widget() = 0;

  virtual std::string text() const = 0;
  virtual int textLength() const = 0;
  virtual int selStart() const = 0;
  // As the control reports it; a very long selection may come back negative (see the
  // selection length correction).
  virtual int selLength() const = 0;
  virtual std::string selText() const = 0;
  // `length` characters from `start`, clipped to the text.
  virtual std::string textRange(int start, int length) const = 0;
  virtual void setSelection(int start, int length) = 0;
  // While held, selection changes do not scroll the view; releasing shows the caret once.
  virtual void holdCaretScrolling(bool hold) = 0;
  virtual void replaceSelection(const std::string& bytes) = 0;

  virtual int lineCount() const = 0;                // an empty text has one line
  virtual int lineFromChar(int position) const = 0;
  virtual int lineIndex(int line) const = 0;        // position of the line's first character
  virtual int lineLength(int line) const = 0;       // without its break
  virtual int firstVisibleLine() const = 0;
  virtual void scrollLines(int lines) = 0;          // positive scrolls down

  // Both throw AppError with a description fit for the user; a failed save leaves the text and
  // the file on disk untouched. Work files are saved Durability::Scratch (not flushed to disk).
  virtual void loadFile(const std::string& path, TextKind kind) = 0;
  virtual void saveFile(const std::string& path, TextKind kind, Durability durability = Durability::Durable) const = 0;
  virtual bool supportsRichText() const = 0;

  virtual bool canUndo() const = 0;
  virtual void undo() = 0;
  virtual void cut() = 0;
  virtual void copy() = 0;
  virtual void paste() = 0;
  virtual void deleteForward() = 0;  // the Delete key
  virtual bool overwriteMode() const = 0;
  // The page colour behind the text and the colour of unformatted text, each red in the lowest
  // byte, then green, then blue.
  virtual void setColours(std::int32_t background, std::int32_t text) = 0;
  virtual std::int32_t background() const = 0;

 signals:
  // An edit by the user or by a command (not loadFile). It may come just before the edit is
  // made: a slot reads no text and changes none.
  void textChanged();
  void selectionChanged();   // the caret moved or the selection changed
  void overwriteToggled(bool overwrite);
};

}  // namespace lathwick::gui

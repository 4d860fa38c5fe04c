#pragma once
// Shared by the dialog tests: a QApplication, a fake document over a temporary folder that
// keeps its text as lines joined by "\n" (one character per line break, as the text control
// counts), and scripted answers to its message boxes.
#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/file_system.h"
#include "platform/settings_store.h"
#include "gui_app.h"
#include "scripted_dialogs.h"
#include "support/temp_dir.h"
#include "transform/find_next.h"
#include "transform/gui/transform_target.h"

namespace lathwick::test {

inline std::string joinLines(const std::vector<std::string>& lines, const char* brk) {
  std::string out;
  for (size_t i = 0; i < lines.size(); ++i) out += (i ? brk : "") + lines[i];
  return out;
}

class FakeDocument : public gui::TransformTarget {
 public:
  explicit FakeDocument(const std::vector<std::string>& lines) : text(joinLines(lines, "\n")) {}

  std::string text;
  long selStart = 0, selLength = 0;
  std::vector<std::string> statusTexts;
  int reloads = 0, undos = 0;
  gui::ReloadFormat lastFormat = gui::ReloadFormat::Plain;
  std::string reloaded;  // the bytes of the last file loaded
  bool fileUndoable = false;
  bool bareLineFeeds = false;  // save with LF alone, as a file fresh from a serial link
  bool saveFails = false;      // the input work file cannot be written
  bool reloadFails = false;    // the reload (or the undo snapshot before it) goes wrong
  TempDir folder;

  // Selects from the start of 1-based line `first` to the end of line `last`.
  void selectLines(long first, long last) {
    selStart = lineStart(first);
    selLength = lineStart(last + 1) - 1 - selStart;
    if (selStart + selLength > textLength()) selLength = textLength() - selStart;
  }
  long lineStart(long oneBased) const {
    long pos = 0;
    for (long n = 1; n < oneBased; ++n) {
      const size_t brk = text.find('\n', static_cast<size_t>(pos));
      if (brk == std::string::npos) return textLength() + 1;
      pos = static_cast<long>(brk) + 1;
    }
    return pos;
  }

  long textLength() const override { return static_cast<long>(text.size()); }
  long selectionStart() const override { return selStart; }
  long selectionLength() const override { return selLength; }
  std::string selectedText() const override { return text.substr(selStart, selLength); }
  long lineFromChar(long position) const override {
    const long end = std::min(std::max(position, 0L), textLength());
    return static_cast<long>(std::count(text.begin(), text.begin() + end, '\n'));
  }
  long lineCount() const override { return lineFromChar(textLength()) + 1; }
  bool savePlainText(const std::string& path) override {
    if (saveFails) return false;
    std::string crlf;
    const std::string brk = bareLineFeeds ? "\n" : "\r\n";
    for (char c : text) crlf += c == '\n' ? brk : std::string(1, c);
    writeFile(path, crlf + brk);
    return true;
  }
  bool reloadDocument(const std::string& path, gui::ReloadFormat format) override {
    ++reloads;
    lastFormat = format;
    reloaded = readBytes(path);
    if (format == gui::ReloadFormat::Plain) {
      text.clear();
      for (char c : reloaded)
        if (c != '\r') text += c;
      if (!text.empty() && text.back() == '\n') text.pop_back();
    }
    return !reloadFails;
  }
  void setFileUndoable(bool undoable) override { fileUndoable = undoable; }
  void undo() override { ++undos; }
  void setStatusText(const std::string& t) override { statusTexts.push_back(t); }
  PassFrame passFrame() const override {
    PassFrame f;
    f.header = "{\\rtf1\\ansi{\\colortbl;\\red255\\green0\\blue0;}";
    f.trailer = "\\par}";
    f.highlightStart = "\\cf1 ";
    f.highlightEnd = "\\plain\\cf0 ";
    f.comment = {'(', ')', true};
    return f;
  }
  std::string commentStartText() const override { return "("; }
  std::string inputWorkFile() const override { return folder.file("TEMP2.TXT"); }
  std::string outputWorkFile() const override { return folder.file("TEMP3.TXT"); }

  // The interactive search of a plain-text control.
  long find(std::string_view what, long start, long end, int flags) override {
    const long at = transform::findInText(text, what, start, end, flags);
    if (at >= 0) selStart = at, selLength = static_cast<long>(what.size());
    return at;
  }
  void replaceSelection(std::string_view with) override {
    text.replace(static_cast<size_t>(selStart), static_cast<size_t>(selLength), with);
    selLength = static_cast<long>(with.size());
  }

 private:
  static void writeFile(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }
};

// Types `keys` into `w` one key press at a time, as the keyboard would.
inline void typeKeys(QWidget* w, const QString& keys) {
  for (const QChar c : keys) {
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
    QCoreApplication::sendEvent(w, &press);
  }
}

// The text lines of a pass's rich output between its header and trailer, with their "\li0 " or
// "\par\li0 " starts removed.
inline std::vector<std::string> richBody(const std::string& rtf) {
  std::vector<std::string> lines;
  size_t pos = 0;
  while (pos < rtf.size()) {
    size_t end = rtf.find("\r\n", pos);
    if (end == std::string::npos) end = rtf.size();
    lines.push_back(rtf.substr(pos, end - pos));
    pos = end + 2;
  }
  std::vector<std::string> body;
  for (size_t i = 1; i + 1 < lines.size(); ++i) {
    std::string l = lines[i];
    for (const char* start : {"\\par\\li0 ", "\\li0 "})
      if (l.rfind(start, 0) == 0) {
        l.erase(0, std::string(start).size());
        break;
      }
    body.push_back(l);
  }
  return body;
}

// A dialog of type Form over a fresh settings file, with its message boxes answered by script.
template <class Form>
class DialogTest : public ::testing::Test {
 protected:
  template <class T>
  T* child(const char* name) {
    T* w = dialog->template findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }

  QApplication& app = testApp();
  TempDir configDir;
  SettingsStore settings{configDir.file("Lathwick.ini")};
  ScriptedDialogs dialogs;
  std::unique_ptr<Form> dialog = std::make_unique<Form>(settings);
};

}  // namespace lathwick::test

#pragma once
// The scheme editor over a copy of the shipped schemes in a fresh folder, with scripted answers
// to its message boxes and to its font, colour and query dialogs.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <deque>
#include <memory>

#include "dialog_fixture.h"
#include "format/bundled_schemes.h"
#include "format/gui/frm_setup.h"
#include "format/gui/style_dialogs.h"
#include "format/scheme_data_file.h"
#include "document/gui/rich_text_box.h"
#include "scripted_dialogs.h"
#include "support/temp_dir.h"

namespace lathwick::test {

class ScriptedStyleDialogs : public gui::StyleDialogs {
 public:
  std::deque<std::optional<gui::FontChoice>> fonts;  // default: cancelled
  std::deque<std::optional<std::int32_t>> colours;
  std::deque<std::optional<std::string>> queries;
  std::vector<gui::FontChoice> fontRequests;
  std::vector<std::int32_t> colourRequests;
  std::vector<std::string> prompts;

  std::optional<gui::FontChoice> chooseFont(const gui::FontChoice& initial) override {
    fontRequests.push_back(initial);
    return next(fonts);
  }
  std::optional<std::int32_t> chooseColour(std::int32_t initial) override {
    colourRequests.push_back(initial);
    return next(colours);
  }
  std::optional<std::string> query(const std::string& prompt, const std::string&) override {
    prompts.push_back(prompt);
    return next(queries);
  }

 private:
  template <class T>
  static std::optional<T> next(std::deque<std::optional<T>>& queue) {
    if (queue.empty()) return std::nullopt;
    auto value = queue.front();
    queue.pop_front();
    return value;
  }
  gui::ScopedStyleDialogs installed_{*this};
};

// Records what the editor tells the program around it.
class RecordingSetupHost : public gui::SetupHost {
 public:
  std::string data, folder;
  long remembered = 1;
  std::vector<long> rememberedRecords, closedOn;
  int changes = 0;

  std::string dataFilePath() const override { return data; }
  std::string appFolder() const override { return folder; }
  long rememberedRecord() const override { return remembered; }
  void rememberRecord(long record) override { rememberedRecords.push_back(record); }
  void schemesChanged() override { ++changes; }
  void editorClosed(long record) override { closedOn.push_back(record); }
};

class SchemeEditorTest : public ::testing::Test {
 protected:
  SchemeEditorTest() {
    testApp();
    host.data = dir.file("Lathwick.dat");
    host.folder = dir.folder();
    const auto schemes = bundledSchemes();
    for (std::size_t i = 0; i < schemes.size(); ++i) writeSchemeRecord(host.data, static_cast<long>(i + 1), schemes[i]);
  }

  gui::frmSetup& open() {
    form = std::make_unique<gui::frmSetup>(host);
    form->show();
    QApplication::processEvents();
    return *form;
  }
  template <class T>
  T* child(const QString& name) {
    T* w = form->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name.toStdString();
    return w;
  }
  void menu(const char* name) {
    QAction* action = form->findChild<QAction*>(QString::fromLatin1(name));
    ASSERT_NE(action, nullptr) << name;
    action->trigger();
    QApplication::processEvents();
  }
  void clickLabel(int i) { child<QPushButton>(QStringLiteral("label1(%1)").arg(i))->click(); }
  void edit() { child<QPushButton>(QStringLiteral("cmdEdit"))->click(); }
  // Picks style i's label and answers the font dialog with `font` (nothing: cancelled).
  void restyle(int i, std::optional<gui::FontChoice> font) {
    clickLabel(i);
    if (font) styles.fonts.push_back(*font);
    edit();
  }
  // Courier New 10 in `colour` with no bold, italic, underline or strikeout.
  static gui::FontChoice plainFont(std::int32_t colour) {
    return {"Courier New", 10, colour, false, false, false, false};
  }
  std::string sampleFile() const { return readBytes(dir.file("sampletext.rtf")); }
  int messagesTitled(const std::string& caption) const {
    int n = 0;
    for (const auto& m : dialogs.messages) n += m.caption == caption;
    return n;
  }

  TempDir dir;
  RecordingSetupHost host;
  ScriptedDialogs dialogs;
  ScriptedStyleDialogs styles;
  std::unique_ptr<gui::frmSetup> form;
};

}  // namespace lathwick::test

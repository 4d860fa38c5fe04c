// The scheme editor driven through its controls: styles, the preview, the Caution box, saving,
// reopening, new, copy, rename and delete, and data files that cannot be written.
#include <filesystem>

#include "format/rich_text_builder.h"
#include "format/scheme_edits.h"
#include "scheme_editor_fixture.h"

using namespace lathwick;
using lathwick::test::readBytes;
using lathwick::test::SchemeEditorTest;

TEST_F(SchemeEditorTest, ShowsTheRememberedSchemeWithItsStylesAndPreview) {
  host.remembered = 2;
  open();
  auto* schemes = child<QComboBox>("cboScheme");
  ASSERT_EQ(schemes->count(), 4);
  EXPECT_EQ(schemes->currentText(), "Night Shift");
  for (int i = 0; i < kStyleCount; ++i) {
    EXPECT_EQ(child<QPushButton>(QStringLiteral("label1(%1)").arg(i))->text().toStdString(),
              kFixedStyleLabels[static_cast<std::size_t>(i)]);
    EXPECT_EQ(child<QLineEdit>(QStringLiteral("text1(%1)").arg(i))->text().toStdString(),
              readSchemeRecord(host.data, 2).style(1, i).marker);
  }
  EXPECT_EQ(child<QComboBox>("cboIndent")->currentIndex(), 1);
  // The preview starts on "All Other Text"; a label shows its own style.
  clickLabel(kG01Mode);
  EXPECT_EQ(form->editedSet(), 0);
  EXPECT_EQ(form->editedStyle(), kG01Mode);
  EXPECT_EQ(child<QLabel>("lblFont")->text(), "Font Name: Consolas   Size: 11");
  EXPECT_EQ(sampleFile(), sampleText(bundledSchemes()[1], 0, kG01Mode));
  EXPECT_EQ(child<RichTextBox>("rtfSample")->textBytes(), "SampleText");
  // A code box pressed shows its code style.
  QLineEdit* code = child<QLineEdit>("text1(3)");
  code->setFocus();
  QApplication::processEvents();
  EXPECT_EQ(form->editedSet(), 1);
  EXPECT_EQ(form->editedStyle(), 3);
}

TEST_F(SchemeEditorTest, EditingAStyleChangesThePreviewAndWarnsOncePerInvisibleStyle) {
  open();  // Classic: white background
  const std::int32_t white = bundledSchemes()[0].backColour;
  restyle(kG01Mode, gui::FontChoice{"Times New Roman", 14, white, true, false, true, false});
  ASSERT_EQ(styles.fontRequests.size(), 1u);
  EXPECT_EQ(styles.fontRequests[0].name, "Courier New");  // the dialog starts on the style
  EXPECT_EQ(styles.fontRequests[0].size, 10);
  const std::string sample = sampleFile();
  EXPECT_NE(sample.find("\\froman Times New Roman;}"), std::string::npos) << sample;
  EXPECT_NE(sample.find("\\red255\\green255\\blue255;"), std::string::npos);
  EXPECT_NE(sample.find("\\f0\\fs28\\cf0\\b\\ul SampleText"), std::string::npos) << sample;
  EXPECT_EQ(child<QLabel>("lblFont")->text(), "Font Name: Times New Roman   Size: 14");
  EXPECT_EQ(messagesTitled(kCautionTitle), 1);
  EXPECT_EQ(dialogs.messages.back().text, kCautionMessage);
  EXPECT_TRUE(form->changed());

  // A second style in the background colour: the check names each such style once.
  restyle(kG00Mode, plainFont(white));
  EXPECT_EQ(messagesTitled(kCautionTitle), 1 + 2);
  // Cancelling the font dialog changes nothing and warns of nothing.
  const std::string before = sampleFile();
  edit();
  EXPECT_EQ(sampleFile(), before);
  EXPECT_EQ(messagesTitled(kCautionTitle), 3);
}

TEST_F(SchemeEditorTest, BackgroundCommentAndBlockSkipHaveTheirOwnQuestions) {
  open();
  clickLabel(kBackgroundStyle);
  styles.colours.push_back(rgb(0, 0, 0));  // black: the Classic text is black too
  edit();
  ASSERT_EQ(styles.colourRequests.size(), 1u);
  EXPECT_EQ(styles.colourRequests[0], bundledSchemes()[0].backColour);
  EXPECT_TRUE(styles.fontRequests.empty());
  EXPECT_EQ(form->record().backColour, rgb(0, 0, 0));
  EXPECT_EQ(messagesTitled(kCautionTitle), static_cast<int>(invisibleStyles(form->record()).size()));
  EXPECT_GE(messagesTitled(kCautionTitle), 2);  // G01 and All Other Text at least

  styles.queries.push_back(std::string(";"));
  restyle(kCommentStyle, gui::FontChoice{"Courier New", 10, rgb(0, 128, 0), false, true, false, false});
  ASSERT_EQ(styles.prompts.size(), 1u);
  EXPECT_EQ(styles.prompts[0], kCommentQuestion);
  EXPECT_EQ(form->record().style(0, kCommentStyle).marker, ";");
  styles.queries.push_back(std::string("//"));
  restyle(kBlockSkipStyle, gui::FontChoice{"Courier New", 10, rgb(0, 128, 0), false, true, false, false});
  EXPECT_EQ(styles.prompts.back(), kBlockSkipQuestion);
  EXPECT_EQ(form->record().style(0, kBlockSkipStyle).marker, "//");
}

TEST_F(SchemeEditorTest, SavedChangesReadBackWhenReopened) {
  open();
  restyle(kG02Mode, gui::FontChoice{"Courier New", 12, rgb(10, 20, 30), false, true, false, true});
  auto* indent = child<QComboBox>("cboIndent");
  indent->setCurrentIndex(4);
  emit indent->activated(4);
  QLineEdit* code = child<QLineEdit>("text1(11)");
  code->setFocus();
  code->selectAll();
  lathwick::test::typeKeys(code, "G43 H#");
  menu("mnuSave");
  EXPECT_FALSE(form->changed());
  EXPECT_EQ(host.changes, 1);
  form->close();
  EXPECT_TRUE(std::none_of(dialogs.messages.begin(), dialogs.messages.end(),
                           [](const auto& m) { return m.text == kSettingsChangedMessage; }));

  const SchemeRecord saved = readSchemeRecord(host.data, 1);
  EXPECT_EQ(saved.style(0, kG02Mode).colour, rgb(10, 20, 30));
  EXPECT_EQ(saved.style(0, kG02Mode).size, 12);
  EXPECT_TRUE(saved.style(0, kG02Mode).strikeout);
  EXPECT_EQ(saved.indentSteps(), 4);
  EXPECT_EQ(saved.style(1, 11).marker, "G43 H#");
  open();
  clickLabel(kG02Mode);
  EXPECT_EQ(child<QLabel>("lblFont")->text(), "Font Name: Courier New   Size: 12");
  EXPECT_EQ(child<QComboBox>("cboIndent")->currentIndex(), 4);
  EXPECT_EQ(child<QLineEdit>("text1(11)")->text(), "G43 H#");
}

TEST_F(SchemeEditorTest, ClosingAsksOnlyAfterChanges) {
  host.remembered = 3;
  open();
  form->close();
  EXPECT_TRUE(dialogs.messages.empty());
  EXPECT_EQ(host.rememberedRecords, std::vector<long>{3});
  EXPECT_EQ(host.closedOn, std::vector<long>{3});

  const std::string before = readBytes(host.data);
  open();
  restyle(kG00Mode, plainFont(rgb(1, 2, 3)));
  dialogs.answers.push_back(gui::Answer::No);
  form->close();
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{{kSettingsChangedMessage, "", gui::Buttons::YesNo,
                                                             gui::Icon::Information}}));
  EXPECT_EQ(readBytes(host.data), before);  // No keeps the file as it was

  open();
  restyle(kG00Mode, plainFont(rgb(1, 2, 3)));
  dialogs.answers.push_back(gui::Answer::Yes);
  form->close();
  EXPECT_EQ(readSchemeRecord(host.data, 3).style(0, kG00Mode).colour, rgb(1, 2, 3));
}

TEST_F(SchemeEditorTest, NewCopyRenameAndDeleteFollowTheList) {
  host.remembered = 2;
  open();
  auto* schemes = child<QComboBox>("cboScheme");
  menu("mnuNew");
  ASSERT_EQ(schemes->count(), 5);
  EXPECT_EQ(schemes->currentText(), "new_5");
  EXPECT_EQ(form->recordNumber(), 5);
  EXPECT_EQ(readSchemeRecord(host.data, 5).backColour, bundledSchemes()[1].backColour);
  menu("mnuCopy");
  ASSERT_EQ(schemes->count(), 6);
  EXPECT_EQ(schemes->currentText(), "Copy of new_5");
  // Renaming: the name typed in the list's box is saved with the record.
  schemes->lineEdit()->selectAll();
  lathwick::test::typeKeys(schemes->lineEdit(), "Lathe");
  menu("mnuSave");
  EXPECT_EQ(schemes->itemText(5), "Lathe");
  EXPECT_EQ(readSchemeRecord(host.data, 6).name, "Lathe");
  EXPECT_EQ(host.changes, 3);

  dialogs.answers.push_back(gui::Answer::No);
  menu("mnuDelete");
  EXPECT_EQ(schemes->count(), 6);
  dialogs.answers.push_back(gui::Answer::Yes);
  menu("mnuDelete");
  EXPECT_EQ(schemes->count(), 5);
  EXPECT_EQ(schemeRecordCount(host.data), 5);
  EXPECT_EQ(schemes->currentText(), "new_5");
  EXPECT_EQ(host.changes, 4);
  // Choosing another scheme shows it.
  schemes->setCurrentIndex(0);
  emit schemes->activated(0);
  EXPECT_EQ(form->recordNumber(), 1);
  EXPECT_EQ(form->record().name, "Classic");
}

TEST_F(SchemeEditorTest, CorruptDataFileIsReportedAndKeptWhole) {
  std::string bytes = readBytes(host.data).substr(0, 2 * kSchemeRecordSize);
  for (std::size_t i = kSchemeRecordSize + 528; i < kSchemeRecordSize + 544; ++i) bytes[i] = '\x01';  // record 2's name
  std::ofstream(host.data, std::ios::binary | std::ios::trunc) << bytes;
  open();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].caption, kDataFileProblemTitle);
  EXPECT_EQ(dialogs.messages[0].text, kDataFileProblemMessage);
  EXPECT_EQ(child<QComboBox>("cboScheme")->count(), 1);  // what was read before the problem
  // Saving the good record rewrites it and leaves the damaged one as it was.
  restyle(kG00Mode, plainFont(rgb(9, 9, 9)));
  menu("mnuSave");
  const std::string after = readBytes(host.data);
  ASSERT_EQ(after.size(), bytes.size());
  EXPECT_EQ(after.substr(kSchemeRecordSize), bytes.substr(kSchemeRecordSize));
  EXPECT_EQ(readSchemeRecord(host.data, 1).style(0, kG00Mode).colour, rgb(9, 9, 9));
}

TEST_F(SchemeEditorTest, ReadOnlyDataFileIsReportedAndNothingIsLost) {
  const std::string before = readBytes(host.data);
  std::filesystem::permissions(host.data, std::filesystem::perms::owner_read);
  open();
  restyle(kG00Mode, plainFont(rgb(9, 9, 9)));
  menu("mnuSave");
  EXPECT_EQ(messagesTitled(kDataFileProblemTitle), 1);
  EXPECT_TRUE(form->changed());  // still unsaved
  menu("mnuNew");
  dialogs.answers.push_back(gui::Answer::Yes);
  menu("mnuDelete");
  EXPECT_EQ(messagesTitled(kDataFileProblemTitle), 3);  // save, new, delete
  EXPECT_EQ(readBytes(host.data), before);
  EXPECT_EQ(host.changes, 0);
  std::filesystem::permissions(host.data, std::filesystem::perms::owner_all);
}

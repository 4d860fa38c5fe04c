// Copies of changed documents in the recovery folder: made after an edit, made again only after
// another edit, dropped when the document is saved or closed; at start-up, what an editor that
// ended without closing its documents left is offered, and Open gives each back as a changed,
// unsaved document under its own file name.
#include <QCheckBox>
#include <QMdiSubWindow>
#include <QThread>
#include <QPushButton>
#include <QTreeWidget>

#include <filesystem>

#include "document/document_table.h"
#include "document/rtf_reader.h"
#include "frame_fixture.h"
#include "shell/gui/frm_recover.h"
#include "shell/gui/recovery_controller.h"
#include "support/ended_process.h"

using namespace lathwick;
using lathwick::test::FrameTest;
using lathwick::test::readBytes;
using gui::Answer;
using gui::RecoveryChoice;
namespace fs = std::filesystem;

namespace {
using lathwick::test::crashedEditor;

class RecoveryTest : public FrameTest {
 protected:
  gui::RecoveryController& install(gui::RecoveryTiming timing = {600000, 600000}) {
    start();
    recovery = new gui::RecoveryController(*frame, root, timing);
    return *recovery;
  }
  // The copies of this editor's session, read through their indexes.
  std::vector<RecoveryIndex> copies() {
    recovery->flush();
    std::vector<RecoveryIndex> out;
    for (const auto& entry : fs::directory_iterator(recovery->session().folder()))
      if (entry.path().extension() == ".index") out.push_back(*decodeRecoveryIndex(readBytes(entry.path())));
    return out;
  }
  std::string copiedText(const RecoveryIndex& index) { return readBytes(recovery->session().folder() + index.textFile); }

  // A session left by an editor that crashed, with one copy.
  void leaveCopy(const std::string& original, const std::string& text, LineEnds ends = LineEnds::CrLf) {
    RecoverySession left(root, crashedEditor());
    RecoveryIndex index;
    index.originalPath = original;
    index.caption = original.empty() ? "Untitled 3" : original;
    index.savedAt = 1714550000;
    index.lineEnds = ends;
    left.write(1, index, text);
  }

  test::TempDir state;
  std::string root = state.folder() + "lathwick/recovery/";
  gui::RecoveryController* recovery = nullptr;  // owned by the frame
};
}  // namespace

TEST_F(RecoveryTest, CopiesAChangedDocumentOncePerEditAndDropsItWhenSaved) {
  const std::string path = files.write("O1000.nc", "G00 X0\nM30\n");
  install();
  gui::frmEditor* e = openFile(path);
  recovery->copyChangedDocuments();
  EXPECT_TRUE(copies().empty()) << "an unchanged document needs no copy";

  e->replaceSelection("G01 X5\r\n");
  recovery->copyChangedDocuments();
  auto kept = copies();
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_EQ(kept[0].originalPath, path);
  EXPECT_EQ(kept[0].caption, caption(e));
  EXPECT_EQ(kept[0].lineEnds, LineEnds::Lf);
  EXPECT_EQ(kept[0].kind, RecoveredKind::Plain);
  EXPECT_EQ(copiedText(kept[0]), "G01 X5\r\nG00 X0\r\nM30\r\n");

  // No edit since: the copy is not written again.
  writeFileAtomically(recovery->session().folder() + kept[0].textFile, "as it was");
  recovery->copyChangedDocuments();
  EXPECT_EQ(copiedText(copies().at(0)), "as it was");
  e->setSelection(8, 0);
  e->replaceSelection("N1 ");
  recovery->copyChangedDocuments();
  EXPECT_EQ(copiedText(copies().at(0)), "G01 X5\r\nN1 G00 X0\r\nM30\r\n");

  trigger("mnuSave");
  EXPECT_TRUE(copies().empty());
  EXPECT_EQ(readBytes(path), "G01 X5\nN1 G00 X0\nM30\n");

  // Marked changed without an edit (its file was deleted under it): copied all the same.
  e->record().changed = true;
  recovery->copyChangedDocuments();
  ASSERT_EQ(copies().size(), 1u);
  EXPECT_EQ(copiedText(copies()[0]), "G01 X5\r\nN1 G00 X0\r\nM30\r\n");
}

TEST_F(RecoveryTest, ClosingWithoutSavingDropsTheCopyAndACleanExitLeavesNothing) {
  install();
  trigger("mnuNew");
  frame->activeEditor()->replaceSelection("G02 X1");
  recovery->copyChangedDocuments();
  ASSERT_EQ(copies().size(), 1u);
  EXPECT_EQ(copies()[0].originalPath, "") << "never saved";
  dialogs.answers = {Answer::No};
  trigger("mnuClose");
  EXPECT_TRUE(copies().empty());

  const std::string folder = recovery->session().folder();
  frame.reset();  // the clean exit
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_TRUE(listRecoverable(root).empty());
}

TEST_F(RecoveryTest, AQuietPeriodAfterTheLastEditTheCopyIsMade) {
  install({1, 600000});
  trigger("mnuNew");
  frame->activeEditor()->replaceSelection("G03");
  for (int i = 0; i < 500 && copies().empty(); ++i) {
    QApplication::processEvents(QEventLoop::AllEvents, 10);
    QThread::msleep(5);
  }
  ASSERT_EQ(copies().size(), 1u);
  EXPECT_EQ(copiedText(copies()[0]), "G03");
}

TEST_F(RecoveryTest, RichTextIsCopiedAsRichText) {
  const std::string path = files.write("SHEET.RTF", "{\\rtf1\\ansi {\\b G01} X1\\par}");
  install();
  gui::frmEditor* e = openFile(path);
  ASSERT_NE(e, nullptr);
  e->replaceSelection("N5 ");
  recovery->copyChangedDocuments();
  const auto kept = copies();
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_EQ(kept[0].kind, RecoveredKind::Rich);
  const std::string rtf = copiedText(kept[0]);
  EXPECT_TRUE(rtf.starts_with("{\\rtf1")) << rtf;
  EXPECT_NE(rtf.find("N5 G01"), std::string::npos) << rtf;
}

TEST_F(RecoveryTest, OpenGivesBackChangedDocumentsUnderTheirOwnNames) {
  const std::string path = files.write("O2000.nc", "OLD\n");
  leaveCopy(path, "G00 X9\r\nM30\r\n", LineEnds::Lf);
  leaveCopy("", "untitled work");
  install();
  std::vector<RecoveredDocument> offered;
  recovery->setChooser([&offered](const std::vector<RecoveredDocument>& documents) {
    offered = documents;
    return gui::RecoveryController::Offer{RecoveryChoice::Open, std::vector<bool>(documents.size(), true)};
  });
  recovery->offerRecovered();
  ASSERT_EQ(offered.size(), 2u);
  ASSERT_EQ(frame->editors().size(), 2u);
  gui::frmEditor* named = nullptr;
  for (gui::frmEditor* e : frame->editors())
    if (e->record().fileName == path) named = e;
  ASSERT_NE(named, nullptr);
  EXPECT_EQ(named->text(), "G00 X9\r\nM30\r\n");
  EXPECT_TRUE(named->record().changed);
  EXPECT_EQ(caption(named), captionAfterLoad(path));
  EXPECT_EQ(readBytes(path), "OLD\n") << "nothing written before the user saves";
  EXPECT_TRUE(listRecoverable(root).empty()) << "the copies are this editor's now";
  EXPECT_EQ(copies().size(), 2u);

  frame->mdiArea()->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(named->parentWidget()));
  trigger("mnuSave");
  EXPECT_EQ(readBytes(path), "G00 X9\nM30\n") << "saved with the line ends it came with";
  EXPECT_EQ(copies().size(), 1u);
}

TEST_F(RecoveryTest, DiscardAsksFirstAndKeepForLaterKeepsEverything) {
  leaveCopy(files.file("a.nc"), "A");
  leaveCopy(files.file("b.nc"), "B");
  install();
  RecoveryChoice choice = RecoveryChoice::KeepForLater;
  std::vector<bool> ticked{true, false};
  recovery->setChooser([&](const std::vector<RecoveredDocument>&) { return gui::RecoveryController::Offer{choice, ticked}; });
  EXPECT_EQ(recovery->offerRecovered().size(), 2u);
  EXPECT_EQ(listRecoverable(root).size(), 2u);

  choice = RecoveryChoice::Discard;
  dialogs.answers = {Answer::No};
  recovery->offerRecovered();
  EXPECT_EQ(listRecoverable(root).size(), 2u) << "No keeps them";
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_NE(dialogs.messages[0].text.find("1 document"), std::string::npos);

  dialogs.answers = {Answer::Yes};
  const auto before = listRecoverable(root);
  recovery->offerRecovered();
  const auto after = listRecoverable(root);
  ASSERT_EQ(after.size(), 1u) << "the unticked one stays";
  EXPECT_EQ(after[0].index.originalPath, before[1].index.originalPath);
  EXPECT_TRUE(frame->editors().empty());
}

TEST_F(RecoveryTest, TheDialogListsEachDocumentTickedWithItsFileAndTime) {
  const std::string path = files.file("O3000.nc");
  leaveCopy(path, "X", LineEnds::Lf);
  leaveCopy("", "Y");
  const auto documents = listRecoverable(root);
  gui::frmRecover dialog(documents);
  QTreeWidget* list = dialog.lstDocuments();
  ASSERT_EQ(list->topLevelItemCount(), 2);
  std::vector<std::string> files_, names;
  for (int i = 0; i < 2; ++i) {
    names.push_back(list->topLevelItem(i)->text(0).toStdString());
    files_.push_back(list->topLevelItem(i)->text(1).toStdString());
    EXPECT_EQ(list->topLevelItem(i)->text(2), gui::recoveryTimeText(1714550000));
  }
  EXPECT_NE(std::find(files_.begin(), files_.end(), path), files_.end());
  EXPECT_NE(std::find(files_.begin(), files_.end(), "(never saved)"), files_.end());
  EXPECT_NE(std::find(names.begin(), names.end(), "Untitled 3"), names.end());
  EXPECT_NE(std::find(names.begin(), names.end(), "O3000.nc"), names.end());
  EXPECT_EQ(dialog.ticked(), (std::vector<bool>{true, true}));

  list->topLevelItem(0)->setCheckState(0, Qt::Unchecked);
  list->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
  EXPECT_FALSE(dialog.button(RecoveryChoice::Open)->isEnabled()) << "nothing ticked";
  EXPECT_FALSE(dialog.button(RecoveryChoice::Discard)->isEnabled());
  list->topLevelItem(1)->setCheckState(0, Qt::Checked);
  dialog.button(RecoveryChoice::Discard)->click();
  EXPECT_EQ(dialog.choice(), RecoveryChoice::Discard);
  EXPECT_EQ(dialog.ticked(), (std::vector<bool>{false, true}));
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
}

TEST_F(RecoveryTest, LargeDocumentsAreCopiedWholeAndAnEditWhileTakingOneWaitsForTheNextQuietPeriod) {
  std::string program;
  for (int n = 1; program.size() < 3 * gui::RecoveryCopier::kSmallCopy; ++n)
    program += "N" + std::to_string(n) + " G01 X" + std::to_string(n % 997) + ".5 Y-12.25 F300\r\n";
  const std::string path = files.write("LARGE.NC", program);
  install();
  gui::frmEditor* e = openFile(path);
  e->replaceSelection("(EDITED)\r\n");
  recovery->copyChangedDocuments();
  ASSERT_EQ(copies().size(), 1u);
  EXPECT_EQ(copiedText(copies()[0]), "(EDITED)\r\n" + program);

  // Kept as rich text from now on: taken in pieces, text and formats, written as rich text.
  e->record().fileName = files.file("LARGE.RTF");
  e->setSelection(0, 0);
  e->replaceSelection("(RICH)\r\n");
  recovery->copyChangedDocuments();
  e->setSelection(0, 0);
  e->replaceSelection("(AGAIN)\r\n");  // before the copy could be taken: it is given up
  recovery->flush();
  ASSERT_EQ(copies().size(), 1u);
  EXPECT_EQ(copies()[0].kind, RecoveredKind::Plain) << "the plain copy stands until a rich one is made";
  recovery->copyChangedDocuments();  // the next quiet period
  const auto kept = copies();
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_EQ(kept[0].kind, RecoveredKind::Rich);
  EXPECT_EQ(readRtf(copiedText(kept[0])).text, e->text());
}

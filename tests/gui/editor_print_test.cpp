// Printing from a document window: plain and rich listings through the print seam (to PDF,
// read back with pdftotext), the selection question, failures, and a print program of the
// user's own that has to be found first.
#include <QThread>
#include <filesystem>
#include <regex>

#include "document/gui/document_printing.h"
#include "document/gui/listing_printer.h"
#include "document/print_pages.h"
#include "frame_fixture.h"
#include "shell/gui/status_panels.h"
#include "support/cli_runner.h"

using namespace lathwick;
using lathwick::test::FrameTest;
using lathwick::test::readBytes;
using lathwick::test::shellQuote;

namespace {

bool havePdfToText() { return std::system("command -v pdftotext >/dev/null") == 0; }

std::string pdfText(const std::string& pdf) {
  const std::string txt = pdf + ".txt";
  if (std::system(("pdftotext -layout " + shellQuote(pdf) + " " + shellQuote(txt)).c_str()) != 0) return "";
  return readBytes(txt);
}

class FailingPrinter : public gui::ListingPrinter {
 public:
  int calls = 0;
  bool print(const gui::ListingLayout&, const QString&) override {
    ++calls;
    return false;
  }
};

class PrintTest : public FrameTest {
 protected:
  gui::frmEditor* openProgram(int lines) {
    std::string text;
    for (int i = 1; i <= lines; ++i) text += "N" + std::to_string(i) + " G01 X" + std::to_string(i) + "\r\n";
    start();
    return openFile(files.write("part.nc", text));
  }
  std::string pdf = files.file("printed.pdf");
  gui::PdfListingPrinter toPdf{QString::fromStdString(pdf)};
};

}  // namespace

TEST_F(PrintTest, PlainPrintGivesPagesWithTheHeadingAndAsksAboutTheSelection) {
  if (!havePdfToText()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
  gui::ScopedListingPrinter seam(toPdf);
  gui::frmEditor* e = openProgram(120);
  trigger("mnuPrintPlain");
  EXPECT_TRUE(dialogs.messages.empty()) << "no selection, no question";
  std::string text = pdfText(pdf);
  EXPECT_TRUE(std::regex_search(text, std::regex("Page #\\s+1\\s+\\S*part\\.nc"))) << text;
  EXPECT_TRUE(std::regex_search(text, std::regex("Page #\\s+2\\s*\n"))) << text;
  EXPECT_NE(text.find("N120 G01 X120"), std::string::npos);

  // A selection: Yes prints only it.
  e->richTextBox().setSelStart(0);
  e->richTextBox().setSelLength(static_cast<long>(std::string("N1 G01 X1\r\nN2 G01 X2").size()));
  dialogs.answers.push_back(gui::Answer::Yes);
  trigger("mnuPrintPlain");
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{{kPrintSelectionQuestion, kPrintingTitle,
                                                             gui::Buttons::YesNo, gui::Icon::None}}));
  text = pdfText(pdf);
  EXPECT_NE(text.find("N2 G01 X2"), std::string::npos);
  EXPECT_EQ(text.find("N3 G01"), std::string::npos) << text;
  EXPECT_EQ(e->richTextBox().selLength(), static_cast<long>(std::string("N1 G01 X1\r\nN2 G01 X2").size()))
      << "the selection is given back";
  // No prints the whole document.
  dialogs.answers.push_back(gui::Answer::No);
  QAction* ctrlP = frame->menuAction("mnuPrintPlain");
  EXPECT_EQ(ctrlP->shortcut(), QKeySequence("Ctrl+P"));
  trigger("mnuPrintPlain");
  EXPECT_NE(pdfText(pdf).find("N120 G01 X120"), std::string::npos);
  EXPECT_EQ(frame->statusPanels().text("Stat"), "Press F1 for help.");
}

TEST_F(PrintTest, RichPrintKeepsTheDocumentsColoursAfterItsHeading) {
  if (!havePdfToText()) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
  gui::ScopedListingPrinter seam(toPdf);
  openProgram(5);
  EXPECT_EQ(frame->menuAction("mnuPrintAsRtf")->shortcut(), QKeySequence("Ctrl+R"));
  trigger("mnuPrintAsRtf");
  const std::string text = pdfText(pdf);
  // The heading: file name, two blanks, date, two blanks, time (pdftotext may widen the gaps).
  EXPECT_TRUE(std::regex_search(text, std::regex("part\\.nc {2,}\\S.*\\S {2,}\\S+"))) << text;
  EXPECT_NE(text.find("N5 G01 X5"), std::string::npos);
  EXPECT_TRUE(dialogs.messages.empty());
  // The toolbar's Print runs the rich print too.
  std::filesystem::remove(pdf);
  QAction* button = frame->toolButton("Print");
  ASSERT_NE(button, nullptr);
  ASSERT_TRUE(button->isEnabled());
  button->trigger();
  EXPECT_TRUE(std::filesystem::exists(pdf));
}

TEST_F(PrintTest, APrinterThatFailsIsReported) {
  FailingPrinter failing;
  gui::ScopedListingPrinter seam(failing);
  openProgram(3);
  trigger("mnuPrintPlain");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, kPrintProblemMessage);
  trigger("mnuPrintAsRtf");
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[1].text, "Printing Error 482; Printer error");
  EXPECT_EQ(failing.calls, 2);
}

TEST_F(PrintTest, AMissingPrintProgramIsAskedForOnceAndThenUsed) {
  FailingPrinter own;  // must not be used while a print program is set
  gui::ScopedListingPrinter seam(own);
  settings.save("Startup", "PrintProgram", "/no/such/folder/printrtf");
  openProgram(3);
  const std::size_t opened = dialogs.requests.size();  // the open dialog's
  trigger("mnuPrintAsRtf");  // cancelled: the program is still not located
  ASSERT_EQ(dialogs.requests.size(), opened + 1);
  EXPECT_EQ(dialogs.requests.back().title, gui::kFindPrinterTitle);
  EXPECT_EQ(dialogs.requests.back().fileName, "Wordpad");
  EXPECT_EQ(dialogs.messages,
            (std::vector<test::Message>{{"Wordpad was not located.\nPlease try to print again and then locate Wordpad.exe",
                                         "", gui::Buttons::Ok, gui::Icon::Exclamation}}));

  // A program that copies the print file it is given where the test can see it.
  const std::string seen = files.file("seen.rtf");
  const std::string program = files.write("printrtf", "#!/bin/sh\ncp \"$1\" " + shellQuote(seen) + "\n");
  std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  dialogs.files.push_back(program);
  trigger("mnuPrintAsRtf");
  EXPECT_EQ(settings.get("Startup", "PrintProgram"), program);
  EXPECT_EQ(dialogs.requests.size(), opened + 2);
  trigger("mnuPrintAsRtf");
  EXPECT_EQ(dialogs.requests.size(), opened + 2) << "found: not asked again";
  // The program runs on its own: the file may be there before cp has finished writing it.
  std::string rtf;
  for (int i = 0; i < 500 && rtf.find("N3 G01 X3") == std::string::npos; ++i) {
    QThread::msleep(10);
    if (std::filesystem::exists(seen)) rtf = readBytes(seen);
  }
  EXPECT_NE(rtf.find("part.nc  "), std::string::npos) << "the heading is in the print file";
  EXPECT_NE(rtf.find("N3 G01 X3"), std::string::npos);
  EXPECT_EQ(own.calls, 0);
  EXPECT_EQ(dialogs.messages.size(), 1u);
}

#include "document/gui/document_printing.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>

#include "document/gui/frm_editor.h"
#include "document/gui/listing_printer.h"
#include "document/print_pages.h"
#include "document/rtf_reader.h"
#include "platform/gui/dialogs.h"
#include "platform/pass_result.h"
#include "platform/settings_table.h"
#include "document/gui/rich_text_box.h"

namespace lathwick::gui {

namespace {

constexpr const char* kRichPrintError = "Printing Error 482; Printer error";

std::string local(const QString& s) { return s.toLocal8Bit().toStdString(); }

// Asks about the selection; true when only the selection is to be printed.
bool selectionOnly(frmEditor& window) {
  if (window.selectionLength() < 1) return false;
  return dialogs().message(kPrintSelectionQuestion, kPrintingTitle, Buttons::YesNo, Icon::None) == Answer::Yes;
}

// Keeps the window's selection and puts it back, with the focus, when printing is over.
class SelectionKeeper {
 public:
  explicit SelectionKeeper(frmEditor& window)
      : window_(window), start_(window.richTextBox().selStart()), length_(window.richTextBox().selLength()) {}
  ~SelectionKeeper() {
    window_.richTextBox().setSelStart(start_);
    window_.richTextBox().setSelLength(length_);
    window_.richTextBox().setFocus();
  }

 private:
  frmEditor& window_;
  long start_, length_;
};

std::string programPath(const std::string& setting) {
  const QString program = QString::fromLocal8Bit(setting.c_str());
  const QFileInfo file(program);
  if (program.contains('/')) return file.isFile() && file.isExecutable() ? setting : std::string();
  return local(QStandardPaths::findExecutable(program));
}

// The rich text with its heading, written to the print file for the external program.
bool writePrintFile(frmEditor& window, bool selection, const std::string& heading, const std::string& path) {
  RichTextBox scratch;  // RTFTemp: the document itself is never changed
  scratch.loadRtf(selection ? window.richTextBox().selRtf() : window.richTextBox().rtf());
  scratch.setSelStart(0);
  scratch.setSelText(heading + "\r\n\r\n");
  try {
    scratch.saveFile(path, FileKind::RichText, Durability::Scratch);
  } catch (const std::exception&) {
    return false;
  }
  return true;
}

void printWithProgram(frmEditor& window, const PrintContext& context, bool selection, const std::string& heading) {
  const std::string program = programPath(context.printProgram);
  if (program.empty()) {
    FileRequest request;
    request.title = kFindPrinterTitle;
    request.filter = kPrinterFilter;
    request.fileName = settingDefault(Setting::PrintProgram);
    if (const auto chosen = dialogs().chooseFile(request))
      context.storePrintProgram(*chosen);
    else
      dialogs().message(kPrinterNotLocated, "", Buttons::Ok, Icon::Exclamation);
    return;
  }
  if (!writePrintFile(window, selection, heading, context.printRtfFile) ||
      !QProcess::startDetached(QString::fromLocal8Bit(program.c_str()),
                               {QString::fromLocal8Bit(context.printRtfFile.c_str())}))
    dialogs().message(kRichPrintError, "", Buttons::Ok, Icon::None);
}

}  // namespace

bool usesPrintProgram(const std::string& setting) {
  // Left at its default, the setting means the editor prints the rich text itself.
  const QString byDefault = QString::fromLocal8Bit(settingDefault(Setting::PrintProgram).c_str());
  return !setting.empty() && QString::fromLocal8Bit(setting.c_str()).compare(byDefault, Qt::CaseInsensitive) != 0;
}

void PrintPlain(frmEditor& window, const PrintContext& context) {
  const bool selection = selectionOnly(window);
  SelectionKeeper keeper(window);
  context.statusText(kPrintingPlainStatus);
  const std::string fileName = window.filename();
  const std::string text = selection ? window.richTextBox().selText() : window.richTextBox().textBytes();
  const QDateTime now = QDateTime::currentDateTime();
  const std::string stamp = local(QLocale().toString(now, QLocale::ShortFormat));
  const ListingLayout layout = [&](const PrintableArea& area) {
    return layoutPlainListing(text, fileName, stamp, plainPageRows(area.height, printLineHeight(kPlainPrintPoints)));
  };
  if (!listingPrinter().print(layout, QString::fromLocal8Bit(fileName.c_str())))
    dialogs().message(kPrintProblemMessage, "", Buttons::Ok, Icon::None);
  context.statusText(kReadyStatus);
}

void PrintFile(frmEditor& window, const PrintContext& context) {
  const bool selection = selectionOnly(window);
  SelectionKeeper keeper(window);
  context.statusText(kPrintingRichStatus);
  const QDateTime now = QDateTime::currentDateTime();
  const std::string heading = richHeading(window.filename(), local(QLocale().toString(now.date(), QLocale::ShortFormat)),
                                          local(QLocale().toString(now.time(), QLocale::LongFormat)));
  if (usesPrintProgram(context.printProgram)) {
    printWithProgram(window, context, selection, heading);
  } else {
    const RtfDocument document = readRtf(selection ? window.richTextBox().selRtf() : window.richTextBox().rtf());
    const ListingLayout layout = [&](const PrintableArea& area) {
      return layoutRichListing(document, heading, area, context.paperColour);
    };
    if (!listingPrinter().print(layout, QString::fromLocal8Bit(window.filename().c_str())))
      dialogs().message(kRichPrintError, "", Buttons::Ok, Icon::None);
  }
  context.statusText(kReadyStatus);
}

}  // namespace lathwick::gui

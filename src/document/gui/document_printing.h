#pragma once
// Printing a document window: Print Plain Text (PrintPlain) and Print Rich Text (PrintFile).
// Both ask whether only the selection is to be printed when there is one, lay the pages out
// in the core and print them through the listing printer, so the user sees a preview first.
#include <cstdint>
#include <functional>
#include <string>

namespace lathwick::gui {

class frmEditor;

// What printing needs of the program around the window.
struct PrintContext {
  std::string printProgram;  // the "PrintProgram" setting, trimmed
  std::function<void(const std::string&)> storePrintProgram;
  std::function<void(const std::string&)> statusText;  // the frame's first status panel
  std::string printRtfFile;                             // "PrintRTF.RTF" of the application folder
  std::uint32_t paperColour = 0xFFFFFF;                 // the scheme's background colour
};

inline constexpr const char* kFindPrinterTitle = "Find Printer Program";
inline constexpr const char* kPrinterFilter = "Program File (*)|*";
inline constexpr const char* kPrinterNotLocated = "Wordpad was not located.\nPlease try to print again and then locate Wordpad.exe";

void PrintPlain(frmEditor& window, const PrintContext& context);
void PrintFile(frmEditor& window, const PrintContext& context);

// True when the setting names a program of its own rather than the editor's printing.
bool usesPrintProgram(const std::string& setting);

}  // namespace lathwick::gui

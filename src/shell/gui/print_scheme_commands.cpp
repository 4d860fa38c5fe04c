#include "shell/gui/print_scheme_commands.h"

#include <QAction>

#include "document/gui/document_printing.h"
#include "document/gui/frm_editor.h"
#include "format/gui/frm_setup.h"
#include "platform/bytes.h"
#include "platform/settings_table.h"
#include "shell/gui/mdi_form.h"
#include "shell/gui/status_panels.h"

namespace lathwick::gui {

namespace {

PrintContext printContext(MDIForm1& frame) {
  PrintContext context;
  context.printProgram = trimBlanks(readSetting(frame.settings(), Setting::PrintProgram));
  context.storePrintProgram = [&frame](const std::string& program) {
    writeSetting(frame.settings(), Setting::PrintProgram, program);
  };
  context.statusText = [&frame](const std::string& text) { frame.statusPanels().setText("Stat", text); };
  context.printRtfFile = frame.values().PrintRtfFile;
  if (const SchemeRecord* scheme = frame.currentSchemeRecord())
    context.paperColour = static_cast<std::uint32_t>(scheme->backColour);
  return context;
}

// The scheme editor's view of the frame.
class FrameSetupHost : public SetupHost {
 public:
  explicit FrameSetupHost(MDIForm1& frame) : frame_(frame) {}
  std::string dataFilePath() const override { return frame_.values().DataFilePath; }
  std::string appFolder() const override { return frame_.values().AppFolder; }
  long rememberedRecord() const override {
    try {
      return std::stol(readSetting(frame_.settings(), Setting::Record));
    } catch (const std::exception&) {
      return 1;
    }
  }
  void rememberRecord(long record) override {
    if (record >= 1) writeSetting(frame_.settings(), Setting::Record, std::to_string(record));
  }
  void schemesChanged() override {
    frame_.forgetSchemeRecord();
    for (frmEditor* editor : frame_.editors()) editor->LoadMenuArray();
  }
  void editorClosed(long record) override {
    frame_.forgetSchemeRecord();
    frmEditor* active = frame_.activeEditor();
    if (record < 1 || !active) return;
    // SetDefaultColor: the active document takes the scheme it was left on, and its colours.
    active->record().scheme = static_cast<std::int16_t>(record);
    active->LoadMenuArray();
    active->Form_Activate();
    active->show();
  }

 private:
  MDIForm1& frame_;
};

void editSchemes(MDIForm1& frame) {
  FrameSetupHost host(frame);
  frmSetup form(host, &frame);
  form.exec();
}

}  // namespace

void registerPrintAndSchemeCommands(MDIForm1& frame) {
  CommandDispatcher& commands = frame.commands();
  const auto withEditor = [&frame](void (*print)(frmEditor&, const PrintContext&)) {
    return [&frame, print](int) {
      if (frmEditor* editor = frame.activeEditor()) print(*editor, printContext(frame));
    };
  };
  commands.add("mnuPrintPlain", withEditor(&PrintPlain));
  commands.add("mnuPrintAsRtf", withEditor(&PrintFile));
  commands.add("PrintFile", withEditor(&PrintFile));
  commands.add("mnuEditSchemes", [&frame](int) { editSchemes(frame); });
}

}  // namespace lathwick::gui

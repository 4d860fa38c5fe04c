#include "extend/gui/graphics_commands.h"

#include <QPointer>
#include <QScreen>

#include "document/gui/frm_editor.h"
#include "extend/gui/toolpath_setup.h"
#include "extend/gui/toolpath_window.h"
#include "shell/gui/mdi_form.h"

namespace lathwick::gui {

void registerGraphicsCommands(MDIForm1& frame) {
  // One tool-path window for the frame, made when first shown and owned by the frame.
  auto window = std::make_shared<QPointer<ToolpathWindow>>();
  frame.commands().add("mnuShow", [&frame, window](int) {
    frmEditor* editor = frame.activeEditor();
    if (!editor) return;
    if (!*window) {
      *window = new ToolpathWindow(frame);
      // First shown over the right half of the frame, beside the documents.
      QRect area = frame.geometry();
      if (const QScreen* screen = frame.screen()) area = area.intersected(screen->availableGeometry());
      (*window)->setGeometry(area.x() + area.width() / 2, area.y() + 60, area.width() / 2, area.height() - 90);
    }
    if ((*window)->showFor(*editor)) {
      (*window)->show();
      (*window)->raise();
    }
  });
  frame.commands().add("mnuGraphicsSetup", [&frame, window](int) {
    ToolpathSetup setup(toolpath::GraphicsSettings::load(frame.settings()), frame.currentSchemeRecord(), &frame);
    if (setup.exec() != QDialog::Accepted) return;
    setup.settings().save(frame.settings());
    if (*window) (*window)->applySettings();
  });
}

}  // namespace lathwick::gui

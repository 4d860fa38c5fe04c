#include "extend/gui/graphics_commands.h"

#include <QPointer>
#include <QScreen>

#include "document/gui/frm_editor.h"
#include "extend/gui/toolpath_setup.h"
#include "extend/gui/toolpath_window.h"
#include "document/gui/editor_host.h"
#include "workspace/command_dispatch.h"

namespace lathwick::gui {

void registerGraphicsCommands(CommandDispatcher& commands, EditorHost& host, SettingsStore& settings) {
  // One tool-path window for the frame, made when first shown and owned by the frame.
  auto window = std::make_shared<QPointer<ToolpathWindow>>();
  commands.add("mnuShow", [&host, &settings, window](int) {
    frmEditor* editor = host.activeEditor();
    if (!editor) return;
    if (!*window) {
      *window = new ToolpathWindow(host, settings);
      // First shown over the right half of the frame, beside the documents.
      const QWidget* frame = host.frameWidget();
      QRect area = frame->geometry();
      if (const QScreen* screen = frame->screen()) area = area.intersected(screen->availableGeometry());
      (*window)->setGeometry(area.x() + area.width() / 2, area.y() + 60, area.width() / 2, area.height() - 90);
    }
    if ((*window)->showFor(*editor)) {
      (*window)->show();
      (*window)->raise();
    }
  });
  commands.add("mnuGraphicsSetup", [&host, &settings, window](int) {
    ToolpathSetup setup(toolpath::GraphicsSettings::load(settings), schemePathColours(host.currentSchemeRecord()),
                        host.frameWidget());
    if (setup.exec() != QDialog::Accepted) return;
    setup.settings().save(settings);
    if (*window) (*window)->applySettings();
  });
}

}  // namespace lathwick::gui

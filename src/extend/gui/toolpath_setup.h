#pragma once
// "Setup" of the Graphics menu: the view the tool-path window opens with, whether rapid moves
// are drawn, and the colours of the moves and the page, each either chosen or the current
// scheme's. OK keeps the choices in the settings.
#include <QDialog>
#include <optional>

#include "extend/toolpath/graphics_settings.h"

namespace lathwick {
struct SchemeRecord;
}

class QCheckBox;
class QComboBox;
class QPushButton;

namespace lathwick::gui {

// The colours a scheme gives the path: its G00, G01, G02 and G03 styles and its page colour.
std::optional<toolpath::PathColours> schemePathColours(const SchemeRecord* scheme);

class ToolpathSetup : public QDialog {
  Q_OBJECT
 public:
  ToolpathSetup(const toolpath::GraphicsSettings& settings, std::optional<toolpath::PathColours> scheme,
                QWidget* parent);
  toolpath::GraphicsSettings settings() const { return settings_; }

  // The buttons, for tests: one per colour in PathColour order, and "Scheme colours".
  QPushButton* colourButton(toolpath::PathColour which) const { return colourButtons_[static_cast<int>(which)]; }
  QPushButton* schemeColoursButton() const { return schemeColours_; }
  QComboBox* viewBox() const { return view_; }
  QCheckBox* rapidsBox() const { return rapids_; }

 private:
  void chooseColour(toolpath::PathColour which);
  void showColours();

  toolpath::GraphicsSettings settings_;
  std::optional<toolpath::PathColours> scheme_;
  QComboBox* view_;
  QCheckBox* rapids_;
  QPushButton* colourButtons_[toolpath::kPathColourCount] = {};
  QPushButton* schemeColours_;
};

}  // namespace lathwick::gui

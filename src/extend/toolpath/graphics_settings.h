#pragma once
// What "Setup" of the Graphics menu chooses, kept in the settings under "Graphics": the view the
// window opens with, whether rapid moves are drawn, and the colours of the moves (each -1 while
// it follows the current scheme: G00, G01, G02 and G03 styles and the page colour).
#include <array>
#include <cstdint>

#include "extend/toolpath/path_drawing.h"

namespace lathwick {
class SettingsStore;
}

namespace lathwick::toolpath {

enum class PathColour : std::uint8_t { Rapid, Feed, ArcCw, ArcCcw, Background };
inline constexpr int kPathColourCount = 5;
// A colour for each PathColour, red in the lowest byte.
using PathColours = std::array<std::int32_t, kPathColourCount>;

struct GraphicsSettings {
  ViewKind view = ViewKind::Isometric;
  bool showRapids = true;
  PathColours colours{-1, -1, -1, -1, -1};  // chosen ones; -1 follows the scheme

  static GraphicsSettings load(const SettingsStore& store);
  void save(SettingsStore& store) const;
  // The colour in use: the chosen one, else the scheme's (its G00 to G03 styles and page colour,
  // when there is a scheme), else a fixed default.
  std::int32_t colour(PathColour which, const PathColours* scheme) const;
};

}  // namespace lathwick::toolpath

#include "extend/toolpath/graphics_settings.h"

#include <cstdlib>
#include <string>

#include "platform/settings_table.h"

namespace lathwick::toolpath {

namespace {

constexpr Setting kColourSettings[kPathColourCount] = {Setting::GraphicsRapidColour, Setting::GraphicsFeedColour,
                                                       Setting::GraphicsArcCwColour, Setting::GraphicsArcCcwColour,
                                                       Setting::GraphicsBackColour};
constexpr std::int32_t kDefaults[kPathColourCount] = {0x0000C8, 0x006E00, 0xDC0000, 0xAA0096, 0xFFFFFF};

long number(const std::string& text, long fallback) {
  char* end = nullptr;
  const long v = std::strtol(text.c_str(), &end, 10);
  return (text.empty() || *end != '\0') ? fallback : v;
}

// The stored number, or the table's default when none is stored or it is not a number.
long readNumber(const SettingsStore& store, Setting setting) {
  return number(readSetting(store, setting), number(settingDefault(setting), 0));
}

}  // namespace

GraphicsSettings GraphicsSettings::load(const SettingsStore& store) {
  GraphicsSettings s;
  long view = readNumber(store, Setting::GraphicsView);
  if (view < 0 || view > 3) view = number(settingDefault(Setting::GraphicsView), 0);
  s.view = static_cast<ViewKind>(view);
  s.showRapids = readNumber(store, Setting::GraphicsShowRapids) != 0;
  for (int i = 0; i < kPathColourCount; ++i) {
    const long c = readNumber(store, kColourSettings[i]);
    s.colours[static_cast<std::size_t>(i)] = (c >= 0 && c <= 0xFFFFFF) ? static_cast<std::int32_t>(c) : -1;
  }
  return s;
}

void GraphicsSettings::save(SettingsStore& store) const {
  writeSetting(store, Setting::GraphicsView, std::to_string(static_cast<int>(view)));
  writeSetting(store, Setting::GraphicsShowRapids, showRapids ? "1" : "0");
  for (int i = 0; i < kPathColourCount; ++i)
    writeSetting(store, kColourSettings[i], std::to_string(colours[static_cast<std::size_t>(i)]));
}

std::int32_t GraphicsSettings::colour(PathColour which, const PathColours* scheme) const {
  const auto i = static_cast<std::size_t>(which);
  if (colours[i] >= 0) return colours[i];
  return scheme ? (*scheme)[i] & 0xFFFFFF : kDefaults[i];
}

}  // namespace lathwick::toolpath

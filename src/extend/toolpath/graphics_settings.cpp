#include "extend/toolpath/graphics_settings.h"

#include <cstdlib>
#include <string>

#include "platform/settings_store.h"

namespace lathwick::toolpath {

namespace {

constexpr const char* kSection = "Graphics";
constexpr const char* kColourKeys[kPathColourCount] = {"RapidColour", "FeedColour", "ArcCwColour", "ArcCcwColour",
                                                       "BackColour"};
constexpr std::int32_t kDefaults[kPathColourCount] = {0x0000C8, 0x006E00, 0xDC0000, 0xAA0096, 0xFFFFFF};

long number(const std::string& text, long fallback) {
  char* end = nullptr;
  const long v = std::strtol(text.c_str(), &end, 10);
  return (text.empty() || *end != '\0') ? fallback : v;
}

}  // namespace

GraphicsSettings GraphicsSettings::load(const SettingsStore& store) {
  GraphicsSettings s;
  const long view = number(store.get(kSection, "View"), static_cast<long>(s.view));
  if (view >= 0 && view <= 3) s.view = static_cast<ViewKind>(view);
  s.showRapids = number(store.get(kSection, "ShowRapids"), 1) != 0;
  for (int i = 0; i < kPathColourCount; ++i) {
    const long c = number(store.get(kSection, kColourKeys[i]), -1);
    s.colours[static_cast<std::size_t>(i)] = (c >= 0 && c <= 0xFFFFFF) ? static_cast<std::int32_t>(c) : -1;
  }
  return s;
}

void GraphicsSettings::save(SettingsStore& store) const {
  store.save(kSection, "View", std::to_string(static_cast<int>(view)));
  store.save(kSection, "ShowRapids", showRapids ? "1" : "0");
  for (int i = 0; i < kPathColourCount; ++i)
    store.save(kSection, kColourKeys[i], std::to_string(colours[static_cast<std::size_t>(i)]));
}

std::int32_t GraphicsSettings::colour(PathColour which, const PathColours* scheme) const {
  const auto i = static_cast<std::size_t>(which);
  if (colours[i] >= 0) return colours[i];
  return scheme ? (*scheme)[i] & 0xFFFFFF : kDefaults[i];
}

}  // namespace lathwick::toolpath

#include "format/bundled_schemes.h"

#include "format/rich_text_builder.h"

namespace lathwick {

namespace {

struct Look {
  std::int32_t colour;
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

struct Palette {
  const char* name;
  const char* font;
  const char* family;
  std::int16_t size;
  std::int32_t back;
  std::int16_t indentSteps;
  std::array<Look, kStyleCount> fixed;  // set 0, by style index
  std::array<Look, kStyleCount> codes;  // set 1, by style index
};

// Set 1 code texts, the same in every scheme: M codes, tool, spindle, feed, sequence numbers,
// arc centres and radius, offsets. Style 13 is the highlight style and stays blank-first.
const std::array<const char*, kStyleCount> kCodeMarkers = {"M#", "T#", "S#", "F#", "N#", "I#", "J#",
                                                           "K#", "R#", "H#", "D#", " ", " ", " "};

SchemeRecord makeScheme(const Palette& p) {
  SchemeRecord r;
  r.name = p.name;
  r.backColour = p.back;
  for (int set = 0; set < kSetCount; ++set)
    for (int i = 0; i < kStyleCount; ++i) {
      const Look& look = set == 0 ? p.fixed[i] : p.codes[i];
      SchemeStyle& s = r.sets[set][i];
      s.colour = look.colour;
      s.size = p.size;
      s.fontName = p.font;
      s.family = p.family;
      s.bold = look.bold;
      s.italic = look.italic;
      s.underline = look.underline;
      s.marker = set == 1 ? kCodeMarkers[i] : "";
    }
  r.style(0, kXPositions).indentSteps = p.indentSteps;
  r.style(0, kCommentStyle).marker = "(";
  r.style(0, kBlockSkipStyle).marker = "/";
  r.style(0, kBackgroundStyle).colour = p.back;
  buildSchemeFragments(r);
  return r;
}

// A light page with calm, distinct mode colours.
const Palette kClassic = {
    "Classic", "Courier New", "fmodern", 10, rgb(255, 255, 255), 1,
    {{{rgb(0, 0, 192)}, {rgb(0, 128, 0)}, {rgb(160, 0, 160)}, {rgb(200, 100, 0)}, {rgb(0, 0, 0)},
      {rgb(0, 110, 160)}, {rgb(130, 60, 0)}, {rgb(128, 0, 64), true}, {rgb(0, 96, 96), true},
      {rgb(200, 0, 0), true}, {rgb(110, 110, 110), false, true}, {rgb(255, 255, 255)}, {rgb(0, 0, 0)},
      {rgb(150, 150, 150), false, true}}},
    {{{rgb(180, 0, 0), true}, {rgb(0, 120, 120), true}, {rgb(90, 60, 160)}, {rgb(170, 110, 0)},
      {rgb(120, 120, 120)}, {rgb(0, 90, 180)}, {rgb(0, 90, 180)}, {rgb(0, 90, 180)}, {rgb(0, 90, 180)},
      {rgb(128, 64, 0)}, {rgb(128, 64, 0)}, {rgb(0, 0, 0)}, {rgb(0, 0, 0)}, {rgb(255, 0, 128), true, false, true}}}};

// Soft colours on a dark slate, for long sessions.
const Palette kNightShift = {
    "Night Shift", "Consolas", "fmodern", 11, rgb(30, 32, 40), 1,
    {{{rgb(255, 121, 121)}, {rgb(120, 220, 140)}, {rgb(120, 180, 255)}, {rgb(255, 184, 108)},
      {rgb(230, 230, 230)}, {rgb(139, 233, 253)}, {rgb(189, 147, 249)}, {rgb(255, 121, 198), true},
      {rgb(255, 121, 198), true}, {rgb(255, 85, 85), true}, {rgb(120, 130, 150), false, true},
      {rgb(30, 32, 40)}, {rgb(200, 200, 200)}, {rgb(100, 105, 120), false, true}}},
    {{{rgb(255, 200, 60), true}, {rgb(80, 250, 123), true}, {rgb(241, 250, 140)}, {rgb(255, 170, 90)},
      {rgb(130, 135, 150)}, {rgb(150, 200, 255)}, {rgb(150, 200, 255)}, {rgb(150, 200, 255)},
      {rgb(150, 200, 255)}, {rgb(220, 170, 255)}, {rgb(220, 170, 255)}, {rgb(200, 200, 200)},
      {rgb(200, 200, 200)}, {rgb(255, 255, 0), true, false, true}}}};

// Black on white, told apart by weight and slant so it survives a monochrome printer.
const Palette kPrint = {
    "Print", "Courier New", "fmodern", 10, rgb(255, 255, 255), 0,
    {{{rgb(0, 0, 0), true}, {rgb(0, 0, 0), true}, {rgb(0, 0, 0), true}, {rgb(0, 0, 0)}, {rgb(0, 0, 0)},
      {rgb(0, 0, 0), false, true}, {rgb(0, 0, 0), false, true}, {rgb(0, 0, 0), true, false, true},
      {rgb(0, 0, 0), true, false, true}, {rgb(0, 0, 0), true, true}, {rgb(64, 64, 64), false, true},
      {rgb(255, 255, 255)}, {rgb(0, 0, 0)}, {rgb(96, 96, 96), false, true}}},
    {{{rgb(0, 0, 0), true, false, true}, {rgb(0, 0, 0), true}, {rgb(0, 0, 0), true}, {rgb(0, 0, 0), false, true},
      {rgb(96, 96, 96)}, {rgb(0, 0, 0)}, {rgb(0, 0, 0)}, {rgb(0, 0, 0)}, {rgb(0, 0, 0)}, {rgb(0, 0, 0)},
      {rgb(0, 0, 0)}, {rgb(0, 0, 0)}, {rgb(0, 0, 0)}, {rgb(0, 0, 0), true, true, true}}}};

// Strong primaries on black, for a shop-floor screen seen from a distance.
const Palette kHighContrast = {
    "High Contrast", "Lucida Console", "fmodern", 12, rgb(0, 0, 0), 0,
    {{{rgb(255, 255, 0), true}, {rgb(0, 255, 0), true}, {rgb(0, 255, 255), true}, {rgb(255, 160, 0)},
      {rgb(255, 255, 255)}, {rgb(0, 200, 255)}, {rgb(255, 128, 255)}, {rgb(255, 0, 255), true},
      {rgb(255, 0, 255), true}, {rgb(255, 64, 64), true}, {rgb(160, 160, 160), false, true},
      {rgb(0, 0, 0)}, {rgb(255, 255, 255)}, {rgb(128, 128, 128), false, true}}},
    {{{rgb(255, 64, 64), true}, {rgb(0, 255, 128), true}, {rgb(255, 255, 128), true}, {rgb(255, 200, 0)},
      {rgb(160, 160, 160)}, {rgb(128, 200, 255)}, {rgb(128, 200, 255)}, {rgb(128, 200, 255)},
      {rgb(128, 200, 255)}, {rgb(255, 128, 0)}, {rgb(255, 128, 0)}, {rgb(255, 255, 255)},
      {rgb(255, 255, 255)}, {rgb(255, 0, 128), true, true, true}}}};

}  // namespace

std::vector<SchemeRecord> bundledSchemes() {
  std::vector<SchemeRecord> out;
  for (const Palette* p : {&kClassic, &kNightShift, &kPrint, &kHighContrast}) out.push_back(makeScheme(*p));
  return out;
}

}  // namespace lathwick

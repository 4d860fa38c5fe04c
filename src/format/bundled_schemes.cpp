#include "format/bundled_schemes.h"

#include <vector>

#include "format/rich_text_builder.h"

namespace lathwick {

namespace {

// A style's look: an index into the scheme's few colours, and its emphasis. Schemes keep to a
// dozen colours so that the colour table fits whole in the 512-character header.
struct Look {
  int colour;
  bool bold = false;
  bool italic = false;
  bool underline = false;
};

struct Palette {
  const char* name;
  const char* font;
  const char* family;
  std::int16_t size;
  int back;  // index into colours
  std::int16_t indentSteps;
  std::vector<std::int32_t> colours;
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
  r.backColour = p.colours.at(p.back);
  for (int set = 0; set < kSetCount; ++set)
    for (int i = 0; i < kStyleCount; ++i) {
      const Look& look = set == 0 ? p.fixed[i] : p.codes[i];
      SchemeStyle& s = r.sets[set][i];
      s.colour = p.colours.at(look.colour);
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
  buildSchemeFragments(r);
  return r;
}

// Colour roles shared by the designs below, as indices into each scheme's colours.
enum Role { kText, kX, kY, kZ, kRapid, kArc, kArcCcw, kCompensation, kComment, kBack, kHighlight, kFeed };

// Set 0 by style: X, Y, Z, G00, G01, G02, G03, G41, G42, G91, comments, background, text, block skip.
constexpr std::array<Look, kStyleCount> kFixedLooks = {{{kX},
                                                        {kY},
                                                        {kZ},
                                                        {kRapid},
                                                        {kText},
                                                        {kArc},
                                                        {kArcCcw},
                                                        {kCompensation, true},
                                                        {kCompensation, true},
                                                        {kCompensation, true, false, true},
                                                        {kComment, false, true},
                                                        {kBack},
                                                        {kText},
                                                        {kComment, false, true}}};
// Set 1 by style: M, T, S, F, N, I, J, K, R, H, D, three spare styles, highlight.
constexpr std::array<Look, kStyleCount> kCodeLooks = {{{kCompensation, true},
                                                       {kHighlight, true},
                                                       {kZ},
                                                       {kFeed},
                                                       {kComment},
                                                       {kArc},
                                                       {kArc},
                                                       {kArc},
                                                       {kArc},
                                                       {kArcCcw},
                                                       {kArcCcw},
                                                       {kText},
                                                       {kText},
                                                       {kHighlight, true, true, true}}};

// A white page with calm, distinct colours.
const Palette kClassic = {"Classic", "Courier New", "fmodern", 10, kBack, 1,
                          {rgb(0, 0, 0), rgb(0, 0, 170), rgb(0, 128, 0), rgb(140, 0, 140), rgb(200, 100, 0),
                           rgb(0, 120, 140), rgb(140, 70, 0), rgb(200, 0, 0), rgb(120, 120, 120),
                           rgb(255, 255, 255), rgb(230, 0, 120), rgb(170, 120, 0)},
                          kFixedLooks, kCodeLooks};

// Soft colours on a dark slate, for long sessions.
const Palette kNightShift = {"Night Shift", "Consolas", "fmodern", 11, kBack, 1,
                             {rgb(210, 210, 210), rgb(255, 121, 121), rgb(120, 220, 140), rgb(120, 180, 255),
                              rgb(255, 184, 108), rgb(139, 233, 253), rgb(189, 147, 249), rgb(255, 121, 198),
                              rgb(110, 118, 140), rgb(30, 32, 40), rgb(255, 230, 80), rgb(241, 250, 140)},
                             kFixedLooks, kCodeLooks};

// Strong primaries on black, for a shop-floor screen seen from a distance.
const Palette kHighContrast = {"High Contrast", "Lucida Console", "fmodern", 12, kBack, 0,
                               {rgb(255, 255, 255), rgb(255, 255, 0), rgb(0, 255, 0), rgb(0, 255, 255),
                                rgb(255, 160, 0), rgb(128, 200, 255), rgb(255, 128, 255), rgb(255, 64, 64),
                                rgb(160, 160, 160), rgb(0, 0, 0), rgb(255, 0, 128), rgb(255, 220, 120)},
                               kFixedLooks, kCodeLooks};

// Black on white, told apart by weight and slant so that it survives a monochrome printer.
const Palette kPrint = {"Print", "Courier New", "fmodern", 10, 1, 0,
                        {rgb(0, 0, 0), rgb(255, 255, 255), rgb(90, 90, 90)},
                        {{{0, true}, {0, true}, {0, true}, {0}, {0}, {0, false, true}, {0, false, true},
                          {0, true, false, true}, {0, true, false, true}, {0, true, true}, {2, false, true}, {1},
                          {0}, {2, false, true}}},
                        {{{0, true, false, true}, {0, true}, {0, true}, {0, false, true}, {2}, {0}, {0}, {0}, {0},
                          {0}, {0}, {0}, {0}, {0, true, true, true}}}};

}  // namespace

std::vector<SchemeRecord> bundledSchemes() {
  std::vector<SchemeRecord> out;
  for (const Palette* p : {&kClassic, &kNightShift, &kHighContrast, &kPrint}) out.push_back(makeScheme(*p));
  return out;
}

}  // namespace lathwick

// Styles kept as runs: any stretch reads back as the styles put in, however long the runs and
// wherever the stretch starts; and the writer writes the same rich text from runs as from a
// style byte per character.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "document/rtf_writer.h"
#include "document/style_runs.h"

namespace {

using namespace lathwick;

std::string expand(StyleRunSource& source) {
  std::string out;
  for (auto runs = source.next(); !runs.empty(); runs = source.next())
    for (const StyleRun& r : runs) {
      EXPECT_GT(r.length, 0u);
      out.append(r.length, static_cast<char>(r.style));
    }
  return out;
}

}  // namespace

TEST(StyleRuns, StretchesReadBackAsTheStylesPutIn) {
  std::mt19937 random(11);
  StyleRuns runs;
  std::string styles;
  for (int i = 0; i < 5000; ++i) {
    // Lengths of one byte, two bytes and more once packed; the same style twice joins.
    const std::size_t length = i % 50 == 0 ? 20000 + random() % 200000 : 1 + random() % 300;
    const auto style = static_cast<unsigned char>(random() % 4);
    runs.append(length, style);
    styles.append(length, static_cast<char>(style));
  }
  runs.append(0, 9);  // nothing
  ASSERT_EQ(runs.length(), styles.size());
  EXPECT_LT(runs.runCount(), 5000u);  // neighbours in one style are one run
  EXPECT_LT(runs.bytesUsed(), styles.size() / 100);

  auto all = runs.read(0, styles.size());
  EXPECT_EQ(expand(all), styles);
  for (int i = 0; i < 200; ++i) {
    const std::size_t from = random() % styles.size();
    const std::size_t count = random() % 400000;
    auto part = runs.read(from, count);
    EXPECT_EQ(expand(part), styles.substr(from, count)) << from << " " << count;
  }
  auto past = runs.read(styles.size() + 5, 10);
  EXPECT_EQ(expand(past), "");

  runs.clear();
  EXPECT_EQ(runs.length(), 0u);
  auto none = runs.read(0, 10);
  EXPECT_EQ(expand(none), "");
}

TEST(StyleRuns, CharacterStylesReadAsRuns) {
  const std::string styles("\1\1\1\2\0\0\1", 7);
  CharacterStyleRuns source(styles);
  const auto runs = source.next();
  ASSERT_EQ(runs.size(), 4u);
  EXPECT_EQ(runs[0], (StyleRun{3, 1}));
  EXPECT_EQ(runs[2], (StyleRun{2, 0}));
  EXPECT_TRUE(source.next().empty());
}

TEST(RtfWriterRuns, WritesFromRunsWhatItWritesFromStyleBytes) {
  StyleTable table(StyleFormat{"Courier New", 20, kAutoColour});
  std::vector<unsigned char> styles{0};
  for (int s = 0; s < 5; ++s)
    styles.push_back(static_cast<unsigned char>(table.styleFor({"Arial", 20 + 2 * s, 0x1000u * s, s % 2 == 1})));
  std::mt19937 random(3);
  const char alphabet[] = "G1 X.5\r\n\\{}\t\xe9";
  for (int t = 0; t < 300; ++t) {
    std::string text, perCharacter;
    StyleRuns runs;
    while (text.size() < 400) {
      const std::size_t length = 1 + random() % 12;
      const unsigned char style = styles[random() % styles.size()];
      for (std::size_t i = 0; i < length; ++i) text += alphabet[random() % (sizeof alphabet - 1)];
      perCharacter.append(length, static_cast<char>(style));
      runs.append(length, style);
    }
    const std::vector<TextRange> strikes{{5, 40}, {41, 42}, {300, 390}};
    const std::string want = writeRtf({text, perCharacter, &strikes, 200}, table);
    auto reader = runs.read(0, text.size());
    StyledTextView fromRuns{text, {}, &strikes, 200, &reader};
    EXPECT_EQ(writeRtf(fromRuns, table), want);
  }
  // Runs shorter than the text: the rest is in the default style, as with no styles at all.
  StyleRuns few;
  few.append(2, 0);
  auto reader = few.read(0, 2);
  StyledTextView partial{"abcd", {}, nullptr, 0, &reader};
  EXPECT_EQ(writeRtf(partial, table), writeRtf({"abcd", {}, nullptr, 0}, table));
}

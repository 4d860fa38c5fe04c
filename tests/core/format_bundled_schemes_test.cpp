// The shipped schemes must be usable as they stand: whole headers, a strong blank-first
// highlight style, readable text, and the generated data file holding exactly them.
#include <gtest/gtest.h>

#include "format/bundled_schemes.h"
#include "format/rich_text_builder.h"
#include "format/scheme_data_file.h"
#include "support/temp_dir.h"

using namespace lathwick;

TEST(BundledSchemes, EveryHeaderKeepsItsWholeColourTableAndDefaultText) {
  const auto schemes = bundledSchemes();
  ASSERT_GE(schemes.size(), 3u);
  for (const auto& s : schemes) {
    SCOPED_TRACE(s.name);
    const std::string tail = "\\deflang1033\\pard\\plain" + std::string("\\li") +
                             std::to_string(s.indentSteps() * 200) + " " + attributeString(s, 0, kOtherTextStyle);
    const std::string header = s.rtfHeader + " ";  // the attribute string's blank was trimmed
    ASSERT_GT(header.size(), tail.size());
    EXPECT_EQ(header.substr(header.size() - tail.size()), tail);
    EXPECT_LE(s.name.size(), kSchemeNameWidth);
    // The highlight style is never a code style and stands out.
    const SchemeStyle& hl = s.style(1, kHighlightStyle);
    EXPECT_FALSE(isCodeMarker(hl.marker));
    EXPECT_TRUE(hl.bold);
    EXPECT_NE(hl.colour, s.backColour);
    for (int i = 0; i < kStyleCount; ++i)
      if (i != kBackgroundStyle) {
        EXPECT_NE(s.style(0, i).colour, s.backColour) << "invisible style " << i;
      }
    EXPECT_EQ(s.style(0, kCommentStyle).marker, "(");
    EXPECT_EQ(s.style(0, kBlockSkipStyle).marker, "/");
    EXPECT_TRUE(isCodeMarker(s.style(1, 0).marker));
  }
}

TEST(BundledSchemes, GeneratedDataFileHoldsTheBundledSchemes) {
  const std::string path = std::string(LATHWICK_APP_DIR) + "/Lathwick.dat";
  const auto schemes = bundledSchemes();
  ASSERT_EQ(schemeRecordCount(path), static_cast<long>(schemes.size()));
  for (std::size_t i = 0; i < schemes.size(); ++i)
    EXPECT_EQ(encodeSchemeRecord(readSchemeRecord(path, static_cast<long>(i + 1))), encodeSchemeRecord(schemes[i]));
}

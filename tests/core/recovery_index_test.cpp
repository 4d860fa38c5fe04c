// The index beside a recovered text: written and read back whole, and refused when it is not
// one (so a damaged index is never offered, and never names a file outside its folder).
#include <gtest/gtest.h>

#include "document/recovery_index.h"

using namespace lathwick;

namespace {
RecoveryIndex sample() {
  RecoveryIndex index;
  index.originalPath = "/home/cam/posted\\odd\nname=1.nc";
  index.caption = "POSTED\r\n.NC";
  index.savedAt = 1714550000;
  index.lineEnds = LineEnds::Lf;
  index.kind = RecoveredKind::Plain;
  index.textFile = "doc3.txt";
  return index;
}
}  // namespace

TEST(RecoveryIndex, ReadsBackWhatItWroteEscapesAndAll) {
  const RecoveryIndex index = sample();
  const std::string bytes = encodeRecoveryIndex(index);
  EXPECT_EQ(bytes.find("\nname=1.nc"), std::string::npos) << "a line break in a value must be escaped";
  EXPECT_EQ(decodeRecoveryIndex(bytes), index);

  RecoveryIndex rich = index;
  rich.originalPath.clear();  // never saved
  rich.kind = RecoveredKind::Rich;
  rich.lineEnds = LineEnds::CrLf;
  rich.textFile = "doc4.rtf";
  EXPECT_EQ(decodeRecoveryIndex(encodeRecoveryIndex(rich)), rich);
}

TEST(RecoveryIndex, RefusesWhatIsNotAnIndex) {
  const std::string good = encodeRecoveryIndex(sample());
  // Empty, another version, no time, a bad time, no text, an unknown kind or line end.
  for (const char* bad : {"", "Lathwick recovery 2\ntime=1\ntext=a.txt\n", "Lathwick recovery 1\ntext=a.txt\n",
                          "Lathwick recovery 1\ntime=12x\ntext=a.txt\n", "Lathwick recovery 1\ntime=1\n",
                          "Lathwick recovery 1\ntime=1\ntext=a.txt\nkind=html\n",
                          "Lathwick recovery 1\ntime=1\ntext=a.txt\nlineEnds=CR\n"})
    EXPECT_FALSE(decodeRecoveryIndex(bad)) << bad;
  for (const char* outside : {"../a.txt", "/etc/passwd", "..", "sub\\\\a.txt"})
    EXPECT_FALSE(decodeRecoveryIndex(std::string("Lathwick recovery 1\ntime=1\ntext=") + outside + "\n")) << outside;
  // Cut short after the text name is still whole; unknown keys and stray lines are passed over.
  EXPECT_TRUE(decodeRecoveryIndex(good.substr(0, good.size() - 1)));
  const auto extra = decodeRecoveryIndex("Lathwick recovery 1\nscheme=3\nstray\ntime=5\ntext=b.txt");
  ASSERT_TRUE(extra);
  EXPECT_EQ(extra->savedAt, 5);
  EXPECT_EQ(extra->kind, RecoveredKind::Plain);
  EXPECT_EQ(extra->lineEnds, LineEnds::CrLf);
}

TEST(RecoveryIndex, OfferedUnderItsFileNameElseItsCaption) {
  RecoveryIndex index = sample();
  index.originalPath = "/parts/O1000.NC";
  EXPECT_EQ(recoveredDocumentName(index), "O1000.NC");
  index.originalPath.clear();
  index.caption = "Untitled 2";
  EXPECT_EQ(recoveredDocumentName(index), "Untitled 2");
}

// Linux line ends: which programs have them, their CR LF twins, and writing LF back.
#include <gtest/gtest.h>

#include "document/line_convention.h"
#include "platform/errors.h"
#include "support/temp_dir.h"

using namespace lathwick;

TEST(LineConvention, OnlyLfWithoutAnyCrIsLinuxText) {
  for (const char* lf : {"G0 X1\nG1 Y2\n", "%\n"}) EXPECT_EQ(lineEndsOf(lf), LineEnds::Lf) << lf;
  // Mixed or lone CRs are for the line-ending checks and the junk filter to judge; one line has
  // nothing to convert.
  for (const char* crlf : {"G0 X1\r\nG1 Y2\r\n", "G0 X1\r\nG1 Y2\n", "G0 X1\rG1 Y2\n", "G0 X1", ""})
    EXPECT_EQ(lineEndsOf(crlf), LineEnds::CrLf) << crlf;
}

TEST(LineConvention, TwinAndBackAreExactInverses) {
  const std::string lf = "%\nO1000\n\nG0 X1 (a\tcomment)\n%";  // no break at the end, an empty line
  const std::string crlf = linuxToCrLf(lf);
  EXPECT_EQ(crlf, "%\r\nO1000\r\n\r\nG0 X1 (a\tcomment)\r\n%");
  EXPECT_EQ(withLineEnds(crlf, LineEnds::Lf), lf);
  EXPECT_EQ(withLineEnds(crlf, LineEnds::CrLf), crlf);
  // A lone CR typed into an LF document is not a line end of either kind: it stays.
  EXPECT_EQ(withLineEnds("A\rB\r\n", LineEnds::Lf), "A\rB\n");
}

TEST(LineConvention, FilesAreCopiedAsTwinsAndRewrittenWithTheirEnds) {
  test::TempDir dir;
  // Larger than one block, with a CR LF pair across the block boundary after conversion.
  std::string lf;
  while (lf.size() < (1u << 17)) lf += "N" + std::to_string(lf.size()) + " G01 X1.5\n";
  const std::string in = dir.write("lf.nc", lf);
  EXPECT_EQ(lineEndsOfFile(in), LineEnds::Lf);
  EXPECT_EQ(copyAsCrLfTwin(in, dir.file("twin.nc")), LineEnds::Lf);
  EXPECT_EQ(dir.read("twin.nc"), linuxToCrLf(lf));
  rewriteWithLineEnds(dir.file("twin.nc"), LineEnds::Lf);
  EXPECT_EQ(dir.read("twin.nc"), lf);

  const std::string mixed = "A\r\nB\nC\r\n";
  EXPECT_EQ(copyAsCrLfTwin(dir.write("mixed.nc", mixed), dir.file("copy.nc")), LineEnds::CrLf);
  EXPECT_EQ(dir.read("copy.nc"), mixed);  // byte for byte
  rewriteWithLineEnds(dir.file("copy.nc"), LineEnds::CrLf);
  EXPECT_EQ(dir.read("copy.nc"), mixed);
  // A first CR blocks into the file: what was already taken for Linux text is copied again as it is.
  const std::string lateCr = lf + "M30\r\n";
  EXPECT_EQ(copyAsCrLfTwin(dir.write("late.nc", lateCr), dir.file("copy.nc")), LineEnds::CrLf);
  EXPECT_EQ(dir.read("copy.nc"), lateCr);
  // No break at all: its own twin.
  EXPECT_EQ(copyAsCrLfTwin(dir.write("one.nc", "G0 X1"), dir.file("copy.nc")), LineEnds::CrLf);
  EXPECT_EQ(dir.read("copy.nc"), "G0 X1");

  EXPECT_THROW(lineEndsOfFile(dir.file("missing.nc")), AppError);
  EXPECT_THROW(copyAsCrLfTwin(dir.file("missing.nc"), dir.file("x.nc")), AppError);
}

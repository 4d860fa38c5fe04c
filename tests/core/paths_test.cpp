// Path helpers: names, folders, extensions, shortened captions, and the existence test.
#include <gtest/gtest.h>

#include "document/paths.h"
#include "platform/app_folder.h"
#include "support/temp_dir.h"

using namespace lathwick;

TEST(Paths, FileNameOfAndPathOfTrimInPlace) {
  std::string p = "  C:\\Jobs\\part.nc ";
  EXPECT_EQ(FileNameOf(p), "part.nc");
  EXPECT_EQ(p, "C:\\Jobs\\part.nc");
  std::string bare = "part.nc";
  EXPECT_EQ(FileNameOf(bare), "");  // deliberately not the whole name
  EXPECT_EQ(PathOf(bare), "part.nc");
  std::string drive = "C:part.nc";
  EXPECT_EQ(FileNameOf(drive), "part.nc");
  std::string unix = " /home/m/jobs/a.nc";
  EXPECT_EQ(PathOf(unix), "/home/m/jobs/");
  EXPECT_EQ(unix, "/home/m/jobs/a.nc");
}

TEST(Paths, ChangeExtensionOverwritesOnlyAThreeLetterExtension) {
  const std::pair<const char*, const char*> cases[] = {
      {"a.txt", "a.RTF"}, {"a.nc", "a.nc.RTF"}, {"x.html", "x.html.RTF"}, {"ab", "ab.RTF"}};
  for (const auto& [in, want] : cases) {
    std::string name = in;
    ChangeExtension(name, "RTF");
    EXPECT_EQ(name, want);
  }
}

TEST(Paths, ShortenPathSearchesFromLengthMinusMaximumPlusSixAndKeepsTheFileName) {
  EXPECT_EQ(ShortenPath("C:\\CNC\\Programs\\Customer\\Job42\\part.nc", 25), "C:\\ ...\\Job42\\part.nc");
  EXPECT_EQ(ShortenPath("/short.nc", 25), "/short.nc");
  EXPECT_EQ(ShortenPath("/home/machinist/programs/bracket/op1.nc", 25), "/home .../bracket/op1.nc");
  EXPECT_EQ(ShortenPath("jobs/customer/2024/march/op1.nc", 25), "jobs .../2024/march/op1.nc");
  // A long name leaves no separator in the search range: the name is kept with its separator,
  // so two long names in one folder never shorten to the same caption.
  EXPECT_EQ(ShortenPath("/tmp/lathwick/bracket_roughing_op1.nc", 25), "/tmp .../bracket_roughing_op1.nc");
  EXPECT_EQ(ShortenPath("/tmp/lathwick/bracket_finishing_op2.nc", 25), "/tmp .../bracket_finishing_op2.nc");
  EXPECT_EQ(ShortenPath("C:\\Jobs\\a_very_long_program_name_of_a_part.nc", 25),
            "C:\\ ...\\a_very_long_program_name_of_a_part.nc");
  // Nothing to leave out between the root and the name, or no folder at all: kept whole.
  EXPECT_EQ(ShortenPath("/tmp/a_very_long_program_name_of_a_part.nc", 25), "/tmp/a_very_long_program_name_of_a_part.nc");
  EXPECT_EQ(ShortenPath(std::string(40, 'x'), 25), std::string(40, 'x'));
}

TEST(AppFolder, FileExistsOnlyForNormalFilesAndWithBackslashAddsOneSeparator) {
  test::TempDir dir;
  dir.write("part.nc", "G0");
  dir.write(".hidden", "x");
  for (const std::string& found : {dir.file("part.nc"), "  " + dir.file("part.nc") + "  ", dir.file("*.nc")})
    EXPECT_TRUE(FileExists(found)) << found;
  // Not a file: a folder, with or without its separator, roots, blanks, nothing there.
  for (const std::string& none : {dir.file("*.txt"), dir.file(".hidden"), dir.str(), dir.folder(), std::string("/"),
                                  std::string("C:"), std::string("C:\\"), std::string("    "), dir.file("nope.nc")})
    EXPECT_FALSE(FileExists(none)) << none;
  EXPECT_EQ(WithBackslash("  C:\\Jobs  "), "C:\\Jobs/");
  EXPECT_EQ(WithBackslash("C:\\Jobs\\"), "C:\\Jobs\\");
  EXPECT_EQ(WithBackslash("/opt/lathwick/"), "/opt/lathwick/");
  EXPECT_EQ(WithBackslash("   "), "");
}


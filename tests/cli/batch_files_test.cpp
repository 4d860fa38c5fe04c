// The batch tool's friendlier side: dialog defaults for left-out options, "-" for standard input
// and output, --in-place over several files with backups, --version.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/cli_runner.h"

namespace {
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

const std::string kProgram = "%\r\nO1000 (BRACKET)\r\nG00 X10. Y5.\r\nG01 Z-1.5 F200\r\n(CHECK)\r\nX20.25 Y-7.5\r\nM30\r\n";
}  // namespace

TEST(BatchDefaults, LeftOutOptionsTakeTheDialogDefaults) {
  TempDir d;
  const auto in = d.write("in.nc", kProgram);
  ASSERT_EQ(runCli({"renumber", in, d.file("short.nc")}).exitCode, 0);
  ASSERT_EQ(runCli({"renumber", "--start", "100", "--increment", "1", "--char", "N", "--skip", "%", "--method", "2",
                    in, d.file("long.nc")})
                .exitCode,
            0);
  EXPECT_EQ(d.read("short.nc"), d.read("long.nc"));
  EXPECT_NE(d.read("short.nc").find("N100"), std::string::npos);

  const auto brief = runCli({"operate", in, d.file("short.rtf")});
  const auto full = runCli({"operate", "--address", "XYZ", "--operator", "*", "--value", "1", "--format", "##0.0###",
                            in, d.file("long.rtf")});
  EXPECT_EQ(brief.exitCode, 0) << brief.err;
  EXPECT_EQ(brief.out, full.out);
  EXPECT_EQ(brief.out, "5 Operations made.\n");
  EXPECT_EQ(d.read("short.rtf"), d.read("long.rtf"));
  // One option given, the others defaulted.
  EXPECT_EQ(runCli({"renumber", "--increment", "10", in, d.file("ten.nc")}).exitCode, 0);
  EXPECT_NE(d.read("ten.nc").find("N110"), std::string::npos);
}

TEST(BatchStreams, DashReadsStandardInputAndWritesStandardOutput) {
  TempDir d;
  const auto in = d.write("in.nc", kProgram);
  ASSERT_EQ(runCli({"add-spaces", in, d.file("file.nc")}).exitCode, 0);
  const auto piped = runCli({"add-spaces", "-", "-"}, kProgram);
  EXPECT_EQ(piped.exitCode, 0) << piped.err;
  EXPECT_EQ(piped.out, d.read("file.nc"));

  ASSERT_EQ(runCli({"replace", "--find", "X", "--replace", "U", in, d.file("file.rtf")}).exitCode, 0);
  const auto toStdout = runCli({"replace", "--find", "X", "--replace", "U", in, "-"});
  EXPECT_EQ(toStdout.out, d.read("file.rtf"));
  EXPECT_EQ(toStdout.err, "2 Replacements made.\n");  // kept out of the output's bytes
  const auto fromStdin = runCli({"replace", "--find", "X", "--replace", "U", "-", d.file("stdin.rtf")}, kProgram);
  EXPECT_EQ(fromStdin.out, "2 Replacements made.\n");
  EXPECT_EQ(d.read("stdin.rtf"), d.read("file.rtf"));
}

TEST(BatchStreams, ARefusedPassWritesNothingToStandardOutput) {
  // The second line's number would pass the largest sequence number.
  const auto r = runCli({"renumber", "--start", "2147483646", "-", "-"}, "G0 X1\r\nG1 X2\r\n");
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_TRUE(r.out.empty());
  EXPECT_NE(r.err.find("Unable to renumber file."), std::string::npos) << r.err;
}

TEST(BatchInPlace, RewritesEveryFileAndKeepsBackups) {
  TempDir d;
  const auto a = d.write("a.nc", kProgram);
  const auto b = d.write("sub/b.nc", "G01 X1\r\n");
  std::filesystem::permissions(b, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  const auto r = runCli({"remove-spaces", "--in-place", a, b});
  EXPECT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(readBytes(a + ".bak"), kProgram);
  EXPECT_EQ(readBytes(b + ".bak"), "G01 X1\r\n");
  EXPECT_EQ(readBytes(b), "G01X1\r\n");
  EXPECT_EQ(std::filesystem::status(b).permissions() & std::filesystem::perms::all,
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  // Counting passes name each file; a chosen suffix; no scratch files left behind.
  const auto counted = runCli({"highlight", "--find", "X", "--in-place", "--backup-suffix", ".orig", a, b});
  EXPECT_EQ(counted.out, a + ": 2 Highlights made.\n" + b + ": 1 Highlights made.\n");
  EXPECT_TRUE(std::filesystem::exists(a + ".orig"));
  std::size_t entries = 0;
  for ([[maybe_unused]] const auto& e : std::filesystem::directory_iterator(d.path() / "sub")) ++entries;
  EXPECT_EQ(entries, 3u);  // b.nc, b.nc.bak, b.nc.orig
}

TEST(BatchInPlace, ARefusedFileIsLeftAloneAndTheOthersAreDone) {
  TempDir d;
  // With two lines the second number would pass the largest sequence number; one line fits.
  const auto bad = d.write("bad.nc", "G0 X1\r\nG1 X2\r\n");
  const auto good = d.write("good.nc", "G0 X1\r\n");
  const auto r = runCli({"renumber", "--start", "2147483646", "--in-place", "--backup-suffix", "", bad,
                         d.file("missing.nc"), good});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(readBytes(bad), "G0 X1\r\nG1 X2\r\n");
  EXPECT_NE(r.err.find(bad + ": Unable to renumber file."), std::string::npos) << r.err;
  EXPECT_NE(r.err.find("missing.nc: File not found"), std::string::npos) << r.err;
  EXPECT_EQ(readBytes(good), "N2147483646G0 X1\r\n");
  EXPECT_FALSE(std::filesystem::exists(good + ".bak"));  // an empty suffix keeps no backup
}

TEST(BatchUsage, VersionAndMisusedFileOptions) {
  const auto v = runCli({"--version"});
  EXPECT_EQ(v.exitCode, 0);
  EXPECT_EQ(v.out.rfind("lathwick-cli ", 0), 0u);
  EXPECT_NE(v.out.find('.'), std::string::npos);
  TempDir d;
  const auto in = d.write("in.nc", kProgram);
  for (const auto& args : {std::vector<std::string>{"junk-filter", "--backup-suffix", ".b", in, d.file("o")},
                           {"junk-filter", "--in-place", "-"},
                           {"junk-filter", "--in-place"},
                           {"renumber", "--frobnicate", in, d.file("o")}}) {
    const auto r = runCli(args);
    EXPECT_EQ(r.exitCode, 2) << args[1];
    EXPECT_NE(r.err.find("Usage: lathwick-cli"), std::string::npos) << r.err;
  }
  EXPECT_NE(runCli({"renumber", "--frobnicate", in, d.file("o")}).err.find("unknown option --frobnicate"),
            std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(d.file("o")));
  EXPECT_EQ(readBytes(in), kProgram);
}

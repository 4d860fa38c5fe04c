// lathwick-cli scheme list|header|dump over the bundled and other data files, and bad ones.
#include <gtest/gtest.h>

#include "format/bundled_schemes.h"
#include "format/scheme_data_file.h"
#include "support/cli_runner.h"

using namespace lathwick;
using lathwick::test::CliResult;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {
const std::string kProblem =
    "There is a problem with data file in the installed directory.\n"
    "If the problem persists you will have to restore an older version. \n";
}

TEST(CliScheme, ListAndHeaderOfTheBundledDataFile) {
  EXPECT_EQ(runCli({"scheme", "list"}),
            (CliResult{0, "1\tClassic\n2\tNight Shift\n3\tHigh Contrast\n4\tPrint\n", ""}));
  EXPECT_EQ(runCli({"scheme", "header", "--scheme", "2"}),
            (CliResult{0, bundledSchemes()[1].rtfHeader + "\n", ""}));
}

TEST(CliScheme, ReadsAnyDataFileAndDumpsEveryField) {
  TempDir dir;
  SchemeRecord mine = bundledSchemes()[0];
  mine.name = "  Mine";
  mine.style(1, 4).marker = "G43 H#";
  mine.style(0, 3).fontName = "Some \"Odd\" Font";
  const std::string data = dir.file("custom.dat");
  writeSchemeRecord(data, 1, bundledSchemes()[3]);
  writeSchemeRecord(data, 2, mine);
  auto r = runCli({"scheme", "list", "--data", data});
  EXPECT_EQ(r.out, "1\tPrint\n2\tMine\n");
  r = runCli({"scheme", "dump", "--data", data, "--scheme", "2"});
  EXPECT_EQ(r.exitCode, 0) << r.err;
  for (const char* part : {"\"record\": 2,", "\"name\": \"  Mine\",", "\"rtfTrailer\": \"\\\\par}\",",
                           "\"marker\": \"G43 H#\"", "\"fontName\": \"Some \\\"Odd\\\" Font\"",
                           "\"family\": \"fmodern\"", "\"bold\": true", "\"indentSteps\": 1,",
                           "\"attributes\": \"\\\\f0\\\\fs20\\\\cf"})
    EXPECT_NE(r.out.find(part), std::string::npos) << part;
  EXPECT_EQ(r.out.find("\\r\\n{\\\\colortbl") != std::string::npos, true);  // the header's CR LF, escaped
}

TEST(CliScheme, BadDataFilesGiveTheDataFileMessageAndBadArgumentsAUsageError) {
  TempDir dir;
  const std::string good = encodeSchemeRecord(bundledSchemes()[0]);
  const std::string shortFile = dir.write("short.dat", good.substr(0, 4000));
  const std::string truncated = dir.write("truncated.dat", good + good.substr(0, 600));
  std::string noise;
  for (std::size_t i = 0; i < good.size(); ++i) noise += static_cast<char>((i * 7919) % 251);
  const std::string garbage = dir.write("garbage.dat", noise);

  for (const std::string& file : {shortFile, garbage, dir.file("missing.dat")}) {
    EXPECT_EQ(runCli({"scheme", "header", "--data", file}), (CliResult{1, "", kProblem})) << file;
  }
  EXPECT_EQ(runCli({"scheme", "list", "--data", truncated}), (CliResult{0, "1\tClassic\n", ""}));
  EXPECT_EQ(runCli({"scheme", "header", "--data", truncated, "--scheme", "2"}), (CliResult{1, "", kProblem}));
  EXPECT_EQ(runCli({"scheme", "list", "--data", garbage}), (CliResult{1, "", kProblem}));
  EXPECT_EQ(runCli({"scheme", "list", "--data", shortFile}), (CliResult{0, "", ""}));
  // Usage errors.
  EXPECT_EQ(runCli({"scheme"}).exitCode, 2);
  EXPECT_EQ(runCli({"scheme", "show"}).exitCode, 2);
  EXPECT_EQ(runCli({"scheme", "header", "--scheme", "two"}).exitCode, 2);
}

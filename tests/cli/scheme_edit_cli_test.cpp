// lathwick-cli scheme new|copy|set|delete: the scheme editor's record operations on a data file,
// and a data file that must not be changed.
#include <gtest/gtest.h>

#include <filesystem>

#include "format/bundled_schemes.h"
#include "format/scheme_data_file.h"
#include "support/cli_runner.h"

using namespace lathwick;
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

std::string bundledCopy(const TempDir& dir) {
  const std::string data = dir.file("Lathwick.dat");
  const auto schemes = bundledSchemes();
  for (std::size_t i = 0; i < schemes.size(); ++i) writeSchemeRecord(data, static_cast<long>(i + 1), schemes[i]);
  return data;
}

}  // namespace

TEST(CliSchemeEdit, NewCopyAndDeleteKeepTheListInOrder) {
  TempDir dir;
  const std::string data = bundledCopy(dir);
  auto r = runCli({"scheme", "--data", data, "--scheme", "2", "new", "Mill Two"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "5\n");
  // A new scheme starts from the one on show, with no indent and the comment and block-skip texts.
  const SchemeRecord made = readSchemeRecord(data, 5);
  EXPECT_EQ(made.name, "Mill Two");
  EXPECT_EQ(made.backColour, bundledSchemes()[1].backColour);
  EXPECT_EQ(made.indentSteps(), 0);
  EXPECT_EQ(made.style(0, kCommentStyle).marker, "(");
  EXPECT_EQ(made.style(0, kBlockSkipStyle).marker, "/");

  r = runCli({"scheme", "--data", data, "copy", "1", "A name longer than sixteen"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "6\n");
  EXPECT_EQ(readSchemeRecord(data, 6).name, "A name longer th");
  EXPECT_EQ(readSchemeRecord(data, 6).rtfHeader, bundledSchemes()[0].rtfHeader);

  r = runCli({"scheme", "--data", data, "delete", "2"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  r = runCli({"scheme", "--data", data, "list"});
  EXPECT_EQ(r.out, "1\tClassic\n2\tHigh Contrast\n3\tPrint\n4\tMill Two\n5\tA name longer th\n");
  EXPECT_FALSE(std::filesystem::exists(dir.file("TEMP1.TXT")));
}

TEST(CliSchemeEdit, SetRebuildsTheStylesAttributesAndFamily) {
  TempDir dir;
  const std::string data = bundledCopy(dir);
  auto r = runCli({"scheme", "--data", data, "set", "1", "--style", "0.4", "--colour", "FF8000", "--font",
                   "Times New Roman", "--size", "14", "--bold", "--underline", "--background", "102030", "--indent",
                   "3"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const SchemeRecord s = readSchemeRecord(data, 1);
  const SchemeStyle& g01 = s.style(0, kG01Mode);
  EXPECT_EQ(g01.colour, rgb(255, 128, 0));
  EXPECT_EQ(g01.fontName, "Times New Roman");
  EXPECT_EQ(g01.family, "froman");
  EXPECT_EQ(g01.size, 14);
  EXPECT_TRUE(g01.bold);
  EXPECT_TRUE(g01.underline);
  EXPECT_FALSE(g01.italic);
  EXPECT_EQ(g01.attributes.substr(g01.attributes.find("\\fs")), "\\fs28\\cf" + std::to_string(g01.colourNumber) +
                                                                  "\\b\\i0\\strike0\\ul");
  EXPECT_EQ(s.backColour, rgb(0x10, 0x20, 0x30));
  EXPECT_EQ(s.indentSteps(), 3);
  EXPECT_NE(s.rtfHeader.find("\\froman Times New Roman;"), std::string::npos);
  EXPECT_NE(s.rtfHeader.find("\\red255\\green128\\blue0;"), std::string::npos);
  // The marker of a code style, and turning a flag off again.
  r = runCli({"scheme", "--data", data, "set", "1", "--style", "1.3", "--marker", "G43 H#", "--italic"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(readSchemeRecord(data, 1).style(1, 3).marker, "G43 H#");
  EXPECT_TRUE(readSchemeRecord(data, 1).style(1, 3).italic);
  r = runCli({"scheme", "--data", data, "set", "1", "--style", "0.4", "--no-bold"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_FALSE(readSchemeRecord(data, 1).style(0, kG01Mode).bold);
  EXPECT_TRUE(readSchemeRecord(data, 1).style(0, kG01Mode).underline);
}

TEST(CliSchemeEdit, BadRequestsChangeNothing) {
  TempDir dir;
  const std::string data = bundledCopy(dir);
  const std::string before = readBytes(data);
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{"set", "1", "--colour", "12345"}, {"set", "1", "--style", "2.1", "--bold"},
        {"set", "1", "--style", "0.14", "--bold"}, {"set", "1", "--bold"}, {"set", "1", "--indent", "21"},
        {"set", "1", "--style", "0.1", "--bold", "--no-bold"}, {"copy", "1"}, {"frobnicate"}}) {
    std::vector<std::string> full{"scheme", "--data", data};
    full.insert(full.end(), args.begin(), args.end());
    EXPECT_EQ(runCli(full).exitCode, 2) << args.front() << " " << (args.size() > 2 ? args[2] : "");
  }
  EXPECT_EQ(runCli({"scheme", "--data", data, "delete", "9"}).exitCode, 1);
  EXPECT_EQ(runCli({"scheme", "--data", data, "copy", "9", "X"}).exitCode, 1);
  EXPECT_EQ(readBytes(data), before);
}

TEST(CliSchemeEdit, ReadOnlyDataFileGivesTheDataFileMessage) {
  TempDir dir;
  const std::string data = bundledCopy(dir);
  const std::string before = readBytes(data);
  std::filesystem::permissions(data, std::filesystem::perms::owner_read | std::filesystem::perms::group_read |
                                         std::filesystem::perms::others_read);
  for (const std::vector<std::string>& args : {std::vector<std::string>{"new", "X"}, {"copy", "1", "X"},
                                               {"set", "1", "--background", "000000"}, {"delete", "1"}}) {
    std::vector<std::string> full{"scheme", "--data", data};
    full.insert(full.end(), args.begin(), args.end());
    const auto r = runCli(full);
    EXPECT_EQ(r.exitCode, 1) << args.front();
    EXPECT_NE(r.err.find("There is a problem with data file"), std::string::npos) << r.err;
  }
  EXPECT_EQ(readBytes(data), before);
}

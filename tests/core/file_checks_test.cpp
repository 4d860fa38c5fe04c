// Line-ending checks, file-error texts and OpenFile's refusals and questions.
#include <gtest/gtest.h>

#include "document/file_errors.h"
#include "document/line_ending_checks.h"
#include "document/open_file.h"
#include "platform/errors.h"
#include "support/temp_dir.h"

using namespace lathwick;
using lathwick::test::TempDir;

TEST(LineEndingChecks, TheTwoChecksDifferOnPurpose) {
  TempDir d;
  EXPECT_EQ(LineCountCheck(d.write("crlf", "a\r\nb\r\n")), 2);
  EXPECT_TRUE(FormatCheck(d.file("crlf")));
  EXPECT_EQ(LineCountCheck(d.write("lf", "a\nb\n")), -1);
  EXPECT_FALSE(FormatCheck(d.file("lf")));
  EXPECT_EQ(LineCountCheck(d.write("none", "abc")), 0);
  EXPECT_TRUE(FormatCheck(d.file("none")));
  EXPECT_TRUE(FormatCheck(d.write("cr", "a\rb\r")));
  // Lone CRs and lone LFs: the colorizer's check passes it, the search check refuses it.
  const std::string mixed = d.write("mixed", "a\rb\nc\r");
  EXPECT_EQ(LineCountCheck(mixed), 1);
  EXPECT_FALSE(FormatCheck(mixed));
  // One CR LF anywhere is enough for the search check.
  EXPECT_TRUE(FormatCheck(d.write("one", "a\nb\nc\r\n")));
  EXPECT_THROW(LineCountCheck(d.file("missing")), AppError);
}

TEST(FileErrors, TableTextsAndFallbackToDescription) {
  const struct { int number; const char *description, *text; } rows[] = {
      {57, "Device I/O error", "The disk is full."}, {61, "Disk full", "Disk full"},
      {52, "", "That filename is illegal."}, {64, "", "That filename is illegal."}, {76, "", "That path doesn't exist."},
      {62, "", "This file has a nonstandard end-of-file marker,or an attempt was made to read beyond the end-of-file marker."},
      {53, "File not found", "File not found"}};
  for (const auto& r : rows) EXPECT_EQ(FileErrorText(r.number, r.description), r.text) << r.number;
}

TEST(OpenFile, NamePatternAndUnknownModes) {
  TempDir d;
  try {
    OpenFile(d.file("a;-b"), 2, 0, false, {});
    FAIL() << "no error";
  } catch (const AppError& e) {
    EXPECT_EQ(e.number(), 64);
  }
  EXPECT_NO_THROW(OpenFile(d.write("a;-", "x"), 2, 0, false, {}));  // nothing after ";-"
  EXPECT_EQ(OpenFile(d.file("x"), 9, 0, false, {}), nullptr);
}

TEST(OpenFile, AsksBeforeReplacingOrCreatingAndCancelReturnsNothing) {
  TempDir d;
  const std::string existing = d.write("scheme.dat", "old");
  std::vector<std::string> asked;
  OpenFilePrompts decline{[&](const std::string& m, const std::string& c) {
    asked.push_back(c + "|" + m);
    return false;
  }};
  EXPECT_EQ(OpenFile(existing, 1, 0, true, decline), nullptr);
  EXPECT_EQ(OpenFile(d.file("new.dat"), 3, 0, true, decline), nullptr);
  ASSERT_EQ(asked.size(), 2u);
  EXPECT_EQ(asked[0], "Replace File?|Replace contents of " + existing + "?");
  EXPECT_EQ(asked[1], "Create File?|The file " + d.file("new.dat") + " does not exist. Do you want to create it?");
  EXPECT_EQ(test::readBytes(existing), "old");
}

TEST(OpenFile, OutputReplacesTheFileOnlyWhenClosed) {
  TempDir d;
  const std::string path = d.write("out.txt", "old contents");
  {
    auto f = OpenFile(path, 1, 0, false, {});
    ASSERT_NE(f, nullptr);
    std::fputs("new", f->handle());
    EXPECT_EQ(test::readBytes(path), "old contents");  // still intact while writing
  }  // dropped without close: the old file stays
  EXPECT_EQ(test::readBytes(path), "old contents");
  auto f = OpenFile(path, 1, 0, false, {});
  std::fputs("new", f->handle());
  f->close();
  EXPECT_EQ(test::readBytes(path), "new");
}

// Work files are read the way the original runtime's line input read them.
#include <gtest/gtest.h>

#include <vector>

#include "platform/errors.h"
#include "platform/line_reader.h"
#include "support/temp_dir.h"

namespace {
std::vector<std::string> linesOf(const std::string& bytes) {
  lathwick::test::TempDir dir;
  lathwick::LineReader reader(dir.write("in.txt", bytes));
  std::vector<std::string> out;
  std::string line;
  while (reader.next(line)) out.push_back(line);
  return out;
}
using Lines = std::vector<std::string>;
}  // namespace

TEST(LineReader, BreaksAtCrLfAndLoneCrButNotLoneLfAndAFinalBreakAddsNoLine) {
  EXPECT_EQ(linesOf("a\r\nb\rc\nd\r\n"), (Lines{"a", "b", "c\nd"}));
  EXPECT_EQ(linesOf(""), Lines{});
  EXPECT_EQ(linesOf("\r\n"), Lines{""});
  EXPECT_EQ(linesOf("x"), Lines{"x"});
  EXPECT_EQ(linesOf("x\r\n\r\n"), (Lines{"x", ""}));
}

TEST(LineReader, CrLfSplitAcrossBufferBoundaryIsOneBreak) {
  // The reader fills 64 KiB blocks: put the CR as the last byte of the first block.
  const std::string first(65535, 'a');
  EXPECT_EQ(linesOf(first + "\r\nb"), (Lines{first, "b"}));
  const std::string longLine(200000, 'z');
  EXPECT_EQ(linesOf(longLine + "\r" + "q"), (Lines{longLine, "q"}));
}

TEST(LineReader, MissingFileIsFileNotFound) {
  try {
    lathwick::LineReader reader("/nonexistent/folder/x.txt");
    FAIL() << "no error";
  } catch (const lathwick::AppError& e) {
    EXPECT_EQ(e.number(), 53);
  }
}

// The buffered string builder and its missing-cleanup report.
#include <gtest/gtest.h>

#include "shell/string_accumulator.h"

using lathwick::clsMidConcat;

TEST(StringAccumulator, GrowsInStepsLongPiecesAndExactFitsAndCleanupCutsToTheText) {
  std::vector<std::string> reports;
  {
    clsMidConcat acc([&](const std::string& m) { reports.push_back(m); });
    std::string buffer;
    acc.Concat(buffer, "G01");
    EXPECT_EQ(buffer.size(), 50000u);
    EXPECT_EQ(buffer.substr(0, 4), "G01 ");
    acc.Concat(buffer, " X1");
    acc.Cleanup(buffer);
    EXPECT_EQ(buffer, "G01 X1");
    // After Cleanup the object starts a new string.
    std::string next;
    acc.Concat(next, "N10");
    acc.Cleanup(next);
    EXPECT_EQ(next, "N10");
  }
  EXPECT_TRUE(reports.empty());
  clsMidConcat acc([](const std::string&) {});
  acc.BufferLen(10);
  std::string buffer;
  acc.Concat(buffer, "");  // 0 + 0 >= 0: even an empty piece grows an empty buffer
  EXPECT_EQ(buffer.size(), 10u);
  acc.Concat(buffer, std::string(25, 'x'));  // longer than the step: grows by the piece
  EXPECT_EQ(buffer.size(), 35u);
  acc.Concat(buffer, std::string(10, 'y'));  // 25 + 10 = 35 fills it exactly: grows again
  EXPECT_EQ(buffer.size(), 45u);
  acc.Cleanup(buffer);
  EXPECT_EQ(buffer, std::string(25, 'x') + std::string(10, 'y'));
}

TEST(StringAccumulator, DestroyedWithoutCleanupReportsOnce) {
  std::vector<std::string> reports;
  {
    clsMidConcat acc([&](const std::string& m) { reports.push_back(m); });
    std::string b;
    acc.Concat(b, "x");
  }
  EXPECT_EQ(reports, std::vector<std::string>{"Cleanup method must be executed."});
}

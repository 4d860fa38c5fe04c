// A macro cannot eat the machine: strings stop at their cap with "Out of string space", arrays
// at theirs with "Out of memory", and a loop that doubles a string reaches the host's poll (where
// Esc arrives) long before the cap, so the host can stop it.
#include <gtest/gtest.h>

#include <chrono>

#include "extend/vbscript/engine.h"

using namespace lathwick::vbs;

namespace {

constexpr const char* kDoubling = "s = \"G01 X1\"\nDo\ns = s & s\nLoop";

std::int32_t lengthOfS(Engine& e) {
  if (!e.addCode("Function LenS()\nLenS = Len(s)\nEnd Function")) return -1;
  const auto r = e.run("LenS");
  return r ? r->intValue() : -1;
}

// The caps are checked before anything is allocated, so these cases cost no memory.
TEST(StringCaps, StringsAndArraysPastTheirCapsAreCatchableErrors) {
  Engine e;
  ASSERT_TRUE(e.addCode("On Error Resume Next\n"
                        "s = String(268435457, \"x\")\nn1 = Err.Number : d1 = Err.Description : Err.Clear\n"
                        "s = Space(268435457)\nn2 = Err.Number : Err.Clear\n"
                        "ReDim a(16777216)\nn3 = Err.Number : d3 = Err.Description : Err.Clear\n"
                        "ReDim b(65535, 65535, 65535, 65535)\nn4 = Err.Number : Err.Clear\n"
                        "Function R()\nR = n1 & \" \" & d1 & \"|\" & n2 & \"|\" & n3 & \" \" & d3 & \"|\" & n4\nEnd Function"));
  const auto r = e.run("R");
  ASSERT_TRUE(r);
  EXPECT_EQ(r->strValue(), "14 Out of string space|14|7 Out of memory|7");
}

TEST(StringCaps, ThePollFiresOnStringGrowthSoTheHostStopsADoublingLoop) {
  // The host's poll interrupts once a small time budget has passed, as Esc would.
  Engine e;
  const auto start = std::chrono::steady_clock::now();
  int polls = 0;
  UiCallbacks ui;
  ui.poll = [&] {
    ++polls;
    if (std::chrono::steady_clock::now() - start > std::chrono::milliseconds(1)) e.interrupt();
  };
  e.setUi(ui);
  EXPECT_FALSE(e.addCode(kDoubling));
  ASSERT_TRUE(e.lastError());
  // The loop turns only a few dozen times, far fewer than the loop poll needs: the growth
  // poll stopped it, before the string reached its cap.
  EXPECT_EQ(e.lastError()->description, "Script interrupted");
  EXPECT_GE(polls, 1);
  EXPECT_LT(lengthOfS(e), 1 << 28);
}

}  // namespace

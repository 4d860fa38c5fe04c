// The command boundary: what escapes a command becomes one message, and the dispatcher runs
// every command inside it once a boundary is set.
#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/command_boundary.h"
#include "platform/errors.h"
#include "workspace/command_dispatch.h"

using namespace lathwick;

TEST(CommandBoundary, EveryKindOfExceptionBecomesTheProgramsMessage) {
  std::vector<std::string> told;
  const BoundaryReport report = [&told](const std::string& m) { told.push_back(m); };
  EXPECT_TRUE(runInsideBoundary([] {}, report));
  EXPECT_FALSE(runInsideBoundary([] { throw AppError(53, "File not found"); }, report));
  EXPECT_FALSE(runInsideBoundary([] { throw std::bad_alloc(); }, report));
  EXPECT_FALSE(runInsideBoundary([] { (void)std::string_view("X9").substr(5); }, report));
  EXPECT_FALSE(runInsideBoundary([] { throw 42; }, report));
  EXPECT_EQ(told, (std::vector<std::string>{"The error 53 File not found occurred.", "The error 7 Out of memory occurred.",
                                            "The error 51 Internal error occurred.",
                                            "The error 51 Internal error occurred."}));
}

TEST(CommandBoundary, TheDispatcherReportsAndGoesOnOnlyWithABoundary) {
  CommandDispatcher commands;
  int later = 0;
  commands.add("mnuOperate", [](int) { throw AppError(6, "Overflow"); });
  commands.add("mnuNew", [&later](int) { ++later; });
  EXPECT_THROW(commands.run("mnuOperate"), AppError);  // no boundary: the caller sees it

  std::vector<std::string> told;
  commands.setBoundary([&told](const std::string& m) { told.push_back(m); });
  EXPECT_TRUE(commands.run("mnuOperate"));
  EXPECT_TRUE(commands.run("mnuNew"));
  EXPECT_EQ(told, std::vector<std::string>{"The error 6 Overflow occurred."});
  EXPECT_EQ(later, 1);
}

// A lock names the process that holds it so exactly that a reused process id (after a crash, or
// in the next boot after a power cut) is not taken for the editor that wrote it.
#include <gtest/gtest.h>

#include "support/ended_process.h"

using namespace lathwick;
using lathwick::test::endedProcessId;

TEST(ProcessIdentity, ThisProcessRunsAnEndedOneDoesNot) {
  const ProcessIdentity self = currentProcessIdentity();
  EXPECT_EQ(self.pid, static_cast<long>(::getpid()));
  EXPECT_TRUE(isProcessRunning(self));
  ProcessIdentity ended = self;
  ended.pid = endedProcessId();
  EXPECT_FALSE(isProcessRunning(ended));
  EXPECT_FALSE(processIdentityOf(ended.pid));
}

TEST(ProcessIdentity, AReusedIdIsAnotherProcess) {
  const ProcessIdentity self = currentProcessIdentity();
  if (self.startTicks == 0 || self.bootId.empty()) GTEST_SKIP() << "the system tells no start time or boot";
  ProcessIdentity earlier = self;
  earlier.startTicks = self.startTicks - 1;  // same id, started at another time
  EXPECT_FALSE(isProcessRunning(earlier));
  ProcessIdentity otherBoot = self;
  otherBoot.bootId = "00000000-0000-0000-0000-000000000000";
  EXPECT_FALSE(isProcessRunning(otherBoot));
  // What the lock does not tell is not compared.
  ProcessIdentity vague = self;
  vague.bootId.clear();
  vague.startTicks = 0;
  EXPECT_TRUE(isProcessRunning(vague));
}

TEST(ProcessIdentity, LockLineReadsBack) {
  const ProcessIdentity self = currentProcessIdentity();
  EXPECT_EQ(decodeProcessIdentity(encodeProcessIdentity(self)), self);
  const ProcessIdentity bare{42, "", 0};
  EXPECT_EQ(encodeProcessIdentity(bare), "42 - 0");
  EXPECT_EQ(decodeProcessIdentity("42 - 0\n"), bare);
  for (const char* bad : {"", "42", "0 - 0", "-5 b 1", "x b 1", "42 b 1x"})
    EXPECT_FALSE(decodeProcessIdentity(bad)) << bad;
}

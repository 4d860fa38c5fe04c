#pragma once
// A process of this test's own that has ended and been reaped: the stand-in for an editor that
// crashed.
#include <sys/wait.h>
#include <unistd.h>

#include "platform/process_identity.h"

namespace lathwick::test {

inline long endedProcessId() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  int status = 0;
  ::waitpid(child, &status, 0);
  return static_cast<long>(child);
}

// This process's identity under the id of one that has ended.
inline ProcessIdentity crashedEditor() {
  ProcessIdentity ended = currentProcessIdentity();
  ended.pid = endedProcessId();
  return ended;
}

}  // namespace lathwick::test

#pragma once
// Which process wrote a lock file, told so that a later look can say whether that very process
// still runs. A process id alone is not enough: after a crash and certainly after a power cut
// the id is soon reused, so the identity also holds the boot it ran in and when it started.
#include <optional>
#include <string>
#include <string_view>

namespace lathwick {

struct ProcessIdentity {
  long pid = 0;
  std::string bootId;                 // empty where the system does not tell one
  unsigned long long startTicks = 0;  // the start after boot in clock ticks; 0 where not told
  bool operator==(const ProcessIdentity&) const = default;
};

ProcessIdentity currentProcessIdentity();
// What the system says of process `pid` now; nothing when there is no such process.
std::optional<ProcessIdentity> processIdentityOf(long pid);
// True while the process that `identity` describes still runs: a process of that id, in the same
// boot, started at the same time. Parts the identity leaves empty are not compared.
bool isProcessRunning(const ProcessIdentity& identity);

// One line "pid boot-id start-ticks" ("-" for an empty boot id), and back; nothing for a line
// that does not hold a positive id.
std::string encodeProcessIdentity(const ProcessIdentity& identity);
std::optional<ProcessIdentity> decodeProcessIdentity(std::string_view text);

}  // namespace lathwick

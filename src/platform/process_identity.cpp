#include "platform/process_identity.h"

#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <charconv>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace lathwick {

namespace {
std::string firstLineOf(const std::string& path) {
  std::ifstream in(path);
  std::string line;
  std::getline(in, line);
  return line;
}

const std::string& bootId() {
  static const std::string id = firstLineOf("/proc/sys/kernel/random/boot_id");
  return id;
}

// Field 22 of /proc/PID/stat. The command name (field 2) sits in parentheses and may hold blanks
// and parentheses itself, so the fields are counted from the last ")".
std::optional<unsigned long long> startTicksOf(long pid) {
  std::ifstream in("/proc/" + std::to_string(pid) + "/stat");
  if (!in) return std::nullopt;
  std::string stat((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  const std::size_t close = stat.rfind(')');
  if (close == std::string::npos) return std::nullopt;
  std::istringstream fields(stat.substr(close + 1));
  std::string field;
  for (int n = 3; n <= 22 && fields >> field; ++n)
    if (n == 22) return std::strtoull(field.c_str(), nullptr, 10);
  return std::nullopt;
}

bool processExists(long pid) {
  if (pid <= 0) return false;
  // EPERM: the process is there but belongs to someone else.
  return ::kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
}
}  // namespace

ProcessIdentity currentProcessIdentity() {
  ProcessIdentity self;
  self.pid = static_cast<long>(::getpid());
  self.bootId = bootId();
  self.startTicks = startTicksOf(self.pid).value_or(0);
  return self;
}

std::optional<ProcessIdentity> processIdentityOf(long pid) {
  if (!processExists(pid)) return std::nullopt;
  ProcessIdentity found;
  found.pid = pid;
  found.bootId = bootId();
  found.startTicks = startTicksOf(pid).value_or(0);
  return found;
}

bool isProcessRunning(const ProcessIdentity& identity) {
  if (!identity.bootId.empty() && !bootId().empty() && identity.bootId != bootId()) return false;
  const auto now = processIdentityOf(identity.pid);
  if (!now) return false;
  return identity.startTicks == 0 || now->startTicks == 0 || identity.startTicks == now->startTicks;
}

std::string encodeProcessIdentity(const ProcessIdentity& identity) {
  return std::to_string(identity.pid) + " " + (identity.bootId.empty() ? "-" : identity.bootId) + " " +
         std::to_string(identity.startTicks);
}

std::optional<ProcessIdentity> decodeProcessIdentity(std::string_view text) {
  std::istringstream in{std::string(text)};
  std::string pid, boot, ticks;
  if (!(in >> pid >> boot >> ticks)) return std::nullopt;
  ProcessIdentity identity;
  const auto parsedPid = std::from_chars(pid.data(), pid.data() + pid.size(), identity.pid);
  const auto parsedTicks = std::from_chars(ticks.data(), ticks.data() + ticks.size(), identity.startTicks);
  if (parsedPid.ec != std::errc() || parsedPid.ptr != pid.data() + pid.size() || identity.pid <= 0) return std::nullopt;
  if (parsedTicks.ec != std::errc() || parsedTicks.ptr != ticks.data() + ticks.size()) return std::nullopt;
  identity.bootId = boot == "-" ? "" : boot;
  return identity;
}

}  // namespace lathwick

#pragma once
// The one way a command runs: menus, toolbar buttons and scripts all name a command by its menu
// name (and index, for numbered entries such as "mnuModal" 0 to 2). A name with no command
// registered is a feature that is not there yet: its menu entries are shown disabled.
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "platform/command_boundary.h"

namespace lathwick {

struct CommandId {
  std::string name;
  int index = -1;  // -1: the whole family / a single entry
  auto operator<=>(const CommandId&) const = default;
};

class CommandDispatcher {
 public:
  using Handler = std::function<void(int index)>;

  // Registers a handler for one entry, or with index -1 for every index of the name.
  void add(const std::string& name, Handler handler, int index = -1);
  bool has(const std::string& name, int index = -1) const;
  // Runs the command; false when none is registered. With a boundary set, an exception that
  // escapes the command goes to it as a message instead of on to the caller.
  bool run(const std::string& name, int index = -1) const;
  void setBoundary(BoundaryReport report) { boundary_ = std::move(report); }

 private:
  const Handler* find(const std::string& name, int index) const;
  std::map<CommandId, Handler> handlers_;
  BoundaryReport boundary_;
};

}  // namespace lathwick

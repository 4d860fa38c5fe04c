#include "workspace/command_dispatch.h"

namespace lathwick {

void CommandDispatcher::add(const std::string& name, Handler handler, int index) {
  handlers_[CommandId{name, index}] = std::move(handler);
}

const CommandDispatcher::Handler* CommandDispatcher::find(const std::string& name, int index) const {
  if (auto it = handlers_.find(CommandId{name, index}); it != handlers_.end()) return &it->second;
  if (index != -1)
    if (auto it = handlers_.find(CommandId{name, -1}); it != handlers_.end()) return &it->second;
  return nullptr;
}

bool CommandDispatcher::has(const std::string& name, int index) const { return find(name, index) != nullptr; }

bool CommandDispatcher::run(const std::string& name, int index) const {
  const Handler* handler = find(name, index);
  if (!handler) return false;
  if (boundary_)
    runInsideBoundary([&] { (*handler)(index); }, boundary_);
  else
    (*handler)(index);
  return true;
}

}  // namespace lathwick

// The macro engine compiles anything it is given without crashing, and every procedure of what
// compiles runs to its end, its error or the interrupt. Each run is stopped through the poll
// callback once it has had its time, as Esc stops it in the editor.
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include <chrono>

#include "extend/vbscript/engine.h"

namespace lathwick::fuzz {

namespace {
using Clock = std::chrono::steady_clock;
constexpr auto kRunTime = std::chrono::milliseconds(100);
constexpr size_t kMaxProcedures = 16;
}  // namespace

int macroEngine(const std::uint8_t* data, std::size_t size) {
  vbs::Engine engine;
  Clock::time_point deadline = Clock::now() + kRunTime;
  vbs::UiCallbacks ui;
  ui.msgBox = [](const std::string&, int, const std::string&) { return 1; };
  ui.inputBox = [](const std::string&, const std::string&, const std::string&) { return std::optional<std::string>(); };
  ui.poll = [&] {
    if (Clock::now() > deadline) engine.interrupt();
  };
  engine.setUi(ui);
  engine.setErrorHandler([](const vbs::ErrorRecord&) {});
  if (!engine.addCode(std::string_view(reinterpret_cast<const char*>(data), size), "fuzz.vbs")) return 0;
  const auto procedures = engine.procedures();
  for (size_t i = 0; i < procedures.size() && i < kMaxProcedures; ++i) {
    std::vector<vbs::Variant> args(static_cast<size_t>(procedures[i].paramCount));
    deadline = Clock::now() + kRunTime;
    engine.run(procedures[i].name, args);
  }
  return 0;
}

}  // namespace lathwick::fuzz

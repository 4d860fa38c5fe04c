#pragma once
// The macro engine as a host sees it: register objects, add code in pieces that share one
// namespace, list and run procedures, reset, interrupt. The engine does no input or output of
// its own: errors go to the host's error handler (and stay readable as lastError()), MsgBox and
// InputBox go to the host's UI callbacks.
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "extend/vbscript/errors.h"
#include "extend/vbscript/host.h"
#include "extend/vbscript/variant.h"

namespace lathwick::vbs {

class Runtime;

struct ProcedureInfo {
  std::string name;        // as declared
  bool isFunction = false;
  int paramCount = 0;
  std::string sourceName;  // the name given to addCode
  int line = 0;            // 1-based line of the declaration
};

class Engine {
 public:
  Engine();
  ~Engine();
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  void setUi(UiCallbacks ui);
  void setErrorHandler(std::function<void(const ErrorRecord&)> handler);

  // Makes `object` visible to scripts as `name`; with `globalMembers` its members are also
  // bare global names (after the script's own names and the built-in functions).
  void addObject(const std::string& name, ObjRef object, bool globalMembers = true);

  // Compiles `text` as a whole and runs its top-level statements. False when compilation or
  // the top-level code failed (see lastError()); a text that does not compile defines nothing.
  bool addCode(std::string_view text, const std::string& sourceName = {});

  // Top-level Subs and Functions of all code, in definition order (a redefinition keeps the
  // first position).
  std::vector<ProcedureInfo> procedures() const;

  // Runs a procedure by name (case-insensitive); a Function's value or Empty. nullopt on error
  // (35 for an unknown name, 450 for a wrong number of arguments, or the script's own error).
  // Arguments are passed by reference: a procedure may change them.
  std::optional<Variant> run(std::string_view name, std::vector<Variant>& args);
  std::optional<Variant> run(std::string_view name) {
    std::vector<Variant> none;
    return run(name, none);
  }

  // Drops all code, variables, classes, objects and the error state.
  void reset();

  // Asks a running script to stop at its next loop turn or call; safe from another thread or
  // from a UI callback. The script ends with the interrupt error (not catchable by On Error).
  void interrupt();
  void setInterruptError(int number, std::string description);
  void setMaxCallDepth(int depth);

  const std::optional<ErrorRecord>& lastError() const { return lastError_; }
  void clearError() { lastError_.reset(); }

 private:
  void report(ErrorRecord record);
  void reportRuntime(const struct ScriptError& e);

  std::unique_ptr<Runtime> rt_;
  std::function<void(const ErrorRecord&)> onError_;
  std::optional<ErrorRecord> lastError_;
};

}  // namespace lathwick::vbs

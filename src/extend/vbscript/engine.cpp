#include "extend/vbscript/engine.h"

#include <new>

#include "extend/vbscript/parser.h"
#include "extend/vbscript/runtime.h"
#include "platform/errors.h"

namespace lathwick::vbs {

namespace {
// Runs `body`, turning every way it can fail into a ScriptError.
template <class F>
void guarded(F&& body) {
  try {
    body();
  } catch (ScriptError&) {
    throw;
  } catch (const AppError& e) {
    throw ScriptError(e.number(), e.description(), kRuntimeSource);
  } catch (const std::bad_alloc&) {
    throw ScriptError(rt::kOutOfMemory, errorText(rt::kOutOfMemory), kRuntimeSource);
  } catch (const std::exception& e) {
    throw ScriptError(rt::kInternalError, errorText(rt::kInternalError), kRuntimeSource);
  }
}
}  // namespace

Engine::Engine() : rt_(std::make_unique<Runtime>()) {}
Engine::~Engine() = default;

void Engine::setUi(UiCallbacks ui) { rt_->ui = std::move(ui); }

void Engine::setErrorHandler(std::function<void(const ErrorRecord&)> handler) { onError_ = std::move(handler); }

void Engine::addObject(const std::string& name, ObjRef object, bool globalMembers) {
  GlobalEntry* e = rt_->entry(name);
  if (e->kind == GlobalEntry::Undefined || e->kind == GlobalEntry::NamedObject) {
    e->kind = GlobalEntry::NamedObject;
    e->value = Variant::object(object);
  }
  if (globalMembers) {
    rt_->globalMemberObjects.push_back(std::move(object));
    ++rt_->hostGeneration;
  }
}

void Engine::report(ErrorRecord record) {
  lastError_ = record;
  if (onError_) onError_(record);
}

void Engine::reportRuntime(const ScriptError& e) {
  ErrorRecord r;
  r.number = e.number;
  r.description = e.description;
  r.source = e.source;
  r.name = e.name;
  if (e.located) {
    r.line = e.line + 1;
    r.column = e.column + 1;
    if (const auto* u = static_cast<const SourceUnit*>(e.unit)) {
      r.sourceName = u->sourceName;
      r.lineText = u->lineText(e.line);
    }
  }
  rt_->setErr(e);
  report(std::move(r));
}

bool Engine::addCode(std::string_view text, const std::string& sourceName) {
  rt_->interruptFlag = false;
  auto unit = std::make_unique<SourceUnit>();
  unit->sourceName = sourceName;
  unit->text = std::string(text);
  unit->lineStarts = lineStartsOf(unit->text);
  try {
    compileUnit(*rt_, *unit);
  } catch (const CompileError& ce) {
    ErrorRecord r;
    r.number = ce.number;
    r.description = errorText(ce.number);
    r.source = kCompileSource;
    r.sourceName = sourceName;
    r.line = ce.line + 1;
    r.column = ce.col + 1;
    r.lineText = unit->lineText(ce.line);
    report(std::move(r));
    return false;
  } catch (const std::bad_alloc&) {
    ErrorRecord r;
    r.number = ce::kOutOfMemory;
    r.description = errorText(ce::kOutOfMemory);
    r.source = kCompileSource;
    r.sourceName = sourceName;
    report(std::move(r));
    return false;
  }
  SourceUnit& u = *unit;
  rt_->units.push_back(std::move(unit));
  rt_->declareUnit(u);
  Frame top(*rt_);
  top.unit = &u;
  try {
    guarded([&] { execBlock(top, u.topLevel); });
  } catch (ScriptError& e) {
    Runtime::locate(e, top);
    reportRuntime(e);
    return false;
  }
  return true;
}

std::vector<ProcedureInfo> Engine::procedures() const {
  std::vector<ProcedureInfo> out;
  for (const auto& p : rt_->procedureOrder) {
    ProcedureInfo i;
    i.name = p->name;
    i.isFunction = p->kind == ProcKind::Function;
    i.paramCount = static_cast<int>(p->params.size());
    i.sourceName = p->unit ? p->unit->sourceName : std::string();
    i.line = p->line + 1;
    out.push_back(std::move(i));
  }
  return out;
}

std::optional<Variant> Engine::run(std::string_view name, std::vector<Variant>& args) {
  GlobalEntry* e = rt_->findEntry(name);
  if (!e || e->kind != GlobalEntry::Procedure) {
    ScriptError err(rt::kSubOrFunctionNotDefined, errorText(rt::kSubOrFunctionNotDefined), kRuntimeSource, std::string(name));
    reportRuntime(err);
    return std::nullopt;
  }
  rt_->interruptFlag = false;
  ArgRefs refs;
  for (auto& a : args) refs.push_back(&a);
  try {
    Variant r;
    guarded([&] { r = rt_->callProcedure(*e->proc, refs, {}); });
    return r;
  } catch (ScriptError& err) {
    reportRuntime(err);
    return std::nullopt;
  }
}

void Engine::reset() {
  rt_->clearAll();
  lastError_.reset();
}

void Engine::interrupt() { rt_->interruptFlag = true; }

void Engine::setInterruptError(int number, std::string description) {
  rt_->interruptNumber = number;
  rt_->interruptText = std::move(description);
}

void Engine::setMaxCallDepth(int depth) { rt_->maxDepth = depth; }

}  // namespace lathwick::vbs

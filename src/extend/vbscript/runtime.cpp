#include "extend/vbscript/runtime.h"

#include <new>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/err_object.h"
#include "extend/vbscript/regexp.h"
#include "platform/bytes.h"
#include "platform/errors.h"

namespace lathwick::vbs {

namespace {
// C++ stack the interpreter allows itself before reporting "Out of stack space".
constexpr std::ptrdiff_t kStackBudget = 4 * 1024 * 1024;
}  // namespace

std::string lowerName(std::string_view s) { return asciiLower(s); }

int ClassDef::find(std::string_view name) const {
  auto it = byName.find(lowerName(name));
  return it == byName.end() ? -1 : it->second;
}

std::string SourceUnit::lineText(int line0) const {
  if (line0 < 0 || static_cast<size_t>(line0) >= lineStarts.size()) return {};
  const size_t b = lineStarts[static_cast<size_t>(line0)];
  size_t e = b;
  while (e < text.size() && text[e] != '\r' && text[e] != '\n') ++e;
  return text.substr(b, e - b);
}

Runtime::Runtime() { errObject = makeErrObject(); }

Runtime::~Runtime() {
  clearAll();
  *alive = false;
}

void Runtime::clearAll() {
  shuttingDown = true;
  // Values first (they may hold objects whose classes live in the units), then the code.
  for (auto& e : entries_) e.value = Variant();
  byName_.clear();
  retiredEntries_.push_back(std::move(entries_));
  entries_ = {};
  procedureOrder.clear();
  globalMemberObjects.clear();
  for (auto& u : units) retiredUnits_.push_back(std::move(u));
  units.clear();
  ++hostGeneration;
  err = ErrState{};
  interruptFlag = false;
  shuttingDown = false;
}

GlobalEntry* Runtime::findEntry(std::string_view name) const {
  auto it = byName_.find(lowerName(name));
  return it == byName_.end() ? nullptr : it->second;
}

GlobalEntry* Runtime::entry(std::string_view name) {
  std::string lower = lowerName(name);
  auto it = byName_.find(lower);
  if (it != byName_.end()) return it->second;
  entries_.emplace_back();
  GlobalEntry* e = &entries_.back();
  e->name = std::string(name);
  e->builtin = findBuiltin(lower);
  byName_.emplace(std::move(lower), e);
  return e;
}

bool Runtime::hostGlobal(GlobalEntry* e, Object*& obj, int& member) {
  if (e->hostGeneration != hostGeneration) {
    e->hostGeneration = hostGeneration;
    e->hostObject = nullptr;
    e->hostMember = -1;
    for (const auto& o : globalMemberObjects) {
      const int id = o->findMember(e->name);
      if (id >= 0) {
        e->hostObject = o.get();
        e->hostMember = id;
        break;
      }
    }
  }
  obj = e->hostObject;
  member = e->hostMember;
  return obj != nullptr;
}

void Runtime::throwInterrupt() {
  // The flag stays set until the host starts the next run, so that code running while the
  // stack unwinds (terminate handlers) stops too.
  ScriptError e(interruptNumber, interruptText, kRuntimeSource);
  e.fatal = true;
  throw e;
}

void Runtime::enterCall() {
  char probe = 0;
  if (depth_ == 0 || !stackBase_) stackBase_ = &probe;
  const std::ptrdiff_t used = stackBase_ - &probe;
  if (depth_ >= maxDepth || used > kStackBudget || used < -kStackBudget) raise(rt::kOutOfStackSpace);
  ++depth_;
}

Variant Runtime::callProcedure(const Procedure& p, const ArgRefs& args, ObjRef me) {
  if (args.size() != p.params.size()) raise(rt::kWrongNumberOfArguments);
  const CallDepth depth(*this);
  checkInterrupt();
  std::vector<Variant> storage(static_cast<size_t>(p.numSlots));
  std::vector<Variant*> slots(static_cast<size_t>(p.numSlots));
  for (size_t i = 0; i < slots.size(); ++i) slots[i] = &storage[i];
  for (size_t i = 0; i < p.params.size(); ++i) {
    // An omitted argument is Empty in the procedure's own slot, ByRef or not.
    if (p.params[i].byVal) storage[i + 1] = *args[i];
    else if (!isOmitted(args[i])) slots[i + 1] = args[i];
  }
  for (const auto& [slot, bounds] : p.fixedArrays) {
    if (bounds.empty()) storage[static_cast<size_t>(slot)] = Variant::array(std::make_shared<ArrayData>());
    else storage[static_cast<size_t>(slot)] = Variant::array(ArrayData::make(bounds, true));
  }
  for (const auto& [slot, value] : p.constants) storage[static_cast<size_t>(slot)] = value;
  Frame f(*this);
  f.proc = &p;
  f.unit = p.unit;
  f.slots = slots.data();
  f.me = std::move(me);
  try {
    execBlock(f, p.body);
  } catch (ScriptError& e) {
    locate(e, f);
    throw;
  }
  return std::move(storage[0]);
}

Variant Runtime::callBuiltin(const Builtin& b, const ArgRefs& args) {
  ArgList list(args);  // omitted arguments at the end count as not given
  const int n = static_cast<int>(list.size());
  if (n < b.minArgs || n > b.maxArgs) raise(rt::kWrongNumberOfArguments, b.name);
  for (int i = 0; i < b.minArgs; ++i)
    if (list.omitted(static_cast<size_t>(i))) raise(rt::kWrongNumberOfArguments, b.name);
  return b.fn(*this, list);
}

Variant Runtime::instantiate(const ClassPtr& cls) {
  ObjRef o = makeObject<ScriptInstance>(*this, cls);
  if (cls->initialize) callProcedure(*cls->initialize, {}, o);
  return Variant::object(std::move(o));
}

void Runtime::setErr(const ScriptError& e) {
  err.number = e.number;
  err.description = e.description;
  err.source = e.source;
  err.helpFile = e.helpFile;
  err.helpContext = e.helpContext;
}

void Runtime::clearErr() { err = ErrState{}; }

void Runtime::locate(ScriptError& e, const Frame& f) {
  if (e.located || !f.current) return;
  e.line = f.current->line;
  e.column = f.current->col;
  e.unit = f.unit;
  e.located = true;
}

// ---- script class instances ------------------------------------------------------------------

ScriptInstance::ScriptInstance(Runtime& rt, ClassPtr cls) : rt_(&rt), alive_(rt.alive), cls_(std::move(cls)) {
  fields.resize(static_cast<size_t>(cls_->numFields));
  for (const auto& m : cls_->members) {
    if (m.field < 0) continue;
    if (!m.fixedBounds.empty())
      fields[static_cast<size_t>(m.field)] = Variant::array(ArrayData::make(m.fixedBounds, true));
    else if (m.dynamicArray)
      fields[static_cast<size_t>(m.field)] = Variant::array(std::make_shared<ArrayData>());
  }
}

void ScriptInstance::lastReleased() {
  if (cls_->terminate && *alive_ && !rt_->shuttingDown) {
    refs_ = 1;
    try {
      ObjRef self(this);
      rt_->callProcedure(*cls_->terminate, {}, self);
    } catch (...) {
      // An error in a terminate handler has nowhere to go.
    }
    if (--refs_ > 0) return;  // the handler stored a new reference to the object
  }
  delete this;
}

Variant indexArray(Runtime& rt, const ArrayData& a, const ArgRefs& idx);
Variant& elementFor(Runtime& rt, ArrayData& a, const ArgRefs& idx);
Variant callValue(Runtime& rt, const Variant& v, const ArgRefs& args, bool statement, const std::string& name);

Variant ScriptInstance::invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool inside) {
  const ClassMember& m = cls_->members[static_cast<size_t>(member)];
  if (!m.isPublic && !inside) raise(rt::kObjectDoesntSupportThisPropertyOrMethod, m.name);
  ObjRef self(this);
  if (m.field >= 0) {
    Variant& fv = fields[static_cast<size_t>(m.field)];
    switch (kind) {
      case InvokeKind::Get:
      case InvokeKind::Call:
        if (args.empty()) return fv;
        return callValue(rt, fv, args, kind == InvokeKind::Call, m.name);
      case InvokeKind::Let:
      case InvokeKind::Set: {
        Variant v = *args.back();
        if (kind == InvokeKind::Set && !v.isObject()) raise(rt::kObjectRequired);
        if (kind == InvokeKind::Let && v.isObject()) v = valueOf(rt, v);
        if (args.size() == 1) {
          fv = std::move(v);
        } else {
          if (!fv.isArray()) raise(rt::kTypeMismatch, m.name);
          ArgRefs idx(args.begin(), args.end() - 1);
          elementFor(rt, fv.arrayForWrite(), idx) = std::move(v);
        }
        return {};
      }
    }
  }
  switch (kind) {
    case InvokeKind::Get:
    case InvokeKind::Call: {
      const ProcPtr& p = m.method ? m.method : m.get;
      if (!p) raise(rt::kObjectDoesntSupportThisPropertyOrMethod, m.name);
      // `o.Items(1)` on a member without parameters indexes what it returns.
      if (p->params.empty() && !args.empty())
        return callValue(rt, rt.callProcedure(*p, {}, self), args, kind == InvokeKind::Call, m.name);
      return rt.callProcedure(*p, args, self);
    }
    case InvokeKind::Let:
      if (m.let) return rt.callProcedure(*m.let, args, self);
      if (m.method || m.get) raise(rt::kIllegalAssignment, m.name);
      raise(rt::kObjectDoesntSupportThisPropertyOrMethod, m.name);
    case InvokeKind::Set:
      if (m.set) return rt.callProcedure(*m.set, args, self);
      raise(rt::kObjectDoesntSupportThisPropertyOrMethod, m.name);
  }
  return {};
}

// ---- host objects ------------------------------------------------------------------------------

Variant HostObject::invoke(Runtime&, int member, InvokeKind kind, const ArgRefs& args, bool) {
  std::vector<Variant> values;
  values.reserve(args.size());
  for (const Variant* a : args) values.push_back(*a);
  Variant r;
  try {
    r = hostInvoke(member, kind, values);
  } catch (const AppError& e) {
    throw ScriptError(e.number(), e.description(), typeName());
  } catch (const std::bad_alloc&) {
    raise(rt::kOutOfMemory);
  }
  // Only what the host changed goes back (the caller's variable may have changed meanwhile).
  auto same = [](const Variant& a, const Variant& b) {
    if (a.type() != b.type()) return false;
    switch (a.type()) {
      case VT::String: return a.strValue() == b.strValue();
      case VT::Object: return a.objValue() == b.objValue();
      case VT::Array: return a.arrValue() == b.arrValue();
      default: return a.isIntegral() ? a.intValue() == b.intValue() : a.dblValue() == b.dblValue();
    }
  };
  for (size_t i = 0; i < args.size() && i < values.size(); ++i)
    if (!isOmitted(args[i]) && !same(values[i], *args[i])) *args[i] = std::move(values[i]);
  return r;
}

}  // namespace lathwick::vbs

namespace lathwick::vbs {
Variant Runtime::newBuiltinObject(std::string_view name) {
  if (equalsIgnoreCase(name, "RegExp")) return Variant::object(makeRegExp());
  return {};
}
}  // namespace lathwick::vbs

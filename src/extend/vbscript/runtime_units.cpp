// Bringing compiled code units to life: declarations first, then (for ExecuteGlobal and Eval)
// the code itself.
#include "extend/vbscript/parser.h"
#include "extend/vbscript/runtime.h"

namespace lathwick::vbs {

std::vector<size_t> lineStartsOf(const std::string& text) {
  std::vector<size_t> starts{0};
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ++i;
    if (text[i] == '\r' || text[i] == '\n') starts.push_back(i + 1);
  }
  return starts;
}

void Runtime::declareUnit(SourceUnit& u) {
  for (auto& [e, v] : u.constants) {
    e->kind = GlobalEntry::Const;
    e->value = v;
  }
  for (auto& [e, bounds] : u.variables) {
    if (e->kind != GlobalEntry::Variable) e->value = Variant();
    e->kind = GlobalEntry::Variable;
    if (!bounds.empty()) e->value = Variant::array(ArrayData::make(bounds, true));
  }
  for (GlobalEntry* e : u.dynamicArrays) {
    e->kind = GlobalEntry::Variable;
    e->value = Variant::array(std::make_shared<ArrayData>());
  }
  for (const ClassPtr& c : u.classes) {
    GlobalEntry* e = entry(c->name);
    e->kind = GlobalEntry::Class;
    e->cls = c;
  }
  for (const ProcPtr& p : u.procedures) {
    GlobalEntry* e = entry(p->name);
    e->kind = GlobalEntry::Procedure;
    e->proc = p;
    e->value = Variant();
    bool replaced = false;
    for (auto& q : procedureOrder) {
      if (findEntry(q->name) == e) {
        q = p;
        replaced = true;
        break;
      }
    }
    if (!replaced) procedureOrder.push_back(p);
  }
}

namespace {
std::unique_ptr<SourceUnit> newUnit(const std::string& text) {
  auto u = std::make_unique<SourceUnit>();
  u->text = text;
  u->lineStarts = lineStartsOf(u->text);
  return u;
}

[[noreturn]] void raiseCompile(const CompileError& ce) {
  throw ScriptError(ce.number, errorText(ce.number), kCompileSource);
}
}  // namespace

void Runtime::executeGlobal(const std::string& text) {
  auto unit = newUnit(text);
  try {
    compileUnit(*this, *unit);
  } catch (const CompileError& ce) {
    raiseCompile(ce);
  }
  SourceUnit& u = *unit;
  units.push_back(std::move(unit));
  declareUnit(u);
  Frame top(*this);
  top.unit = &u;
  const CallDepth depth(*this);
  try {
    execBlock(top, u.topLevel);
  } catch (ScriptError& e) {
    locate(e, top);
    throw;
  }
}

Variant Runtime::evaluate(const std::string& text) {
  auto unit = newUnit(text);
  ExprPtr e;
  try {
    e = compileExpression(*this, *unit);
  } catch (const CompileError& ce) {
    raiseCompile(ce);
  }
  SourceUnit& u = *unit;
  units.push_back(std::move(unit));
  Frame top(*this);
  top.unit = &u;
  const CallDepth depth(*this);
  return e->eval(top);
}

}  // namespace lathwick::vbs

// Execution of statements, with On Error Resume Next applied statement by statement.
#include <new>
#include <optional>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/runtime.h"
#include "platform/errors.h"

namespace lathwick::vbs {

namespace {
// Records a caught error in Err, or rethrows what a handler may not swallow.
void absorb(Frame& f, ScriptError& e) {
  if (e.fatal) throw;
  f.rt.setErr(e);
}

// A condition's truth, or nothing when it failed under Resume Next (the error is in Err).
std::optional<bool> tryCondition(Frame& f, const Expr& e) {
  if (!f.resumeNext) return truthOf(f.rt, e.eval(f));
  try {
    return truthOf(f.rt, e.eval(f));
  } catch (ScriptError& err) {
    absorb(f, err);
    return std::nullopt;
  }
}

// Condition of If/ElseIf/While: under Resume Next an error counts as true (the block runs).
bool condition(Frame& f, const Expr& e) { return tryCondition(f, e).value_or(true); }
}  // namespace

Flow execBlock(Frame& f, const Block& block) {
  for (const auto& s : block) {
    f.current = s.get();
    if (!f.resumeNext) {
      const Flow r = s->exec(f);
      if (r != Flow::Normal) return r;
      continue;
    }
    try {
      const Flow r = s->exec(f);
      if (r != Flow::Normal) return r;
    } catch (ScriptError& e) {
      absorb(f, e);
    } catch (const AppError& e) {
      f.rt.setErr(ScriptError(e.number(), e.description(), kRuntimeSource));
    } catch (const std::bad_alloc&) {
      f.rt.setErr(ScriptError(rt::kOutOfMemory, errorText(rt::kOutOfMemory), kRuntimeSource));
    }
  }
  return Flow::Normal;
}

Flow AssignStmt::exec(Frame& f) const {
  target->assign(f, value->eval(f), isSet);
  return Flow::Normal;
}

namespace {
// Built-in functions that run script code or hand control to the host.
bool reentrant(const Builtin* b) {
  static const char* const kNames[] = {"Execute", "ExecuteGlobal", "Eval", "MsgBox", "InputBox"};
  for (const char* n : kNames)
    if (std::string_view(b->name) == n) return true;
  return false;
}

bool isBuiltin(const NameExpr& n) {
  return (n.kind == BindKind::Global || n.kind == BindKind::Implicit) && n.entry->kind == GlobalEntry::Undefined &&
         n.entry->builtin && !reentrant(n.entry->builtin);
}
}  // namespace

bool AppendStmt::safe(Frame& f) const {
  if (!simpleShape) return false;
  for (const NameExpr* n : names)
    if (!n->readable(f) && !isBuiltin(*n)) return false;
  for (const NameExpr* n : callees) {
    if (Variant* v = n->readable(f)) {
      if (!v->isArray()) return false;  // indexing an array is fine; a default member call is not
    } else if (!isBuiltin(*n)) {
      return false;
    }
  }
  return true;
}

Flow AppendStmt::exec(Frame& f) const {
  Variant* p = target->writable(f);
  if (!p || !p->isString() || !safe(f)) {
    target->assign(f, value->eval(f), false);
    return Flow::Normal;
  }
  if (pieces.size() == 1) {
    Variant tail = pieces[0]->eval(f);
    if (tail.isObject()) tail = valueOf(f.rt, tail);
    if (tail.isArray()) raise(rt::kTypeMismatch);
    p = target->writable(f);  // the piece may have run code that changed the variable
    if (!p || !p->isString()) {
      target->assign(f, concat(f.rt, target->eval(f), tail), false);
    } else {
      const std::string hold = tail.isString() || tail.isNull() ? std::string() : plainText(tail);
      const std::string& text = tail.isString() ? tail.strValue() : hold;
      f.rt.noteStringGrowth(p->strValue().size() + text.size(), text.size());
      p = target->writable(f);  // the host's poll may have run code
      if (p && p->isString()) p->strRef() += text;
      else target->assign(f, concat(f.rt, target->eval(f), Variant::str(text)), false);
    }
    return Flow::Normal;
  }
  std::string text;
  for (const Expr* e : pieces) {
    Variant v = e->eval(f);
    if (v.isObject()) v = valueOf(f.rt, v);
    if (v.isArray()) raise(rt::kTypeMismatch);
    if (v.isString()) text += v.strValue();
    else if (!v.isNull()) text += plainText(v);
  }
  p = target->writable(f);
  if (p && p->isString()) {
    f.rt.noteStringGrowth(p->strValue().size() + text.size(), text.size());
    p = target->writable(f);
  }
  if (p && p->isString()) p->strRef() += text;
  else target->assign(f, concat(f.rt, target->eval(f), Variant::str(std::move(text))), false);
  return Flow::Normal;
}

Flow CallStmt::exec(Frame& f) const {
  if (auto* c = dynamic_cast<const CallExpr*>(call.get())) {
    c->invoke(f, true);
  } else {
    ArgPack none;
    call->call(f, none, true);
  }
  return Flow::Normal;
}

Flow IfStmt::exec(Frame& f) const {
  for (size_t i = 0; i < branches.size(); ++i) {
    if (i > 0) f.current = elseIfAt[i - 1].get();  // an error here is reported at its ElseIf
    if (condition(f, *branches[i].first)) return execBlock(f, branches[i].second);
  }
  return execBlock(f, elseBlock);
}

Flow SelectStmt::exec(Frame& f) const {
  Variant sel;
  try {
    sel = selector->eval(f);
    if (sel.isObject()) sel = valueOf(f.rt, sel);
  } catch (ScriptError& e) {
    if (!f.resumeNext) throw;
    absorb(f, e);  // an error in the selector skips the whole Select
    return Flow::Normal;
  }
  const bool selLit = selector->isNumericLiteral();
  for (const auto& c : cases) {
    if (c.values.empty()) return execBlock(f, c.body);  // Case Else
    for (const auto& e : c.values) {
      bool match;
      try {
        const Variant v = e->eval(f);
        try {
          match = compare(f.rt, sel, v, selLit, e->isNumericLiteral()) == 0;
        } catch (ScriptError& ce) {
          if (ce.number != rt::kTypeMismatch) throw;
          match = false;
        }
      } catch (ScriptError& err) {
        if (!f.resumeNext) throw;
        absorb(f, err);
        match = true;  // an error in a Case expression selects that case
      }
      if (match) return execBlock(f, c.body);
    }
  }
  return Flow::Normal;
}

namespace {
Variant loopNumber(Runtime& rt, const Variant& v) {
  if (v.isNull()) raise(rt::kInvalidUseOfNull);
  return toNumeric(rt, v);
}

// counter + step with the language's typing; the common Integer/Long case directly.
void increment(Runtime& rt, Variant& counter, const Variant& step) {
  if ((counter.type() == VT::Integer || counter.type() == VT::Long) &&
      (step.type() == VT::Integer || step.type() == VT::Long)) {
    const long long n = static_cast<long long>(counter.intValue()) + step.intValue();
    if (counter.type() == VT::Integer && step.type() == VT::Integer && n >= -32768 && n <= 32767) {
      counter = Variant::integer(static_cast<std::int32_t>(n));
      return;
    }
    if (n >= INT32_MIN && n <= INT32_MAX) {
      counter = Variant::longv(static_cast<std::int32_t>(n));
      return;
    }
  }
  counter = arith(rt, BinOp::Add, counter, step);
}
}  // namespace

Flow ForStmt::exec(Frame& f) const {
  Runtime& rt = f.rt;
  Variant start, end, stepValue;
  try {
    start = loopNumber(rt, from->eval(f));
    end = loopNumber(rt, to->eval(f));
    stepValue = step ? loopNumber(rt, step->eval(f)) : Variant::integer(1);
  } catch (ScriptError& e) {
    if (!f.resumeNext) throw;
    // Resumed: the body runs once with the counter untouched, then Next fails with 92,
    // which is resumed past too.
    absorb(f, e);
    const Flow r = execBlock(f, body);
    if (r != Flow::Normal && r != Flow::ExitFor) return r;
    f.rt.setErr(ScriptError(rt::kForLoopNotInitialized, errorText(rt::kForLoopNotInitialized), kRuntimeSource));
    return Flow::Normal;
  }
  const double last = end.number();
  const bool up = stepValue.number() >= 0;
  Variant* counter = var->writable(f);
  if (!counter) raise(rt::kIllegalAssignment, var->name);
  // The counter takes the wider type of start and step, as start + step would.
  *counter = start;
  while (true) {
    counter = var->writable(f);
    const double c = counter->isNumeric() ? counter->number() : toDouble(rt, *counter);
    if (up ? c > last : c < last) break;
    const Flow r = execBlock(f, body);
    if (r == Flow::ExitFor) break;
    if (r != Flow::Normal) return r;
    f.current = this;
    rt.checkInterrupt();
    counter = var->writable(f);
    increment(rt, *counter, stepValue);
  }
  return Flow::Normal;
}

Flow ForEachStmt::exec(Frame& f) const {
  Runtime& rt = f.rt;
  const Variant g = group->eval(f);
  std::vector<Variant> items;
  const std::vector<Variant>* list = &items;
  std::shared_ptr<ArrayData> hold;
  bool collection = false;
  if (g.isArray()) {
    hold = g.arrValue();
    list = &hold->items;
  } else if (g.isObject() && g.objValue()) {
    if (!g.objValue()->enumerate(rt, items)) raise(rt::kObjectNotACollection);
    collection = true;
  } else {
    raise(g.isObject() ? rt::kObjectRequired : rt::kObjectNotACollection);
  }
  for (size_t i = 0; i < list->size(); ++i) {
    Variant* v = var->writable(f);
    if (!v) raise(rt::kIllegalAssignment, var->name);
    *v = (*list)[i];
    const Flow r = execBlock(f, body);
    if (r == Flow::ExitFor) return Flow::Normal;
    if (r != Flow::Normal) return r;
    f.current = this;
    rt.checkInterrupt();
  }
  if (collection) {
    if (Variant* v = var->writable(f)) *v = Variant();
  }
  return Flow::Normal;
}

Flow DoStmt::exec(Frame& f) const {
  Runtime& rt = f.rt;
  while (true) {
    if (cond && !post) {
      // A failed test enters the block: the next statement is the block's first.
      const std::optional<bool> c = tryCondition(f, *cond);
      if (c && (until ? *c : !*c)) break;
    }
    const Flow r = execBlock(f, body);
    if (r == Flow::ExitDo && !isWhileWend) break;
    if (r != Flow::Normal) return r;
    f.current = this;
    rt.checkInterrupt();
    if (cond && post) {
      // A failed test leaves the loop: the next statement is the one after Loop.
      const std::optional<bool> c = tryCondition(f, *cond);
      if (!c || (until ? *c : !*c)) break;
    }
  }
  return Flow::Normal;
}

Flow WithStmt::exec(Frame& f) const {
  Variant o = object->eval(f);
  if (!o.isObject()) raise(rt::kObjectRequired);
  f.withStack.push_back(std::move(o));
  struct Pop {
    Frame& f;
    ~Pop() { f.withStack.pop_back(); }
  } pop{f};
  return execBlock(f, body);
}

Flow ExitStmt::exec(Frame& f) const {
  if (what == Flow::ExitProc && f.resumeNext) f.rt.clearErr();
  return what;
}

Flow OnErrorStmt::exec(Frame& f) const {
  f.resumeNext = resumeNext;
  f.rt.clearErr();
  return Flow::Normal;
}

Flow ReDimStmt::exec(Frame& f) const {
  Runtime& rt = f.rt;
  for (const auto& item : items) {
    std::vector<std::int32_t> bounds;
    for (const auto& b : item.bounds) {
      const Variant v = b->eval(f);
      if (v.isNull()) raise(rt::kInvalidUseOfNull);
      const std::int32_t n = toLong(rt, v);
      if (n < -1) raise(rt::kSubscriptOutOfRange);
      bounds.push_back(n);
    }
    GlobalEntry* e = item.var->entry;
    if (item.var->kind == BindKind::Global && e->kind == GlobalEntry::Undefined) {
      Object* o;
      int m;
      if (!f.rt.hostGlobal(e, o, m)) e->kind = GlobalEntry::Variable;  // ReDim declares, even under Option Explicit
    }
    Variant* p = item.var->writable(f);
    if (!p) raise(rt::kIllegalAssignment, item.var->name);
    if (p->isArray()) {
      const ArrayData& old = *p->arrValue();
      if (old.fixed || old.locks > 0) raise(rt::kArrayFixedOrLocked);
      if (preserve && old.allocated()) {
        if (old.upper.size() != bounds.size()) raise(rt::kSubscriptOutOfRange);
        for (size_t d = 0; d + 1 < bounds.size(); ++d)
          if (old.upper[d] != bounds[d]) raise(rt::kSubscriptOutOfRange);
        ArrayData& a = p->arrayForWrite();
        a.items.resize(ArrayData::elementCount(bounds));
        a.upper = bounds;
        continue;
      }
    }
    *p = Variant::array(ArrayData::make(bounds, false));
  }
  return Flow::Normal;
}

Flow EraseStmt::exec(Frame& f) const {
  for (const auto& v : vars) {
    Variant* p = v->writable(f);
    if (!p || !p->isArray()) raise(rt::kTypeMismatch, v->name);
    if (p->arrValue()->locks > 0) raise(rt::kArrayFixedOrLocked);
    ArrayData& a = p->arrayForWrite();
    if (a.fixed) {
      for (auto& item : a.items) item = Variant();
    } else {
      a.items.clear();
      a.upper.clear();
    }
  }
  return Flow::Normal;
}

}  // namespace lathwick::vbs

// Evaluation of expressions: names by their binding, calls, members, operators.
#include <cmath>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/runtime.h"

namespace lathwick::vbs {

ArgPack::~ArgPack() {
  for (auto& a : locked) --a->locks;
}

void evalArgs(Frame& f, const ExprList& args, ArgPack& pack) {
  pack.temps.reserve(args.size());
  pack.refs.reserve(args.size());
  for (const auto& a : args) {
    Variant* r = a->reference(f, pack);
    if (!r) {
      pack.temps.push_back(a->eval(f));
      r = &pack.temps.back();
    }
    pack.refs.push_back(r);
  }
}

std::vector<Variant> argValues(const ArgPack& pack) {
  std::vector<Variant> v;
  v.reserve(pack.refs.size());
  for (const Variant* r : pack.refs) v.push_back(*r);
  return v;
}

// ---- arrays ----------------------------------------------------------------------------------

namespace {
size_t flatIndex(Runtime& rt, const ArrayData& a, const ArgRefs& idx) {
  if (!a.allocated() || idx.size() != a.upper.size()) raise(rt::kSubscriptOutOfRange);
  size_t flat = 0, stride = 1;
  for (size_t d = 0; d < idx.size(); ++d) {
    if (isOmitted(idx[d])) raise(rt::kSubscriptOutOfRange);
    const Variant& iv = *idx[d];
    if (iv.isNull()) raise(rt::kInvalidUseOfNull);
    const std::int32_t i = toLong(rt, iv);
    if (i < 0 || i > a.upper[d]) raise(rt::kSubscriptOutOfRange);
    flat += static_cast<size_t>(i) * stride;
    stride *= static_cast<size_t>(a.upper[d]) + 1;
  }
  return flat;
}
}  // namespace

Variant indexArray(Runtime& rt, const ArrayData& a, const ArgRefs& idx) { return a.items[flatIndex(rt, a, idx)]; }

Variant& elementFor(Runtime& rt, ArrayData& a, const ArgRefs& idx) { return a.items[flatIndex(rt, a, idx)]; }

// `v(args)` for a value: array element, default member of an object, else Type mismatch.
Variant callValue(Runtime& rt, const Variant& v, const ArgRefs& args, bool statement, const std::string& name) {
  if (v.isArray()) {
    if (args.empty()) raise(statement ? rt::kTypeMismatch : rt::kSubscriptOutOfRange, name);
    return indexArray(rt, *v.arrValue(), args);
  }
  if (v.isObject()) {
    Object* o = v.objValue().get();
    if (!o) raise(rt::kObjectVariableNotSet, name);
    const int d = o->defaultMember();
    if (d < 0) raise(rt::kObjectDoesntSupportThisPropertyOrMethod, name);
    ObjRef keep = v.objValue();
    return o->invoke(rt, d, statement ? InvokeKind::Call : InvokeKind::Get, args, false);
  }
  raise(rt::kTypeMismatch, name);
}

namespace {
Variant letValue(Runtime& rt, Variant v, bool isSet) {
  if (isSet) {
    if (!v.isObject()) raise(rt::kObjectRequired);
    return v;
  }
  if (v.isObject()) return valueOf(rt, v);
  return v;
}

ScriptInstance* meOf(Frame& f) { return static_cast<ScriptInstance*>(f.me.get()); }
}  // namespace

// ---- Expr defaults -----------------------------------------------------------------------------

Variant Expr::call(Frame& f, ArgPack& args, bool statement) const {
  const Variant v = eval(f);
  return callValue(f.rt, v, args.refs, statement, {});
}

void Expr::assign(Frame&, Variant, bool) const { raise(rt::kIllegalAssignment); }

void Expr::assignIndexed(Frame& f, ArgPack& args, Variant v, bool isSet) const {
  const Variant target = eval(f);
  if (!target.isObject()) raise(rt::kTypeMismatch);
  Object* o = target.objValue().get();
  if (!o) raise(rt::kObjectVariableNotSet);
  const int d = o->defaultMember();
  if (d < 0) raise(rt::kObjectDoesntSupportThisPropertyOrMethod);
  Variant value = letValue(f.rt, std::move(v), isSet);
  ArgRefs refs = args.refs;
  refs.push_back(&value);
  o->invoke(f.rt, d, isSet ? InvokeKind::Set : InvokeKind::Let, refs, false);
}

// ---- names -------------------------------------------------------------------------------------

Variant* NameExpr::readable(Frame& f) const {
  switch (kind) {
    case BindKind::Local:
    case BindKind::LocalConst:
    case BindKind::Result: return f.slots[slot];
    case BindKind::Field: return &meOf(f)->fields[static_cast<size_t>(slot)];
    case BindKind::Global:
      if (entry->kind == GlobalEntry::Variable || entry->kind == GlobalEntry::Const ||
          entry->kind == GlobalEntry::NamedObject)
        return &entry->value;
      return nullptr;
    case BindKind::Implicit: {
      if (entry->kind == GlobalEntry::Variable || entry->kind == GlobalEntry::Const) return &entry->value;
      // A name the procedure assigns is its own variable, even when a built-in has the name.
      if (entry->kind != GlobalEntry::Undefined) return nullptr;
      Object* o;
      int m;
      if (f.rt.hostGlobal(entry, o, m)) return nullptr;
      return f.slots[slot];
    }
    case BindKind::ClassMember: return nullptr;
  }
  return nullptr;
}

Variant* NameExpr::writable(Frame& f) const {
  switch (kind) {
    case BindKind::LocalConst: raise(rt::kIllegalAssignment, name);
    case BindKind::Global:
      switch (entry->kind) {
        case GlobalEntry::Variable: return &entry->value;
        case GlobalEntry::Undefined: {
          Object* o;
          int m;
          if (f.rt.hostGlobal(entry, o, m)) return nullptr;
          if (explicitUnit) raise(rt::kVariableIsUndefined, name);
          entry->kind = GlobalEntry::Variable;
          return &entry->value;
        }
        case GlobalEntry::Const:
        case GlobalEntry::Procedure:
        case GlobalEntry::Class:
        case GlobalEntry::NamedObject: raise(rt::kIllegalAssignment, name);
      }
      return nullptr;
    case BindKind::Implicit:
      if (entry->kind == GlobalEntry::Const || entry->kind == GlobalEntry::Procedure) raise(rt::kIllegalAssignment, name);
      return readable(f);
    default: return readable(f);
  }
}

namespace {
Variant globalCall(Frame& f, const NameExpr& n, const ArgRefs& args, bool statement, bool withArgs) {
  Runtime& rt = f.rt;
  GlobalEntry* e = n.entry;
  switch (e->kind) {
    case GlobalEntry::Procedure: return rt.callProcedure(*e->proc, args, {});
    case GlobalEntry::Variable:
    case GlobalEntry::Const:
    case GlobalEntry::NamedObject:
      if (!withArgs && !statement) return e->value;
      return callValue(rt, e->value, args, statement, n.name);
    case GlobalEntry::Class: raise(rt::kTypeMismatch, n.name);
    case GlobalEntry::Undefined: break;
  }
  if (e->builtin) return rt.callBuiltin(*e->builtin, args);
  Object* o;
  int m;
  if (rt.hostGlobal(e, o, m)) {
    ObjRef keep(o);
    return o->invoke(rt, m, statement ? InvokeKind::Call : InvokeKind::Get, args, false);
  }
  if (n.explicitUnit) raise(rt::kVariableIsUndefined, n.name);
  if (!withArgs && !statement) return {};
  raise(rt::kTypeMismatch, n.name);
}
}  // namespace

Variant NameExpr::eval(Frame& f) const {
  if (Variant* p = readable(f)) return *p;
  if (kind == BindKind::ClassMember) return f.me->invoke(f.rt, slot, InvokeKind::Get, {}, true);
  return globalCall(f, *this, {}, false, false);
}

Variant NameExpr::call(Frame& f, ArgPack& args, bool statement) const {
  if (kind == BindKind::Result) {
    // The function's own name with arguments (or as a statement) calls it again.
    if (member >= 0) return f.me->invoke(f.rt, member, statement ? InvokeKind::Call : InvokeKind::Get, args.refs, true);
    if (entry) return globalCall(f, *this, args.refs, statement, true);
  }
  if (Variant* p = readable(f)) {
    const Variant v = *p;  // the call may change the variable
    return callValue(f.rt, v, args.refs, statement, name);
  }
  if (kind == BindKind::ClassMember)
    return f.me->invoke(f.rt, slot, statement ? InvokeKind::Call : InvokeKind::Get, args.refs, true);
  return globalCall(f, *this, args.refs, statement, true);
}

Variant* NameExpr::reference(Frame& f, ArgPack&) const {
  if (kind == BindKind::LocalConst) return nullptr;
  if (kind == BindKind::Global && entry->kind != GlobalEntry::Variable) {
    if (entry->kind != GlobalEntry::Undefined || entry->builtin) return nullptr;
    Object* o;
    int m;
    if (f.rt.hostGlobal(entry, o, m)) return nullptr;
    if (explicitUnit) return nullptr;  // reading it reports the undefined name
  }
  if (kind == BindKind::Implicit && entry->kind == GlobalEntry::Const) return nullptr;
  if (kind == BindKind::Global && entry->kind == GlobalEntry::Const) return nullptr;
  return writable(f);
}

Variant* NameExpr::elementReference(Frame& f, ArgPack& idx, ArgPack& lock) const {
  Variant* p = readable(f);
  if (!p || !p->isArray()) return nullptr;
  ArrayData& a = p->arrayForWrite();
  Variant* el = &elementFor(f.rt, a, idx.refs);
  ++a.locks;
  lock.locked.push_back(p->arrValue());
  return el;
}

void NameExpr::assign(Frame& f, Variant v, bool isSet) const {
  Runtime& rt = f.rt;
  if (kind == BindKind::ClassMember) {
    Variant value = letValue(rt, std::move(v), isSet);
    f.me->invoke(rt, slot, isSet ? InvokeKind::Set : InvokeKind::Let, {&value}, true);
    return;
  }
  Variant value = letValue(rt, std::move(v), isSet);
  if (Variant* p = writable(f)) {
    *p = std::move(value);
    return;
  }
  Object* o;
  int m;
  if ((kind == BindKind::Global || kind == BindKind::Implicit) && rt.hostGlobal(entry, o, m)) {
    ObjRef keep(o);
    o->invoke(rt, m, isSet ? InvokeKind::Set : InvokeKind::Let, {&value}, false);
    return;
  }
  raise(rt::kIllegalAssignment, name);
}

void NameExpr::assignIndexed(Frame& f, ArgPack& args, Variant v, bool isSet) const {
  Runtime& rt = f.rt;
  Variant value = letValue(rt, std::move(v), isSet);
  if (Variant* p = readable(f)) {
    if (p->isArray()) {
      elementFor(rt, p->arrayForWrite(), args.refs) = std::move(value);
      return;
    }
    if (p->isObject()) {
      const Variant target = *p;
      Object* o = target.objValue().get();
      if (!o) raise(rt::kObjectVariableNotSet, name);
      const int d = o->defaultMember();
      if (d < 0) raise(rt::kObjectDoesntSupportThisPropertyOrMethod, name);
      ArgRefs refs = args.refs;
      refs.push_back(&value);
      o->invoke(rt, d, isSet ? InvokeKind::Set : InvokeKind::Let, refs, false);
      return;
    }
    raise(rt::kTypeMismatch, name);
  }
  ArgRefs refs = args.refs;
  refs.push_back(&value);
  if (kind == BindKind::ClassMember) {
    f.me->invoke(rt, slot, isSet ? InvokeKind::Set : InvokeKind::Let, refs, true);
    return;
  }
  Object* o;
  int m;
  if ((kind == BindKind::Global || kind == BindKind::Implicit) && entry->kind == GlobalEntry::Undefined &&
      rt.hostGlobal(entry, o, m)) {
    ObjRef keep(o);
    o->invoke(rt, m, isSet ? InvokeKind::Set : InvokeKind::Let, refs, false);
    return;
  }
  if (explicitUnit && entry && entry->kind == GlobalEntry::Undefined) raise(rt::kVariableIsUndefined, name);
  raise(rt::kTypeMismatch, name);
}

// ---- Me, With, members -------------------------------------------------------------------------

Variant MeExpr::eval(Frame& f) const {
  if (!f.me) raise(rt::kObjectRequired, "Me");
  return Variant::object(f.me);
}

Variant WithObjectExpr::eval(Frame& f) const {
  if (f.withStack.empty()) raise(rt::kInvalidOrUnqualifiedReference);
  return f.withStack.back();
}

int MemberExpr::memberOf(Object* o) const {
  const void* key = o->memberTableKey();
  if (key && key == cacheKey_) return cacheId_;
  const int id = o->findMember(name);
  if (id < 0) raise(rt::kObjectDoesntSupportThisPropertyOrMethod, name);
  if (key) {
    cacheKey_ = key;
    cacheId_ = id;
  }
  return id;
}

namespace {
ObjRef objectFor(Frame& f, const Expr& e) {
  const Variant v = e.eval(f);
  if (!v.isObject() || !v.objValue()) raise(rt::kObjectRequired);
  return v.objValue();
}
}  // namespace

Variant MemberExpr::eval(Frame& f) const {
  ObjRef o = objectFor(f, *object);
  return o->invoke(f.rt, memberOf(o.get()), InvokeKind::Get, {}, o == f.me);
}

Variant MemberExpr::call(Frame& f, ArgPack& args, bool statement) const {
  ObjRef o = objectFor(f, *object);
  return o->invoke(f.rt, memberOf(o.get()), statement ? InvokeKind::Call : InvokeKind::Get, args.refs, o == f.me);
}

void MemberExpr::assign(Frame& f, Variant v, bool isSet) const {
  ObjRef o = objectFor(f, *object);
  Variant value = letValue(f.rt, std::move(v), isSet);
  o->invoke(f.rt, memberOf(o.get()), isSet ? InvokeKind::Set : InvokeKind::Let, {&value}, o == f.me);
}

void MemberExpr::assignIndexed(Frame& f, ArgPack& args, Variant v, bool isSet) const {
  ObjRef o = objectFor(f, *object);
  Variant value = letValue(f.rt, std::move(v), isSet);
  ArgRefs refs = args.refs;
  refs.push_back(&value);
  o->invoke(f.rt, memberOf(o.get()), isSet ? InvokeKind::Set : InvokeKind::Let, refs, o == f.me);
}

// ---- calls -------------------------------------------------------------------------------------

Variant CallExpr::invoke(Frame& f, bool statement) const {
  ArgPack pack;
  evalArgs(f, args, pack);
  return callee->call(f, pack, statement);
}

Variant CallExpr::eval(Frame& f) const { return invoke(f, false); }

Variant CallExpr::call(Frame& f, ArgPack& more, bool statement) const {
  const Variant v = invoke(f, false);
  return callValue(f.rt, v, more.refs, statement, {});
}

Variant* CallExpr::reference(Frame& f, ArgPack& pack) const {
  auto* n = dynamic_cast<const NameExpr*>(callee.get());
  if (!n || args.empty()) return nullptr;
  Variant* p = n->readable(f);
  if (!p || !p->isArray()) return nullptr;
  ArgPack idx;
  evalArgs(f, args, idx);
  return n->elementReference(f, idx, pack);
}

void CallExpr::assign(Frame& f, Variant v, bool isSet) const {
  ArgPack pack;
  evalArgs(f, args, pack);
  callee->assignIndexed(f, pack, std::move(v), isSet);
}

// ---- operators ---------------------------------------------------------------------------------

Variant UnaryExpr::eval(Frame& f) const {
  const Variant v = operand->eval(f);
  if (isNot) return notOp(f.rt, v);
  return negate(f.rt, v);
}

Variant BinaryExpr::eval(Frame& f) const {
  const Variant a = left->eval(f);
  const Variant b = right->eval(f);
  // Integer and Long operands take the common path without the general rules.
  const VT ta = a.type(), tb = b.type();
  if ((ta == VT::Integer || ta == VT::Long) && (tb == VT::Integer || tb == VT::Long)) {
    const long long x = a.intValue(), y = b.intValue();
    const bool small = ta == VT::Integer && tb == VT::Integer;
    auto result = [small](long long r) {
      if (small && r >= -32768 && r <= 32767) return Variant::integer(static_cast<std::int32_t>(r));
      if (r >= INT32_MIN && r <= INT32_MAX) return Variant::longv(static_cast<std::int32_t>(r));
      return Variant::dbl(static_cast<double>(r));
    };
    switch (op) {
      case BinOp::Add: return result(x + y);
      case BinOp::Sub: return result(x - y);
      case BinOp::Mul: return result(x * y);
      case BinOp::Eq: return Variant::boolean(x == y);
      case BinOp::Ne: return Variant::boolean(x != y);
      case BinOp::Lt: return Variant::boolean(x < y);
      case BinOp::Gt: return Variant::boolean(x > y);
      case BinOp::Le: return Variant::boolean(x <= y);
      case BinOp::Ge: return Variant::boolean(x >= y);
      case BinOp::Mod:
        if (y != 0) return small ? Variant::integer(static_cast<std::int32_t>(x % y)) : Variant::longv(static_cast<std::int32_t>(x % y));
        break;
      default: break;
    }
  }
  switch (op) {
    case BinOp::Add:
    case BinOp::Sub:
    case BinOp::Mul:
    case BinOp::Div:
    case BinOp::IntDiv:
    case BinOp::Mod:
    case BinOp::Pow: return arith(f.rt, op, a, b);
    case BinOp::Concat: return concat(f.rt, a, b);
    case BinOp::And:
    case BinOp::Or:
    case BinOp::Xor:
    case BinOp::Eqv:
    case BinOp::Imp: return logical(f.rt, op, a, b);
    default: return comparison(f.rt, op, a, b, leftLit, rightLit);
  }
}

Variant NewExpr::eval(Frame& f) const {
  if (Variant r = f.rt.newBuiltinObject(className); r.isObject()) return r;
  if (entry->kind == GlobalEntry::Class) return f.rt.instantiate(entry->cls);
  if (explicitUnit && entry->kind == GlobalEntry::Undefined) raise(rt::kVariableIsUndefined, className);
  raise(rt::kClassNotDefined, className);
}

}  // namespace lathwick::vbs

// Declarations: Dim, Const, procedures and classes, and the binding of names once a scope ends.
#include <algorithm>

#include "extend/vbscript/parser.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

void compileUnit(Runtime& rt, SourceUnit& unit) {
  const Lexed lexed = lex(unit.text);
  Parser(rt, unit, lexed).parseUnit();
}

ExprPtr compileExpression(Runtime& rt, SourceUnit& unit) {
  const Lexed lexed = lex(unit.text);
  return Parser(rt, unit, lexed).parseExpressionOnly();
}

ExprPtr Parser::parseExpressionOnly() {
  ExprPtr e = expression();
  skipSeparators();
  if (!is(Tok::End)) fail(ce::kExpectedEos);
  return e;
}

void Parser::parseUnit() {
  skipSeparators();
  if (isKw(Kw::Option)) {
    take();
    if (!isWord("Explicit")) fail(ce::kSyntax);
    take();
    unit_.optionExplicit = true;
    endStatement();
  }
  Block b;
  while (true) {
    skipSeparators();
    if (is(Tok::End)) break;
    if (atBlockEnd()) unexpectedTerminator();
    if (StmtPtr s = statement()) b.push_back(std::move(s));
    endStatement();
  }
  unit_.topLevel = std::move(b);
}

int Parser::newSlot(Scope& s, const std::string& lower, bool isConst) {
  if (s.locals.count(lower)) fail(ce::kRedefined);
  const int slot = s.proc->numSlots++;
  s.locals.emplace(lower, Local{slot, isConst});
  return slot;
}

StmtPtr Parser::declaration() {
  bool isPublic = true;
  bool visibility = false;
  bool isDefault = false;
  const Token& first = cur();
  if (isKw(Kw::Public) || isKw(Kw::Private)) {
    isPublic = take().kw == Kw::Public;
    visibility = true;
    if (isWord("Default")) {
      const Token& d = take();
      if (!class_ || scope_) failAt(ce::kSyntax, d);
      if (!isPublic) failAt(ce::kDefaultNotPublic, d);
      isDefault = true;
    }
  }
  if (isKw(Kw::Sub) || isKw(Kw::Function)) {
    if (scope_) fail(ce::kSyntax);
    const ProcKind kind = isKw(Kw::Sub) ? ProcKind::Sub : ProcKind::Function;
    take();
    ProcPtr p = procedure(kind, isPublic, isDefault, class_ ? class_->cls.get() : nullptr);
    if (!class_) unit_.procedures.push_back(p);
    return nullptr;
  }
  if (isWord("Property")) {
    if (!class_ || scope_) fail(ce::kNotInClass);
    take();
    ProcKind kind;
    if (isKw(Kw::Set)) kind = ProcKind::PropertySet;
    else if (isWord("Get")) kind = ProcKind::PropertyGet;
    else if (isWord("Let")) kind = ProcKind::PropertyLet;
    else fail(ce::kExpectedLetSetGet);
    const Token& kindTok = take();
    if (isDefault && kind != ProcKind::PropertyGet) failAt(ce::kDefaultNotGet, kindTok);
    ProcPtr p = procedure(kind, isPublic, isDefault, class_->cls.get());
    class_->propertyDecls.emplace_back(p, &kindTok);
    return nullptr;
  }
  if (isDefault) fail(ce::kDefaultPlacement);
  if (isKw(Kw::Const)) {
    take();
    return constStatement(isPublic);
  }
  if (isKw(Kw::Class)) {
    if (scope_ || class_ || visibility) fail(ce::kSyntax);
    classDeclaration();
    return nullptr;
  }
  if (isKw(Kw::Dim)) {
    if (visibility) fail(ce::kExpectedIdent);
    take();
  } else if (!visibility) {
    failAt(ce::kSyntax, first);
  } else if (scope_) {
    failAt(ce::kSyntax, first);  // Public/Private inside a procedure
  }
  return dimStatement(class_ != nullptr && scope_ == nullptr, isPublic);
}

StmtPtr Parser::dimStatement(bool inClass, bool isPublic) {
  do {
    const Token& nameTok = cur();
    const std::string name = identifier();
    const std::string lower = lowerName(name);
    std::vector<std::int32_t> bounds;
    bool isArray = false;
    if (accept(Tok::LParen)) {
      isArray = true;
      if (!is(Tok::RParen)) {
        do {
          if (!is(Tok::Number)) fail(ce::kExpectedInteger);
          const Variant& v = lx_.values[take().value];
          if (!v.isIntegral()) fail(ce::kExpectedInteger);
          bounds.push_back(v.intValue());
        } while (accept(Tok::Comma));
        if (bounds.size() > 60) fail(ce::kSyntax);
      }
      expect(Tok::RParen, ce::kExpectedRParen);
    }
    if (inClass) {
      ClassDef& c = *class_->cls;
      if (c.find(lower) >= 0) failAt(ce::kRedefined, nameTok);
      ClassMember m;
      m.name = name;
      m.isPublic = isPublic;
      m.field = c.numFields++;
      m.fixedBounds = bounds;
      m.dynamicArray = isArray && bounds.empty();
      c.byName.emplace(lower, static_cast<int>(c.members.size()));
      c.members.push_back(std::move(m));
    } else if (scope_) {
      const int slot = newSlot(*scope_, lower, false);
      if (isArray) scope_->proc->fixedArrays.emplace_back(slot, bounds);
    } else {
      GlobalEntry* e = rt_.entry(name);
      if (e->kind == GlobalEntry::Const) failAt(ce::kRedefined, nameTok);
      for (const auto& c : unit_.constants)
        if (c.first == e) failAt(ce::kRedefined, nameTok);
      // A second script-level declaration of one name in one piece of code.
      for (const auto& v : unit_.variables)
        if (v.first == e) failAt(ce::kRedefined, nameTok);
      for (const GlobalEntry* d : unit_.dynamicArrays)
        if (d == e) failAt(ce::kRedefined, nameTok);
      if (isArray && bounds.empty()) unit_.dynamicArrays.push_back(e);
      else unit_.variables.emplace_back(e, bounds);
    }
  } while (accept(Tok::Comma));
  return nullptr;
}

StmtPtr Parser::constStatement(bool /*isPublic*/) {
  if (class_ && !scope_) fail(ce::kSyntax);
  do {
    const Token& nameTok = cur();
    const std::string name = identifier();
    expect(Tok::Eq, ce::kExpectedEq);
    Variant v = constantLiteral();
    if (scope_) {
      const int slot = newSlot(*scope_, lowerName(name), true);
      scope_->proc->constants.emplace_back(slot, std::move(v));
    } else {
      GlobalEntry* e = rt_.entry(name);
      if (e->kind != GlobalEntry::Undefined) failAt(ce::kRedefined, nameTok);
      for (const auto& c : unit_.constants)
        if (c.first == e) failAt(ce::kRedefined, nameTok);
      for (const auto& d : unit_.variables)
        if (d.first == e) failAt(ce::kRedefined, nameTok);
      unit_.constants.emplace_back(e, std::move(v));
    }
  } while (accept(Tok::Comma));
  return nullptr;
}

ProcPtr Parser::procedure(ProcKind kind, bool isPublic, bool isDefault, ClassDef* owner) {
  const Token& nameTok = cur();
  auto p = std::make_shared<Procedure>();
  p->name = identifier();
  p->kind = kind;
  p->isPublic = isPublic;
  p->isDefault = isDefault;
  p->owner = owner;
  p->unit = &unit_;
  p->line = nameTok.line;
  Scope s;
  s.proc = p.get();
  if (kind == ProcKind::Function || kind == ProcKind::PropertyGet) s.resultName = lowerName(p->name);
  parameters(*p, s);
  scope_ = &s;
  p->body = block();
  scope_ = nullptr;
  procedureEnd(kind);
  resolveScope(s);
  if (owner) addClassMember(*owner, p, nameTok);
  return p;
}

void Parser::parameters(Procedure& p, Scope& s) {
  if (!accept(Tok::LParen)) return;
  if (!is(Tok::RParen)) {
    do {
      Param prm;
      if (acceptKw(Kw::ByVal)) prm.byVal = true;
      else acceptKw(Kw::ByRef);
      prm.name = identifier();
      if (accept(Tok::LParen)) expect(Tok::RParen, ce::kExpectedRParen);
      newSlot(s, lowerName(prm.name), false);
      p.params.push_back(std::move(prm));
    } while (accept(Tok::Comma));
  }
  expect(Tok::RParen, ce::kExpectedRParen);
}

void Parser::procedureEnd(ProcKind kind) {
  if (!acceptKw(Kw::End)) {
    if (is(Tok::End)) fail(ce::kExpectedEnd);
    unexpectedTerminator();
  }
  switch (kind) {
    case ProcKind::Sub: expectKw(Kw::Sub, ce::kExpectedSub); break;
    case ProcKind::Function: expectKw(Kw::Function, ce::kExpectedFunction); break;
    default:
      if (!isWord("Property")) fail(ce::kExpectedProperty);
      take();
  }
}

void Parser::addClassMember(ClassDef& c, const ProcPtr& p, const Token& nameTok) {
  const std::string lower = lowerName(p->name);
  int idx = c.find(lower);
  if (idx < 0) {
    idx = static_cast<int>(c.members.size());
    ClassMember m;
    m.name = p->name;
    m.isPublic = p->isPublic;
    c.members.push_back(std::move(m));
    c.byName.emplace(lower, idx);
  }
  ClassMember& m = c.members[static_cast<size_t>(idx)];
  if (m.field >= 0) failAt(ce::kRedefined, nameTok);
  // A member given twice is refused: the names of the first body still wait to be bound.
  auto& slot = p->kind == ProcKind::PropertyGet   ? m.get
               : p->kind == ProcKind::PropertyLet ? m.let
               : p->kind == ProcKind::PropertySet ? m.set
                                                  : m.method;
  if (slot) failAt(ce::kRedefined, nameTok);
  slot = p;
  if (p->isPublic) m.isPublic = true;
  if (p->isDefault) {
    if (c.defaultMember >= 0 && c.defaultMember != idx) failAt(ce::kMultipleDefault, nameTok);
    c.defaultMember = idx;
  }
  if (lower == "class_initialize" || lower == "class_terminate") {
    if (!p->params.empty()) failAt(ce::kInitArgs, nameTok);
    (lower == "class_initialize" ? c.initialize : c.terminate) = p;
  }
  if ((p->kind == ProcKind::PropertyLet || p->kind == ProcKind::PropertySet) && p->params.empty())
    failAt(ce::kLetSetNoArgs, nameTok);
}

void Parser::classDeclaration() {
  take();  // Class
  ClassScope cs;
  cs.cls = std::make_shared<ClassDef>();
  cs.cls->name = identifier();
  endStatement();
  class_ = &cs;
  while (true) {
    skipSeparators();
    if (is(Tok::End)) fail(ce::kExpectedEnd);
    if (acceptKw(Kw::End)) {
      expectKw(Kw::Class, ce::kExpectedClass);
      break;
    }
    if (isKw(Kw::Public) || isKw(Kw::Private) || isKw(Kw::Dim) || isKw(Kw::Sub) || isKw(Kw::Function) ||
        isWord("Property")) {
      declaration();
    } else {
      fail(ce::kExpectedStmt);
    }
    endStatement();
  }
  // Property Let/Set take one argument more than the Get.
  for (const auto& m : cs.cls->members) {
    if (!m.get) continue;
    const size_t n = m.get->params.size() + 1;
    for (const auto& [p, tok] : cs.propertyDecls)
      if ((p == m.let || p == m.set) && p->params.size() != n) failAt(ce::kPropArgCount, *tok);
  }
  resolveClass(cs);
  class_ = nullptr;
  rt_.entry(cs.cls->name);
  unit_.classes.push_back(cs.cls);
}

void Parser::bindGlobal(NameExpr* n, Procedure* proc, bool assigned,
                        std::unordered_map<std::string, int>* implicitSlots) {
  n->entry = rt_.entry(n->name);
  n->resolved = true;
  if (proc && assigned && !unit_.optionExplicit) {
    const std::string lower = lowerName(n->name);
    auto it = implicitSlots->find(lower);
    if (it == implicitSlots->end()) it = implicitSlots->emplace(lower, proc->numSlots++).first;
    n->kind = BindKind::Implicit;
    n->slot = it->second;
  } else {
    n->kind = BindKind::Global;
  }
}

void Parser::resolveScope(Scope& s) {
  std::unordered_map<std::string, int> implicitSlots;
  for (NameExpr* n : s.refs) {
    const std::string lower = lowerName(n->name);
    if (!s.resultName.empty() && lower == s.resultName) {
      n->kind = BindKind::Result;
      n->slot = 0;
      n->resolved = true;
      if (class_) class_->pending.push_back({n, s.proc, false});
      else n->entry = rt_.entry(n->name);
      continue;
    }
    if (auto it = s.locals.find(lower); it != s.locals.end()) {
      n->kind = it->second.isConst ? BindKind::LocalConst : BindKind::Local;
      n->slot = it->second.slot;
      n->resolved = true;
    } else if (class_) {
      class_->pending.push_back({n, s.proc, s.assigned.count(lower) > 0});
    } else {
      bindGlobal(n, s.proc, s.assigned.count(lower) > 0, &implicitSlots);
    }
  }
}

void Parser::resolveClass(ClassScope& c) {
  for (const PendingName& p : c.pending) {
    NameExpr* n = p.node;
    const int idx = c.cls->find(lowerName(n->name));
    if (n->kind == BindKind::Result) {
      n->member = idx;
      continue;
    }
    if (idx >= 0) {
      const ClassMember& m = c.cls->members[static_cast<size_t>(idx)];
      n->resolved = true;
      if (m.field >= 0) {
        n->kind = BindKind::Field;
        n->slot = m.field;
      } else {
        n->kind = BindKind::ClassMember;
        n->slot = idx;
      }
    } else {
      bindGlobal(n, p.proc, p.assigned, &c.implicitSlots[p.proc]);
    }
  }
}

}  // namespace lathwick::vbs

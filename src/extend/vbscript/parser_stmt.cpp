// Statements and blocks. Statement keywords dispatch through one table.
#include "extend/vbscript/parser.h"

#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
// Gathers the names an expression reads and calls; false when it has members, New or calls
// through anything but a plain name.
bool collectNames(const Expr* e, std::vector<const NameExpr*>& names, std::vector<const NameExpr*>& callees) {
  if (dynamic_cast<const LiteralExpr*>(e)) return true;
  if (auto* n = dynamic_cast<const NameExpr*>(e)) {
    names.push_back(n);
    return true;
  }
  if (auto* p = dynamic_cast<const ParenExpr*>(e)) return collectNames(p->inner.get(), names, callees);
  if (auto* u = dynamic_cast<const UnaryExpr*>(e)) return collectNames(u->operand.get(), names, callees);
  if (auto* b = dynamic_cast<const BinaryExpr*>(e))
    return collectNames(b->left.get(), names, callees) && collectNames(b->right.get(), names, callees);
  if (auto* c = dynamic_cast<const CallExpr*>(e)) {
    auto* callee = dynamic_cast<const NameExpr*>(c->callee.get());
    if (!callee) return false;
    callees.push_back(callee);
    for (const auto& a : c->args)
      if (!collectNames(a.get(), names, callees)) return false;
    return true;
  }
  return false;
}

struct StatementRule {
  Kw kw;
  StmtPtr (Parser::*parse)();
};
}  // namespace

// ---- token helpers ---------------------------------------------------------------------------

bool Parser::isWord(const char* w) const { return cur().kind == Tok::Ident && equalsIgnoreCase(cur().text, w); }

bool Parser::accept(Tok t) {
  if (!is(t)) return false;
  take();
  return true;
}

bool Parser::acceptKw(Kw k) {
  if (!isKw(k)) return false;
  take();
  return true;
}

void Parser::expect(Tok t, int err) {
  if (!accept(t)) fail(err);
}

void Parser::expectKw(Kw k, int err) {
  if (!acceptKw(k)) fail(err);
}

void Parser::fail(int number) const { failAt(number, cur()); }

void Parser::failAt(int number, const Token& t) const { throw CompileError{number, t.line, t.col}; }

std::string Parser::identifier(int err) {
  if (!is(Tok::Ident)) fail(err);
  return std::string(take().text);
}

bool Parser::atStatementEnd() const {
  switch (cur().kind) {
    case Tok::Newline:
    case Tok::Colon:
    case Tok::End: return true;
    case Tok::Keyword: return atBlockEnd();
    default: return false;
  }
}

bool Parser::atBlockEnd() const {
  if (is(Tok::End)) return true;
  if (cur().kind != Tok::Keyword) return false;
  switch (cur().kw) {
    case Kw::End:
    case Kw::Else:
    case Kw::ElseIf:
    case Kw::Case:
    case Kw::Loop:
    case Kw::Next:
    case Kw::WEnd: return true;
    default: return false;
  }
}

void Parser::endStatement() {
  if (!atStatementEnd()) fail(ce::kExpectedEos);
}

void Parser::skipSeparators() {
  while (is(Tok::Newline) || is(Tok::Colon)) take();
}

void Parser::unexpectedTerminator() const {
  if (isKw(Kw::Next)) fail(ce::kUnexpectedNext);
  if (isKw(Kw::Loop)) fail(ce::kLoopWithoutDo);
  fail(ce::kSyntax);
}

// ---- blocks ----------------------------------------------------------------------------------

Block Parser::block() {
  enter();
  Block b;
  while (true) {
    skipSeparators();
    if (atBlockEnd()) break;
    if (StmtPtr s = statement()) b.push_back(std::move(s));
    endStatement();
  }
  leave();
  return b;
}

StmtPtr Parser::statement() {
  static const StatementRule kRules[] = {
      {Kw::If, &Parser::ifStatement},         {Kw::Select, &Parser::selectStatement},
      {Kw::For, &Parser::forStatement},       {Kw::Do, &Parser::doStatement},
      {Kw::While, &Parser::whileStatement},   {Kw::With, &Parser::withStatement},
      {Kw::Exit, &Parser::exitStatement},     {Kw::On, &Parser::onErrorStatement},
      {Kw::Call, &Parser::callStatement},     {Kw::Set, &Parser::setStatement},
      {Kw::ReDim, &Parser::reDimStatement},   {Kw::Erase, &Parser::eraseStatement},
      {Kw::Dim, &Parser::declaration},        {Kw::Public, &Parser::declaration},
      {Kw::Private, &Parser::declaration},    {Kw::Const, &Parser::declaration},
      {Kw::Sub, &Parser::declaration},        {Kw::Function, &Parser::declaration},
      {Kw::Class, &Parser::declaration},
  };
  const Token& t = cur();
  if (t.kind == Tok::Keyword) {
    for (const auto& r : kRules)
      if (r.kw == t.kw) return (this->*r.parse)();
    if (t.kw == Kw::Stop) {
      take();
      return nullptr;
    }
    if (t.kw == Kw::Option) {
      // Only the very first statement of a unit may be Option Explicit (handled in parseUnit).
      fail(ce::kSyntax);
    }
    if (t.kw == Kw::Me) return assignmentOrCall();
    fail(ce::kExpectedStmt);
  }
  if (t.kind == Tok::Ident) {
    // `Property Get|Let|Set` outside a class; otherwise Property is an ordinary name.
    if (equalsIgnoreCase(t.text, "Property") && !scope_ &&
        ((peek().kind == Tok::Ident && (equalsIgnoreCase(peek().text, "Get") || equalsIgnoreCase(peek().text, "Let"))) ||
         (peek().kind == Tok::Keyword && peek().kw == Kw::Set)))
      fail(ce::kNotInClass);
    if (equalsIgnoreCase(t.text, "Let") && peek().kind == Tok::Ident) take();
    return assignmentOrCall();
  }
  // `(expr).Member ...`: a parenthesised expression as the object of a member call.
  if (t.kind == Tok::Dot || t.kind == Tok::LParen) return assignmentOrCall();
  if (t.kind == Tok::Number) fail(ce::kExpectedStmt);
  fail(ce::kExpectedStmt);
}

StmtPtr Parser::assignmentOrCall() {
  const Token& start = cur();
  ExprPtr lhs;
  if (isKw(Kw::Me)) {
    take();
    lhs = postfix(at<MeExpr>(start));
  } else if (is(Tok::Dot) || is(Tok::LParen)) {
    lhs = postfix(primary());
  } else {
    const Token& nameTok = take();
    // A name followed by `=` is assigned: inside a procedure that makes it a local when it
    // is declared nowhere.
    const bool assigned = is(Tok::Eq);
    lhs = postfix(nameNode(nameTok, assigned));
  }
  if (is(Tok::Eq)) return assignment(start, std::move(lhs));
  return callWithoutParentheses(start, std::move(lhs));
}

StmtPtr Parser::assignment(const Token& start, ExprPtr lhs) {
  if (dynamic_cast<ParenExpr*>(lhs.get()) || dynamic_cast<MeExpr*>(lhs.get())) fail(ce::kSyntax);
  take();
  ExprPtr value = expression();
  // `s = s & a & b` appends in place.
  if (auto* target = dynamic_cast<NameExpr*>(lhs.get())) {
    std::vector<const Expr*> pieces;
    const Expr* leftmost = value.get();
    while (auto* cat = dynamic_cast<const BinaryExpr*>(leftmost)) {
      if (cat->op != BinOp::Concat) break;
      pieces.insert(pieces.begin(), cat->right.get());
      leftmost = cat->left.get();
    }
    auto* left = dynamic_cast<const NameExpr*>(leftmost);
    if (!pieces.empty() && left && equalsIgnoreCase(left->name, target->name)) {
      auto s = at<AppendStmt>(start);
      s->target.reset(static_cast<NameExpr*>(lhs.release()));
      s->value = std::move(value);
      s->pieces = std::move(pieces);
      s->simpleShape = true;
      for (const Expr* e : s->pieces) s->simpleShape = s->simpleShape && collectNames(e, s->names, s->callees);
      return s;
    }
  }
  auto s = at<AssignStmt>(start);
  s->target = std::move(lhs);
  s->value = std::move(value);
  return s;
}

// A call statement without Call: `S`, `S a, b`, `S(a)` (a copy of a), `S (a) * 2, b`.
StmtPtr Parser::callWithoutParentheses(const Token& start, ExprPtr lhs) {
  auto s = at<CallStmt>(start);
  if (atStatementEnd()) {
    if (auto* c = dynamic_cast<CallExpr*>(lhs.get())) {
      if (c->args.size() > 1) failAt(ce::kParensOnSub, start);
      // `S(a)` passes the parenthesised expression: a copy.
      if (c->args.size() == 1) c->args[0] = std::make_unique<ParenExpr>(std::move(c->args[0]));
    }
    s->call = std::move(lhs);
    return s;
  }
  auto call = at<CallExpr>(start);
  if (auto* c = dynamic_cast<CallExpr*>(lhs.get())) {
    // `S (a) * 2, b`: the parenthesis opened the first argument, not an argument list.
    if (c->args.size() != 1) failAt(ce::kParensOnSub, start);
    ExprPtr first = binaryRest(0, std::make_unique<ParenExpr>(std::move(c->args[0])));
    call->callee = std::move(c->callee);
    call->args.push_back(std::move(first));
    while (accept(Tok::Comma)) call->args.push_back(argument());
  } else {
    call->callee = std::move(lhs);
    call->args = argumentList();
  }
  s->call = std::move(call);
  return s;
}

StmtPtr Parser::callStatement() {
  const Token& start = take();
  if (!is(Tok::Ident) && !is(Tok::Dot) && !is(Tok::LParen) && !isKw(Kw::Me)) fail(ce::kExpectedIdent);
  ExprPtr target;
  if (is(Tok::Ident)) target = nameNode(take(), false);
  else if (isKw(Kw::Me)) target = at<MeExpr>(take());
  else target = primary();  // `.Member` inside With, or a parenthesised expression
  target = postfix(std::move(target));
  auto s = at<CallStmt>(start);
  s->call = std::move(target);
  return s;
}

StmtPtr Parser::setStatement() {
  const Token& start = take();
  ExprPtr lhs;
  if (is(Tok::Ident)) lhs = postfix(nameNode(take(), true));
  else if (is(Tok::Dot)) lhs = postfix(primary());
  else if (isKw(Kw::Me)) lhs = postfix(at<MeExpr>(take()));
  else fail(ce::kExpectedIdent);
  expect(Tok::Eq, ce::kExpectedEq);
  auto s = at<AssignStmt>(start);
  s->target = std::move(lhs);
  s->value = expression();
  s->isSet = true;
  return s;
}

// ---- If ----------------------------------------------------------------------------------

Block Parser::inlineStatements(bool stopAtElse) {
  Block b;
  while (true) {
    while (accept(Tok::Colon)) {
    }
    if (is(Tok::Newline) || is(Tok::End)) break;
    if (stopAtElse && isKw(Kw::Else)) break;
    if (isKw(Kw::End) && peek().kind == Tok::Keyword && peek().kw == Kw::If) break;
    if (StmtPtr s = statement()) b.push_back(std::move(s));
    if (!atStatementEnd()) fail(ce::kExpectedEos);
    if (!is(Tok::Colon)) {
      if (is(Tok::Newline) || is(Tok::End) || (stopAtElse && isKw(Kw::Else))) break;
      if (isKw(Kw::End) && peek().kind == Tok::Keyword && peek().kw == Kw::If) break;
      fail(ce::kExpectedEos);
    }
  }
  return b;
}

StmtPtr Parser::ifStatement() {
  const Token& start = take();
  auto s = at<IfStmt>(start);
  ExprPtr cond = expression();
  expectKw(Kw::Then, ce::kExpectedThen);
  if (!is(Tok::Newline) && !is(Tok::End)) {
    // Single-line form: everything up to the end of the physical line.
    Block thenPart = inlineStatements(true);
    s->branches.emplace_back(std::move(cond), std::move(thenPart));
    if (acceptKw(Kw::Else)) s->elseBlock = inlineStatements(false);
    if (isKw(Kw::End) && peek().kind == Tok::Keyword && peek().kw == Kw::If) take(), take();
    return s;
  }
  Block body = block();
  s->branches.emplace_back(std::move(cond), std::move(body));
  while (true) {
    if (isKw(Kw::ElseIf)) {
      s->elseIfAt.push_back(at<NopStmt>(take()));
      ExprPtr c = expression();
      expectKw(Kw::Then, ce::kExpectedThen);
      Block b = block();
      s->branches.emplace_back(std::move(c), std::move(b));
    } else if (isKw(Kw::Else)) {
      take();
      s->elseBlock = block();
      if (!isKw(Kw::End)) {
        if (is(Tok::End)) fail(ce::kExpectedEnd);
        unexpectedTerminator();
      }
    } else if (isKw(Kw::End)) {
      take();
      expectKw(Kw::If, ce::kExpectedIf);
      return s;
    } else if (is(Tok::End)) {
      fail(ce::kExpectedEnd);
    } else {
      unexpectedTerminator();
    }
  }
}

// ---- Select Case ---------------------------------------------------------------------------

StmtPtr Parser::selectStatement() {
  const Token& start = take();
  expectKw(Kw::Case, ce::kExpectedCase);
  auto s = at<SelectStmt>(start);
  s->selector = expression();
  endStatement();
  skipSeparators();
  while (true) {
    if (acceptKw(Kw::Case)) {
      SelectStmt::Case c;
      if (acceptKw(Kw::Else)) {
        if (s->hasElse) fail(ce::kSyntax);
        s->hasElse = true;
      } else {
        if (s->hasElse) fail(ce::kSyntax);
        if (isKw(Kw::Is)) fail(ce::kExpectedCase);
        c.values = argumentList();
        if (isKw(Kw::To)) fail(ce::kExpectedCase);
      }
      c.body = block();
      s->cases.push_back(std::move(c));  // Case Else, when present, is the last
    } else if (acceptKw(Kw::End)) {
      expectKw(Kw::Select, ce::kExpectedSelect);
      return s;
    } else if (is(Tok::End)) {
      fail(ce::kExpectedEnd);
    } else {
      fail(ce::kExpectedCase);
    }
  }
}

StmtPtr Parser::withStatement() {
  const Token& start = take();
  auto s = at<WithStmt>(start);
  s->object = expression();
  endStatement();
  s->body = block();
  if (!acceptKw(Kw::End)) {
    if (is(Tok::End)) fail(ce::kExpectedEnd);
    unexpectedTerminator();
  }
  expectKw(Kw::With, ce::kExpectedWith);
  return s;
}

StmtPtr Parser::onErrorStatement() {
  const Token& start = take();
  if (!isWord("Error")) fail(ce::kSyntax);
  take();
  auto s = at<OnErrorStmt>(start);
  if (acceptKw(Kw::Resume)) {
    expectKw(Kw::Next, ce::kSyntax);
    s->resumeNext = true;
  } else if (acceptKw(Kw::GoTo)) {
    if (!is(Tok::Number) || lx_.values[cur().value].number() != 0) fail(ce::kSyntax);
    take();
    s->resumeNext = false;
  } else {
    fail(ce::kSyntax);
  }
  return s;
}

StmtPtr Parser::reDimStatement() {
  const Token& start = take();
  auto s = at<ReDimStmt>(start);
  s->preserve = acceptKw(Kw::Preserve);
  do {
    ReDimStmt::Item item;
    if (!is(Tok::Ident)) fail(ce::kExpectedIdent);
    item.var = nameNode(take(), true);
    expect(Tok::LParen, ce::kExpectedLParen);
    do item.bounds.push_back(expression());  // every bound written: none may be left out
    while (accept(Tok::Comma));
    expect(Tok::RParen, ce::kExpectedRParen);
    s->items.push_back(std::move(item));
  } while (accept(Tok::Comma));
  return s;
}

StmtPtr Parser::eraseStatement() {
  const Token& start = take();
  auto s = at<EraseStmt>(start);
  do {
    if (!is(Tok::Ident)) fail(ce::kExpectedIdent);
    s->vars.push_back(nameNode(take(), false));
  } while (accept(Tok::Comma));
  return s;
}

}  // namespace lathwick::vbs

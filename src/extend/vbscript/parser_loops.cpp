// The loops (For, For Each, Do, While) and Exit, which must be inside the loop or the procedure
// it leaves.
#include "extend/vbscript/parser.h"

namespace lathwick::vbs {

StmtPtr Parser::forStatement() {
  const Token& start = take();
  int& forDepth = scope_ ? scope_->forDepth : topForDepth_;
  if (acceptKw(Kw::Each)) {
    auto s = at<ForEachStmt>(start);
    s->var = forVariable();
    expectKw(Kw::In, ce::kExpectedIn);
    s->group = expression();
    endStatement();
    s->body = forBody(forDepth);
    return s;
  }
  auto s = at<ForStmt>(start);
  s->var = forVariable();
  expect(Tok::Eq, ce::kExpectedEq);
  s->from = expression();
  expectKw(Kw::To, ce::kExpectedTo);
  s->to = expression();
  if (isWord("Step")) {
    take();
    s->step = expression();
  }
  endStatement();
  s->body = forBody(forDepth);
  return s;
}

// The loop variable of For and For Each: a plain name, not an element or a member.
std::unique_ptr<NameExpr> Parser::forVariable() {
  if (!is(Tok::Ident)) fail(ce::kExpectedIdent);
  auto var = nameNode(take(), true);
  if (is(Tok::LParen) || is(Tok::Dot)) fail(ce::kInvalidForVar);
  return var;
}

// The statements up to Next; forDepth tells Exit For whether it is inside a loop.
Block Parser::forBody(int& forDepth) {
  ++forDepth;
  auto body = block();
  --forDepth;
  if (!acceptKw(Kw::Next)) {
    if (is(Tok::End)) fail(ce::kExpectedNext);
    unexpectedTerminator();
  }
  return body;
}

StmtPtr Parser::doStatement() {
  const Token& start = take();
  auto s = at<DoStmt>(start);
  if (isKw(Kw::While) || isKw(Kw::Until)) {
    s->until = take().kw == Kw::Until;
    s->cond = expression();
  } else if (!atStatementEnd()) {
    fail(ce::kExpectedWhileUntilEos);
  }
  int& doDepth = scope_ ? scope_->doDepth : topDoDepth_;
  ++doDepth;
  s->body = block();
  --doDepth;
  if (!acceptKw(Kw::Loop)) {
    if (is(Tok::End)) fail(ce::kExpectedLoop);
    if (isKw(Kw::Next)) fail(ce::kUnexpectedNext);
    fail(ce::kExpectedLoop);
  }
  if (isKw(Kw::While) || isKw(Kw::Until)) {
    if (s->cond) fail(ce::kExpectedEos);
    s->until = take().kw == Kw::Until;
    s->cond = expression();
    s->post = true;
  }
  return s;
}

StmtPtr Parser::whileStatement() {
  const Token& start = take();
  auto s = at<DoStmt>(start);
  s->isWhileWend = true;
  s->cond = expression();
  endStatement();
  s->body = block();
  if (!acceptKw(Kw::WEnd)) {
    if (is(Tok::End)) fail(ce::kExpectedWend);
    unexpectedTerminator();
  }
  return s;
}

StmtPtr Parser::exitStatement() {
  const Token& start = take();
  auto s = at<ExitStmt>(start);
  const int doDepth = scope_ ? scope_->doDepth : topDoDepth_;
  const int forDepth = scope_ ? scope_->forDepth : topForDepth_;
  const Procedure* p = scope_ ? scope_->proc : nullptr;
  if (isKw(Kw::Do)) {
    if (doDepth == 0) fail(ce::kInvalidExit);
    s->what = Flow::ExitDo;
  } else if (isKw(Kw::For)) {
    if (forDepth == 0) fail(ce::kInvalidExit);
    s->what = Flow::ExitFor;
  } else if (isKw(Kw::Sub)) {
    if (!p || p->kind != ProcKind::Sub) fail(ce::kInvalidExit);
  } else if (isKw(Kw::Function)) {
    if (!p || p->kind != ProcKind::Function) fail(ce::kInvalidExit);
  } else if (isWord("Property")) {
    if (!p || p->kind == ProcKind::Sub || p->kind == ProcKind::Function) fail(ce::kInvalidExit);
  } else {
    fail(ce::kInvalidExit);
  }
  take();
  return s;
}

}  // namespace lathwick::vbs

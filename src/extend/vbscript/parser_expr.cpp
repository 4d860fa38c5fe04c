// Expressions: precedence climbing over one table of binary operators.
#include "extend/vbscript/parser.h"

#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
struct BinaryRule {
  Tok tok;
  Kw kw;
  BinOp op;
  int prec;
};

// Lowest precedence first. `Not` sits between And (5) and the comparisons (7) at level 6.
constexpr BinaryRule kBinaryRules[] = {
    {Tok::Keyword, Kw::Imp, BinOp::Imp, 1},   {Tok::Keyword, Kw::Eqv, BinOp::Eqv, 2},
    {Tok::Keyword, Kw::Xor, BinOp::Xor, 3},   {Tok::Keyword, Kw::Or, BinOp::Or, 4},
    {Tok::Keyword, Kw::And, BinOp::And, 5},   {Tok::Eq, Kw::None, BinOp::Eq, 7},
    {Tok::Ne, Kw::None, BinOp::Ne, 7},        {Tok::Lt, Kw::None, BinOp::Lt, 7},
    {Tok::Gt, Kw::None, BinOp::Gt, 7},        {Tok::Le, Kw::None, BinOp::Le, 7},
    {Tok::Ge, Kw::None, BinOp::Ge, 7},        {Tok::Keyword, Kw::Is, BinOp::Is, 7},
    {Tok::Amp, Kw::None, BinOp::Concat, 8},   {Tok::Plus, Kw::None, BinOp::Add, 9},
    {Tok::Minus, Kw::None, BinOp::Sub, 9},    {Tok::Keyword, Kw::Mod, BinOp::Mod, 10},
    {Tok::Backslash, Kw::None, BinOp::IntDiv, 11}, {Tok::Star, Kw::None, BinOp::Mul, 12},
    {Tok::Slash, Kw::None, BinOp::Div, 12},   {Tok::Caret, Kw::None, BinOp::Pow, 13},
};
constexpr int kNotOperandPrec = 7;
constexpr int kMaxDepth = 200;
// Operators in one chain (`a + b + c ...`): each is one level of the tree that evaluation
// walks recursively.
constexpr int kMaxChain = 2000;

const BinaryRule* ruleFor(const Token& t) {
  for (const auto& r : kBinaryRules)
    if (r.tok == t.kind && (t.kind != Tok::Keyword || r.kw == t.kw)) return &r;
  return nullptr;
}

}  // namespace

void Parser::enter() {
  if (++depth_ > kMaxDepth) fail(ce::kOutOfMemory);
}

ExprPtr Parser::expression() { return binary(0); }

ExprPtr Parser::binary(int minPrec) {
  enter();
  ExprPtr left = unary();
  ExprPtr r = binaryRest(minPrec, std::move(left));
  leave();
  return r;
}

ExprPtr Parser::binaryRest(int minPrec, ExprPtr left) {
  for (int chain = 0;; ++chain) {
    const BinaryRule* rule = ruleFor(cur());
    if (!rule || rule->prec < minPrec) return left;
    if (chain >= kMaxChain) fail(ce::kOutOfMemory);
    const Token& opTok = take();
    ExprPtr right = binary(rule->prec + 1);
    auto b = at<BinaryExpr>(opTok);
    b->op = rule->op;
    b->leftLit = left->isNumericLiteral();
    b->rightLit = right->isNumericLiteral();
    b->left = std::move(left);
    b->right = std::move(right);
    left = std::move(b);
  }
}

ExprPtr Parser::unary() {
  const Token& t = cur();
  if (t.kind == Tok::Minus || t.kind == Tok::Plus) {
    take();
    enter();
    ExprPtr operand = unary();
    leave();
    if (t.kind == Tok::Plus) return operand;
    auto u = at<UnaryExpr>(t);
    u->operand = std::move(operand);
    return u;
  }
  if (t.kind == Tok::Keyword && t.kw == Kw::Not) {
    take();
    auto u = at<UnaryExpr>(t);
    u->isNot = true;
    u->operand = binary(kNotOperandPrec);
    return u;
  }
  return postfix(primary());
}

std::unique_ptr<NameExpr> Parser::nameNode(const Token& t, bool assigned) {
  auto n = at<NameExpr>(t);
  n->name = std::string(t.text);
  n->explicitUnit = unit_.optionExplicit;
  if (scope_) {
    scope_->refs.push_back(n.get());
    if (assigned) scope_->assigned.insert(lowerName(t.text));
  } else if (class_) {
    fail(ce::kSyntax);
  } else {
    n->kind = BindKind::Global;
    n->entry = rt_.entry(t.text);
    n->resolved = true;
  }
  return n;
}

ExprPtr Parser::primary() {
  const Token& t = cur();
  switch (t.kind) {
    case Tok::Number:
      take();
      return std::make_unique<LiteralExpr>(lx_.values[t.value], true);
    case Tok::String:
    case Tok::Date:
      take();
      return std::make_unique<LiteralExpr>(lx_.values[t.value], false);
    case Tok::LParen: {
      take();
      enter();
      auto p = std::make_unique<ParenExpr>(expression());
      leave();
      expect(Tok::RParen, ce::kExpectedRParen);
      return p;
    }
    case Tok::Ident:
      take();
      return nameNode(t, false);
    case Tok::Dot: {
      take();
      auto m = at<MemberExpr>(t);
      m->object = std::make_unique<WithObjectExpr>();
      m->name = identifier();
      return m;
    }
    case Tok::Keyword:
      switch (t.kw) {
        case Kw::True: take(); return std::make_unique<LiteralExpr>(Variant::boolean(true), false);
        case Kw::False: take(); return std::make_unique<LiteralExpr>(Variant::boolean(false), false);
        case Kw::Empty: take(); return std::make_unique<LiteralExpr>(Variant(), false);
        case Kw::Null: take(); return std::make_unique<LiteralExpr>(Variant::null(), false);
        case Kw::Nothing: take(); return std::make_unique<LiteralExpr>(Variant::nothing(), false);
        case Kw::Me: take(); return at<MeExpr>(t);
        case Kw::New: {
          take();
          auto n = at<NewExpr>(t);
          n->className = identifier();
          n->entry = rt_.entry(n->className);
          n->explicitUnit = unit_.optionExplicit;
          return n;
        }
        default: break;
      }
      break;
    default: break;
  }
  if (atStatementEnd()) fail(ce::kSyntax);
  fail(ce::kExpectedExpr);
}

ExprPtr Parser::postfix(ExprPtr e) {
  while (true) {
    if (is(Tok::LParen)) {
      const Token& t = take();
      auto c = at<CallExpr>(t);
      c->callee = std::move(e);
      if (!is(Tok::RParen)) c->args = argumentList();
      expect(Tok::RParen, ce::kExpectedRParen);
      e = std::move(c);
    } else if (is(Tok::Dot) && !cur().spaced) {
      const Token& t = take();
      auto m = at<MemberExpr>(t);
      m->object = std::move(e);
      m->name = identifier();
      e = std::move(m);
    } else {
      return e;
    }
  }
}

// An argument, or an omitted one when nothing stands before the next comma, the closing
// parenthesis or the end of the statement.
ExprPtr Parser::argument() {
  if (is(Tok::Comma) || is(Tok::RParen) || atStatementEnd()) return at<OmittedExpr>(cur());
  return expression();
}

ExprList Parser::argumentList() {
  ExprList args;
  do {
    args.push_back(argument());
  } while (accept(Tok::Comma));
  return args;
}

Variant Parser::constantLiteral() {
  bool negative = false;
  while (is(Tok::Minus) || is(Tok::Plus)) negative ^= take().kind == Tok::Minus;
  const Token& t = cur();
  Variant v;
  if (t.kind == Tok::Number || t.kind == Tok::String || t.kind == Tok::Date) {
    v = lx_.values[t.value];
  } else if (t.kind == Tok::Keyword && (t.kw == Kw::True || t.kw == Kw::False)) {
    v = Variant::boolean(t.kw == Kw::True);
  } else if (t.kind == Tok::Keyword && t.kw == Kw::Empty) {
    v = Variant();
  } else if (t.kind == Tok::Keyword && t.kw == Kw::Null) {
    v = Variant::null();
  } else if (t.kind == Tok::Keyword && t.kw == Kw::Nothing) {
    v = Variant::nothing();
  } else {
    fail(ce::kExpectedLiteral);
  }
  take();
  if (negative) {
    if (v.type() == VT::Integer || v.type() == VT::Long) v = Variant::fitted(-static_cast<long long>(v.intValue()));
    else if (v.isFloating()) v = v.type() == VT::Date ? Variant::date(-v.dblValue()) : Variant::dbl(-v.dblValue());
    else if (v.type() == VT::Boolean) v = Variant::integer(-v.intValue());
    else fail(ce::kExpectedLiteral);
  }
  return v;
}

}  // namespace lathwick::vbs

#pragma once
// Turns one code unit's tokens into the compiled tree, binding every name as it goes:
// procedure locals to slots (a Dim anywhere in a procedure counts for all of it), class
// members to fields or member ids when the class ends, everything else to global entries.
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "extend/vbscript/ast.h"
#include "extend/vbscript/lexer.h"
#include "extend/vbscript/runtime.h"

namespace lathwick::vbs {

// Parses `unit.text` into `unit`; throws CompileError. Global entries for the unit's
// declarations are created but not filled: that happens when the unit is started.
void compileUnit(Runtime& rt, SourceUnit& unit);
// Parses `unit.text` as one expression over global names (for Eval).
ExprPtr compileExpression(Runtime& rt, SourceUnit& unit);

class Parser {
 public:
  Parser(Runtime& rt, SourceUnit& unit, const Lexed& lexed) : rt_(rt), unit_(unit), lx_(lexed) {}
  void parseUnit();
  ExprPtr parseExpressionOnly();

 private:
  struct Local {
    int slot;
    bool isConst;
  };
  struct Scope {
    Procedure* proc = nullptr;
    std::unordered_map<std::string, Local> locals;
    std::vector<NameExpr*> refs;
    std::set<std::string> assigned;
    std::string resultName;  // lower-case name of a Function / Property Get
    int doDepth = 0, forDepth = 0;
  };
  struct PendingName {
    NameExpr* node;
    Procedure* proc;
    bool assigned;
  };
  struct ClassScope {
    ClassPtr cls;
    std::vector<PendingName> pending;
    std::unordered_map<Procedure*, std::unordered_map<std::string, int>> implicitSlots;
    std::vector<std::pair<ProcPtr, const Token*>> propertyDecls;
  };

  // A new node of the tree, placed at the token.
  template <class T>
  static std::unique_ptr<T> at(const Token& t) {
    auto n = std::make_unique<T>();
    n->line = t.line;
    n->col = t.col;
    return n;
  }

  // tokens
  const Token& cur() const { return lx_.tokens[pos_]; }
  const Token& peek(size_t k = 1) const {
    return lx_.tokens[std::min(pos_ + k, lx_.tokens.size() - 1)];
  }
  const Token& take() { return lx_.tokens[pos_ < lx_.tokens.size() - 1 ? pos_++ : pos_]; }
  bool is(Tok t) const { return cur().kind == t; }
  bool isKw(Kw k) const { return cur().kind == Tok::Keyword && cur().kw == k; }
  bool isWord(const char* w) const;  // an identifier with this text (soft keywords)
  bool accept(Tok t);
  bool acceptKw(Kw k);
  void expect(Tok t, int err);
  void expectKw(Kw k, int err);
  [[noreturn]] void fail(int number) const;
  [[noreturn]] void failAt(int number, const Token& t) const;
  std::string identifier(int err = 1010);  // takes an identifier (or a member name)
  bool atStatementEnd() const;
  bool atBlockEnd() const;
  void endStatement();
  void skipSeparators();
  void enter();
  void leave() { --depth_; }

  // expressions (parser_expr.cpp)
  ExprPtr expression();
  ExprPtr binary(int minPrec);
  ExprPtr binaryRest(int minPrec, ExprPtr left);
  ExprPtr unary();
  ExprPtr primary();
  ExprPtr postfix(ExprPtr e);
  ExprPtr argument();
  ExprList argumentList();
  std::unique_ptr<NameExpr> nameNode(const Token& t, bool assigned);
  Variant constantLiteral();

  // statements (parser_stmt.cpp, the loops in parser_loops.cpp)
  Block block();
  StmtPtr statement();
  StmtPtr simpleStatement();
  StmtPtr ifStatement();
  Block inlineStatements(bool stopAtElse);
  StmtPtr selectStatement();
  StmtPtr forStatement();
  std::unique_ptr<NameExpr> forVariable();
  Block forBody(int& forDepth);
  StmtPtr doStatement();
  StmtPtr whileStatement();
  StmtPtr withStatement();
  StmtPtr exitStatement();
  StmtPtr onErrorStatement();
  StmtPtr callStatement();
  StmtPtr setStatement();
  StmtPtr reDimStatement();
  StmtPtr eraseStatement();
  StmtPtr assignmentOrCall();
  StmtPtr assignment(const Token& start, ExprPtr lhs);
  StmtPtr callWithoutParentheses(const Token& start, ExprPtr lhs);
  [[noreturn]] void unexpectedTerminator() const;

  // declarations (parser_decl.cpp)
  StmtPtr declaration();  // Dim / Public / Private / Const / Sub / Function / Class ...
  StmtPtr dimStatement(bool inClass, bool isPublic);
  StmtPtr constStatement(bool isPublic);
  ProcPtr procedure(ProcKind kind, bool isPublic, bool isDefault, ClassDef* owner);
  void parameters(Procedure& p, Scope& s);
  void procedureEnd(ProcKind kind);  // End Sub / End Function / End Property
  void addClassMember(ClassDef& c, const ProcPtr& p, const Token& nameTok);
  void classDeclaration();
  void resolveScope(Scope& s);
  void resolveClass(ClassScope& c);
  void bindGlobal(NameExpr* n, Procedure* proc, bool assigned,
                  std::unordered_map<std::string, int>* implicitSlots);
  int newSlot(Scope& s, const std::string& lower, bool isConst);

  Runtime& rt_;
  SourceUnit& unit_;
  const Lexed& lx_;
  size_t pos_ = 0;
  int depth_ = 0;
  Scope* scope_ = nullptr;
  ClassScope* class_ = nullptr;
  int topDoDepth_ = 0, topForDepth_ = 0;
};

}  // namespace lathwick::vbs

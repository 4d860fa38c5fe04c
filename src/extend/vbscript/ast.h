#pragma once
// The compiled form: a tree of expression and statement nodes whose names are already bound to
// local slots, class fields or global entries, so that running a statement never looks a
// variable up by its text.
#include <memory>
#include <string>
#include <vector>

#include "extend/vbscript/operators.h"
#include "extend/vbscript/variant.h"

namespace lathwick::vbs {

struct Frame;
struct GlobalEntry;
struct SourceUnit;
struct ClassDef;
struct Builtin;

// Arguments of one call: references for plain variables and array elements, temporaries for
// every other expression.
struct ArgPack {
  std::vector<Variant> temps;
  ArgRefs refs;
  std::vector<std::shared_ptr<ArrayData>> locked;  // arrays whose element is lent by reference
  ArgPack() = default;
  ArgPack(const ArgPack&) = delete;
  ArgPack& operator=(const ArgPack&) = delete;
  ~ArgPack();
};

class Expr {
 public:
  virtual ~Expr() = default;
  virtual Variant eval(Frame& f) const = 0;
  // Called with an argument list, `name(args)`; `statement` when the result is discarded.
  virtual Variant call(Frame& f, ArgPack& args, bool statement) const;
  // The storage a ByRef parameter may alias, or null when the expression is not a variable
  // (the caller then passes a copy). Array elements come with their array locked in `pack`.
  virtual Variant* reference(Frame&, ArgPack&) const { return nullptr; }
  virtual Variant* elementReference(Frame&, ArgPack& /*indices*/, ArgPack& /*lock*/) const { return nullptr; }
  virtual void assign(Frame& f, Variant v, bool isSet) const;
  virtual void assignIndexed(Frame& f, ArgPack& args, Variant v, bool isSet) const;
  virtual bool isNumericLiteral() const { return false; }
  int line = 0, col = 0;
};
using ExprPtr = std::unique_ptr<Expr>;
using ExprList = std::vector<ExprPtr>;

// An argument left out (`F(a, , c)`, `S a, , c`, a trailing `,`) is passed as this one Empty
// value, which callees tell apart by its address: built-in functions take it as not given, user
// procedures as Empty in storage of their own. Nothing writes to it.
inline Variant* omittedArgument() {
  static Variant omitted;
  return &omitted;
}
inline bool isOmitted(const Variant* v) { return v == omittedArgument(); }

// Evaluates arguments into `pack` (references where allowed).
void evalArgs(Frame& f, const ExprList& args, ArgPack& pack);
// Plain values of arguments (for built-in functions).
std::vector<Variant> argValues(const ArgPack& pack);

enum class BindKind : std::uint8_t { Local, LocalConst, Field, ClassMember, Global, Implicit, Result };

class NameExpr : public Expr {
 public:
  std::string name;       // as written
  BindKind kind = BindKind::Global;
  int slot = -1;          // local slot, field index or class member id
  int member = -1;        // for a class Function's own name: its member id (recursion)
  GlobalEntry* entry = nullptr;
  bool explicitUnit = false;  // the unit has Option Explicit
  bool resolved = false;

  Variant eval(Frame& f) const override;
  Variant call(Frame& f, ArgPack& args, bool statement) const override;
  Variant* reference(Frame& f, ArgPack&) const override;
  Variant* elementReference(Frame& f, ArgPack& idx, ArgPack& lock) const override;
  void assign(Frame& f, Variant v, bool isSet) const override;
  void assignIndexed(Frame& f, ArgPack& args, Variant v, bool isSet) const override;
  // Storage for writing (creates an implicit variable); null when the name is not a variable.
  Variant* writable(Frame& f) const;
  // Storage for reading when the name is a variable; null otherwise.
  Variant* readable(Frame& f) const;
};

class LiteralExpr : public Expr {
 public:
  explicit LiteralExpr(Variant v, bool numeric) : value(std::move(v)), numeric(numeric) {}
  Variant eval(Frame&) const override { return value; }
  bool isNumericLiteral() const override { return numeric; }
  Variant value;
  bool numeric;
};

class ParenExpr : public Expr {
 public:
  explicit ParenExpr(ExprPtr e) : inner(std::move(e)) {}
  Variant eval(Frame& f) const override { return inner->eval(f); }
  ExprPtr inner;
};

class MeExpr : public Expr {
 public:
  Variant eval(Frame& f) const override;
};

// The object of the innermost With block (the left side of `.member`).
class WithObjectExpr : public Expr {
 public:
  Variant eval(Frame& f) const override;
};

class MemberExpr : public Expr {
 public:
  ExprPtr object;
  std::string name;
  Variant eval(Frame& f) const override;
  Variant call(Frame& f, ArgPack& args, bool statement) const override;
  void assign(Frame& f, Variant v, bool isSet) const override;
  void assignIndexed(Frame& f, ArgPack& args, Variant v, bool isSet) const override;
  int memberOf(Object* o) const;

 private:
  mutable const void* cacheKey_ = nullptr;
  mutable int cacheId_ = -1;
};

class CallExpr : public Expr {
 public:
  ExprPtr callee;
  ExprList args;
  Variant eval(Frame& f) const override;
  Variant call(Frame& f, ArgPack& args, bool statement) const override;
  Variant* reference(Frame& f, ArgPack& pack) const override;
  void assign(Frame& f, Variant v, bool isSet) const override;
  Variant invoke(Frame& f, bool statement) const;
};

// The place of an omitted argument: it refers to omittedArgument().
class OmittedExpr : public Expr {
 public:
  Variant eval(Frame&) const override { return {}; }
  Variant* reference(Frame&, ArgPack&) const override { return omittedArgument(); }
};

class UnaryExpr : public Expr {
 public:
  bool isNot = false;
  ExprPtr operand;
  Variant eval(Frame& f) const override;
};

class BinaryExpr : public Expr {
 public:
  BinOp op;
  ExprPtr left, right;
  bool leftLit = false, rightLit = false;
  Variant eval(Frame& f) const override;
};

class NewExpr : public Expr {
 public:
  std::string className;
  GlobalEntry* entry = nullptr;
  bool explicitUnit = false;
  Variant eval(Frame& f) const override;
};

// ---- statements ----------------------------------------------------------------------------

enum class Flow : std::uint8_t { Normal, ExitDo, ExitFor, ExitProc };

class Stmt {
 public:
  virtual ~Stmt() = default;
  virtual Flow exec(Frame& f) const = 0;
  int line = 0, col = 0;
};
using StmtPtr = std::unique_ptr<Stmt>;
using Block = std::vector<StmtPtr>;

Flow execBlock(Frame& f, const Block& block);

class AssignStmt : public Stmt {
 public:
  ExprPtr target, value;
  bool isSet = false;
  Flow exec(Frame& f) const override;
};

// `s = s & a & b ...` on a plain variable: appends in place instead of copying the string.
class AppendStmt : public Stmt {
 public:
  std::unique_ptr<NameExpr> target;
  ExprPtr value;                      // the whole concatenation (used when s is no string)
  std::vector<const Expr*> pieces;    // a, b, ... in order
  // Appending in place is right only when evaluating the pieces cannot change the variable:
  // they may read variables and call built-in functions, nothing else.
  bool simpleShape = false;
  std::vector<const NameExpr*> names;    // every name the pieces read
  std::vector<const NameExpr*> callees;  // every name the pieces call with arguments
  bool safe(Frame& f) const;
  Flow exec(Frame& f) const override;
};

class CallStmt : public Stmt {
 public:
  ExprPtr call;  // a CallExpr, NameExpr or MemberExpr
  Flow exec(Frame& f) const override;
};

// Dim of a local fixed array or a scalar: storage is made when the frame starts; nothing runs.
// Also marks a position inside a statement (an ElseIf line) for error reports.
class NopStmt : public Stmt {
 public:
  Flow exec(Frame&) const override { return Flow::Normal; }
};

class IfStmt : public Stmt {
 public:
  std::vector<std::pair<ExprPtr, Block>> branches;
  std::vector<std::unique_ptr<NopStmt>> elseIfAt;  // position of each ElseIf (branches 1...)
  Block elseBlock;
  Flow exec(Frame& f) const override;
};

class SelectStmt : public Stmt {
 public:
  struct Case {
    ExprList values;  // empty for Case Else
    Block body;
  };
  ExprPtr selector;
  std::vector<Case> cases;
  bool hasElse = false;
  Flow exec(Frame& f) const override;
};

class ForStmt : public Stmt {
 public:
  std::unique_ptr<NameExpr> var;
  ExprPtr from, to, step;
  Block body;
  Flow exec(Frame& f) const override;
};

class ForEachStmt : public Stmt {
 public:
  std::unique_ptr<NameExpr> var;
  ExprPtr group;
  Block body;
  Flow exec(Frame& f) const override;
};

class DoStmt : public Stmt {
 public:
  ExprPtr cond;       // may be null
  bool until = false;
  bool post = false;  // condition after Loop
  bool isWhileWend = false;
  Block body;
  Flow exec(Frame& f) const override;
};

class WithStmt : public Stmt {
 public:
  ExprPtr object;
  Block body;
  Flow exec(Frame& f) const override;
};

class ExitStmt : public Stmt {
 public:
  Flow what = Flow::ExitProc;
  Flow exec(Frame& f) const override;
};

class OnErrorStmt : public Stmt {
 public:
  bool resumeNext = true;
  Flow exec(Frame& f) const override;
};

class ReDimStmt : public Stmt {
 public:
  struct Item {
    std::unique_ptr<NameExpr> var;
    ExprList bounds;
  };
  bool preserve = false;
  std::vector<Item> items;
  Flow exec(Frame& f) const override;
};

class EraseStmt : public Stmt {
 public:
  std::vector<std::unique_ptr<NameExpr>> vars;
  Flow exec(Frame& f) const override;
};


}  // namespace lathwick::vbs

#pragma once
// Interpreter state shared by all code units: the global table, classes, registered objects,
// the Err state, call depth and the interrupt flag; and the frame of one running procedure.
#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "extend/vbscript/ast.h"
#include "extend/vbscript/errors.h"
#include "extend/vbscript/host.h"

namespace lathwick::vbs {

// The arguments of a built-in function, read in place (a variable is not copied). Omitted
// arguments at the end are not counted; one in the middle reads as Empty and says so.
class ArgList {
 public:
  explicit ArgList(const ArgRefs& refs) : refs_(refs), size_(refs.size()) {
    while (size_ > 0 && isOmitted(refs_[size_ - 1])) --size_;
  }
  size_t size() const { return size_; }
  bool omitted(size_t i) const { return isOmitted(refs_[i]); }
  const Variant& operator[](size_t i) const { return *refs_[i]; }
  struct Iter {
    Variant* const* p;
    const Variant& operator*() const { return **p; }
    Iter& operator++() {
      ++p;
      return *this;
    }
    bool operator!=(const Iter& o) const { return p != o.p; }
  };
  Iter begin() const { return {refs_.data()}; }
  Iter end() const { return {refs_.data() + size_}; }
  std::vector<Variant> values() const {
    std::vector<Variant> v;
    for (size_t i = 0; i < size_; ++i) v.push_back(*refs_[i]);
    return v;
  }

 private:
  const ArgRefs& refs_;
  size_t size_;
};

struct Builtin {
  const char* name;
  int minArgs;
  int maxArgs;
  Variant (*fn)(Runtime& rt, ArgList& args);
};
const Builtin* findBuiltin(std::string_view name);

struct Param {
  std::string name;
  bool byVal = false;
};

enum class ProcKind : std::uint8_t { Sub, Function, PropertyGet, PropertyLet, PropertySet };

struct Procedure {
  std::string name;
  ProcKind kind = ProcKind::Sub;
  std::vector<Param> params;
  int numSlots = 1;  // slot 0 holds a Function's result, then the parameters, then locals
  std::vector<std::pair<int, std::vector<std::int32_t>>> fixedArrays;  // slot, upper bounds
  std::vector<std::pair<int, Variant>> constants;                      // slot, value
  Block body;
  const SourceUnit* unit = nullptr;
  int line = 0;
  bool isPublic = true;
  bool isDefault = false;
  ClassDef* owner = nullptr;
};
using ProcPtr = std::shared_ptr<Procedure>;

struct ClassMember {
  std::string name;
  bool isPublic = true;
  int field = -1;  // index of a field, or -1 for a method/property
  std::vector<std::int32_t> fixedBounds;  // fixed array field
  bool dynamicArray = false;
  ProcPtr method, get, let, set;
};

struct ClassDef {
  std::string name;
  std::vector<ClassMember> members;
  std::unordered_map<std::string, int> byName;  // lower-case name -> member index
  int defaultMember = -1;
  int numFields = 0;
  ProcPtr initialize, terminate;
  int find(std::string_view name) const;
};
using ClassPtr = std::shared_ptr<ClassDef>;

struct GlobalEntry {
  enum Kind : std::uint8_t { Undefined, Variable, Const, Procedure, Class, NamedObject };
  std::string name;
  Kind kind = Undefined;
  Variant value;
  ProcPtr proc;
  ClassPtr cls;
  const Builtin* builtin = nullptr;
  // Cache of the host global member found for this name.
  int hostGeneration = -1;
  Object* hostObject = nullptr;
  int hostMember = -1;
};

// One AddCode text with everything compiled from it.
struct SourceUnit {
  std::string sourceName;
  std::string text;
  std::vector<size_t> lineStarts;
  bool optionExplicit = false;
  Block topLevel;
  std::vector<ProcPtr> procedures;
  std::vector<ClassPtr> classes;
  std::vector<std::pair<GlobalEntry*, Variant>> constants;
  std::vector<std::pair<GlobalEntry*, std::vector<std::int32_t>>> variables;  // bounds empty = scalar
  std::vector<GlobalEntry*> dynamicArrays;
  std::string lineText(int line0) const;
};

struct Frame {
  Runtime& rt;
  const Procedure* proc = nullptr;
  const SourceUnit* unit = nullptr;
  Variant** slots = nullptr;
  ObjRef me;
  std::vector<Variant> withStack;
  bool resumeNext = false;
  const Stmt* current = nullptr;
  explicit Frame(Runtime& r) : rt(r) {}
};

// Instance of a script class.
class ScriptInstance : public Object {
 public:
  ScriptInstance(Runtime& rt, ClassPtr cls);
  std::string typeName() const override { return cls_->name; }
  int findMember(std::string_view name) const override { return cls_->find(name); }
  int defaultMember() const override { return cls_->defaultMember; }
  Variant invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool inside) override;
  const void* memberTableKey() const override { return cls_.get(); }
  std::vector<Variant> fields;
  const ClassDef& cls() const { return *cls_; }

 protected:
  void lastReleased() override;

 private:
  Runtime* rt_;
  std::shared_ptr<bool> alive_;
  ClassPtr cls_;
};

class Runtime {
 public:
  Runtime();
  ~Runtime();

  // ---- globals
  GlobalEntry* entry(std::string_view name);        // finds or creates
  GlobalEntry* findEntry(std::string_view name) const;
  void clearAll();

  // ---- calls
  Variant callProcedure(const Procedure& p, const ArgRefs& args, ObjRef me);
  Variant callBuiltin(const Builtin& b, const ArgRefs& args);
  Variant instantiate(const ClassPtr& cls);
  // Creates the globals, procedures and classes a compiled unit declares (before it runs).
  void declareUnit(SourceUnit& u);
  // ExecuteGlobal / Execute: compiles and runs text in the global scope. Eval: the value of an
  // expression over the global names. Compilation errors are raised with their numbers.
  void executeGlobal(const std::string& text);
  Variant evaluate(const std::string& text);
  // `New RegExp` and the other objects the language itself provides; Empty for other names.
  Variant newBuiltinObject(std::string_view name);
  // A host global member with this name (step 6 of name lookup), cached in the entry.
  bool hostGlobal(GlobalEntry* e, Object*& obj, int& member);
  // At loop turns and calls: now and then lets the host process its events (where Esc
  // arrives), then stops if an interrupt was asked for.
  void checkInterrupt() {
    if ((++pollTick_ & 0x3FFF) == 0 && ui.poll) ui.poll();
    if (interruptFlag.load(std::memory_order_relaxed)) throwInterrupt();
  }
  [[noreturn]] void throwInterrupt();
  // The longest string a script may build: beyond it, "Out of string space".
  static constexpr std::size_t kMaxStringLength = std::size_t{1} << 28;
  // Called before a string of `newLength` characters is made by adding `added` characters:
  // raises "Out of string space" past the cap, and after every few megabytes of growth polls
  // the host and stops if an interrupt was asked for, so that a loop doubling a string is
  // stopped long before it could fill memory.
  void noteStringGrowth(std::size_t newLength, std::size_t added) {
    if (newLength > kMaxStringLength) raise(rt::kOutOfStringSpace);
    grown_ += added;
    if (grown_ < kGrowthPerPoll) return;
    grown_ = 0;
    if (ui.poll) ui.poll();
    if (interruptFlag.load(std::memory_order_relaxed)) throwInterrupt();
  }
  void enterCall();
  void leaveCall() { --depth_; }
  // One level of call depth for a scope: raises "Out of stack space" when too deep.
  struct CallDepth {
    explicit CallDepth(Runtime& rt) : rt_(rt) { rt_.enterCall(); }
    ~CallDepth() { rt_.leaveCall(); }
    CallDepth(const CallDepth&) = delete;
    CallDepth& operator=(const CallDepth&) = delete;

   private:
    Runtime& rt_;
  };

  // ---- errors
  void setErr(const ScriptError& e);
  void clearErr();
  static void locate(ScriptError& e, const Frame& f);

  struct ErrState {
    int number = 0;
    std::string description, source, helpFile;
    int helpContext = 0;
  } err;
  ObjRef errObject;
  // Rnd's generator: each engine starts the same sequence until Randomize.
  struct RandomState {
    std::uint32_t seed = 327680;
    double last = 0;
  } random;
  UiCallbacks ui;
  std::atomic<bool> interruptFlag{false};
  int interruptNumber = kObjectError + 1;
  std::string interruptText = "Script interrupted";
  std::vector<std::unique_ptr<SourceUnit>> units;
  std::vector<ProcPtr> procedureOrder;  // top-level procedures in definition order
  std::vector<ObjRef> globalMemberObjects;
  int hostGeneration = 0;
  bool shuttingDown = false;
  int maxDepth = 1000;
  // False once the runtime is destroyed: objects a host still holds then skip their
  // terminate handlers.
  std::shared_ptr<bool> alive = std::make_shared<bool>(true);

 private:
  std::deque<GlobalEntry> entries_;
  // Code and name tables of earlier resets, kept because objects a host still holds may
  // run methods compiled against them.
  std::vector<std::deque<GlobalEntry>> retiredEntries_;
  std::vector<std::unique_ptr<SourceUnit>> retiredUnits_;
  std::unordered_map<std::string, GlobalEntry*> byName_;
  int depth_ = 0;
  const char* stackBase_ = nullptr;
  unsigned pollTick_ = 0;
  static constexpr std::size_t kGrowthPerPoll = std::size_t{4} << 20;
  std::size_t grown_ = 0;
};

std::string lowerName(std::string_view s);
std::vector<size_t> lineStartsOf(const std::string& text);

}  // namespace lathwick::vbs

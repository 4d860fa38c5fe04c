#pragma once
// Host objects described by a table of members, one row per member the way the built-in
// functions are: name, kind, arity, handler. The host writes the rows over its own context (for
// example a workspace interface) and registers the object; the table does the name lookup, the
// kind and arity checks and raises the host errors, so a handler only does its member's work.
//
//   struct Counter { int value = 0; };
//   constexpr MemberRow<Counter> kCounterMembers[] = {
//       {"Value", MemberKind::Get, 0, 0, [](Counter& c, HostArgs&) { return Variant::longv(c.value); }},
//       {"Value", MemberKind::Let, 0, 0, [](Counter& c, HostArgs& a) { c.value = a.back().intValue(); return Variant(); }},
//       {"Reset", MemberKind::Method, 0, 0, [](Counter& c, HostArgs&) { c.value = 0; return Variant(); }},
//   };
//   addTableObject(engine, "Counter", "Counter", kCounterMembers, Counter{});
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "extend/vbscript/engine.h"
#include "extend/vbscript/host.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

using HostArgs = std::vector<Variant>;

// Method: called as a statement or for its value (`o.M 1`, `x = o.M(1)`).
// Get: a property read. Let: a property write; the assigned value is the last argument and is
// not counted in the row's arity. A property that can be read and written has a Get and a Let row
// under one name.
enum class MemberKind : std::uint8_t { Method, Get, Let };

template <class Context>
struct MemberRow {
  const char* name;
  MemberKind kind;
  int minArgs;
  int maxArgs;
  Variant (*handler)(Context& context, HostArgs& args);
};

// The errors a host object raises, with their standard texts and the runtime's source, so that a
// handler reports them the way the language's own objects do.
[[noreturn]] inline void raiseHostError(int number) {
  throw ScriptError(number, errorText(number), kRuntimeSource);
}
[[noreturn]] inline void raiseNoSuchMember() { raiseHostError(err::kObjectDoesntSupportThisPropertyOrMethod); }
[[noreturn]] inline void raiseWrongArguments() { raiseHostError(err::kWrongNumberOfArguments); }
[[noreturn]] inline void raiseTypeMismatch() { raiseHostError(err::kTypeMismatch); }
[[noreturn]] inline void raiseInvalidCall() { raiseHostError(err::kInvalidProcedureCall); }
[[noreturn]] inline void raiseIllegalAssignment() { raiseHostError(err::kIllegalAssignment); }

template <class Context>
class TableObject : public HostObject {
 public:
  TableObject(std::string typeName, std::span<const MemberRow<Context>> rows, Context context)
      : typeName_(std::move(typeName)), rows_(rows), context_(std::move(context)) {}

  std::string typeName() const override { return typeName_; }
  // The member id is the index of the first row of that name.
  int findMember(std::string_view name) const override {
    for (size_t i = 0; i < rows_.size(); ++i)
      if (equalsIgnoreCase(name, rows_[i].name)) return static_cast<int>(i);
    return -1;
  }
  // Ids depend only on the table, so call sites may cache them.
  const void* memberTableKey() const override { return rows_.data(); }

  Variant hostInvoke(int member, InvokeKind kind, HostArgs& args) override {
    if (member < 0 || static_cast<size_t>(member) >= rows_.size()) raiseNoSuchMember();
    const bool assigning = kind == InvokeKind::Let || kind == InvokeKind::Set;
    const MemberRow<Context>* row = rowFor(rows_[static_cast<size_t>(member)].name, assigning);
    if (!row) assigning ? raiseIllegalAssignment() : raiseNoSuchMember();
    const int given = static_cast<int>(args.size()) - (assigning ? 1 : 0);
    if (given < row->minArgs || given > row->maxArgs) raiseWrongArguments();
    return row->handler(context_, args);
  }

  Context& context() { return context_; }

 private:
  const MemberRow<Context>* rowFor(const char* name, bool assigning) const {
    for (const auto& r : rows_)
      if (equalsIgnoreCase(r.name, name) && (r.kind == MemberKind::Let) == assigning) return &r;
    return nullptr;
  }

  std::string typeName_;
  std::span<const MemberRow<Context>> rows_;
  Context context_;
};

// Makes a table object visible to scripts as `name`; with `globalMembers` (the default) its
// members are also bare global names, so a script may write `WriteLine "x"` for
// `Console.WriteLine "x"`. The rows must outlive the engine (a static table).
template <class Context, std::size_t N>
void addTableObject(Engine& engine, const std::string& name, std::string typeName,
                    const MemberRow<Context> (&rows)[N], Context context, bool globalMembers = true) {
  engine.addObject(name,
                   makeObject<TableObject<Context>>(std::move(typeName), std::span<const MemberRow<Context>>(rows),
                                                    std::move(context)),
                   globalMembers);
}

}  // namespace lathwick::vbs

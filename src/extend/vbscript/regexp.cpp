#include "extend/vbscript/regexp.h"

#include <functional>
#include <memory>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/errors.h"
#include "extend/vbscript/regex_engine.h"
#include "extend/vbscript/runtime.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
int memberIndex(std::string_view name, std::initializer_list<const char*> names) {
  int i = 0;
  for (const char* n : names) {
    if (equalsIgnoreCase(name, n)) return i;
    ++i;
  }
  return -1;
}

void noArgs(const ArgRefs& a) {
  if (!a.empty()) raise(rt::kWrongNumberOfArguments);
}

// A read-only list: Count, Item(i) (default) and For Each.
class ListObject : public Object {
 public:
  ListObject(std::string name, std::vector<Variant> items) : name_(std::move(name)), items_(std::move(items)) {}
  std::string typeName() const override { return name_; }
  int findMember(std::string_view name) const override { return memberIndex(name, {"Item", "Count"}); }
  int defaultMember() const override { return 0; }
  bool enumerate(Runtime&, std::vector<Variant>& out) override {
    out = items_;
    return true;
  }
  Variant invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool) override {
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) raise(rt::kObjectDoesntSupportThisAction);
    if (member == 1) {
      noArgs(args);
      return Variant::longv(static_cast<std::int32_t>(items_.size()));
    }
    if (args.size() != 1) raise(rt::kWrongNumberOfArguments);
    const std::int32_t i = toLong(rt, *args[0]);
    if (i < 0 || static_cast<size_t>(i) >= items_.size()) raise(rt::kInvalidProcedureCall);
    return items_[static_cast<size_t>(i)];
  }

 private:
  std::string name_;
  std::vector<Variant> items_;
};

class MatchObject : public Object {
 public:
  MatchObject(std::string value, std::int32_t index, std::vector<Variant> subs)
      : value_(std::move(value)), index_(index), subs_(std::move(subs)) {}
  std::string typeName() const override { return "IMatch2"; }
  int findMember(std::string_view name) const override {
    return memberIndex(name, {"Value", "FirstIndex", "Length", "SubMatches"});
  }
  int defaultMember() const override { return 0; }
  Variant invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool) override {
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) raise(rt::kObjectDoesntSupportThisAction);
    if (member == 3 && !args.empty()) {
      ObjRef list = makeObject<ListObject>("ISubMatches", subs_);
      return list->invoke(rt, 0, kind, args, false);
    }
    noArgs(args);
    switch (member) {
      case 0: return Variant::str(value_);
      case 1: return Variant::longv(index_);
      case 2: return Variant::longv(static_cast<std::int32_t>(value_.size()));
      default: return Variant::object(makeObject<ListObject>("ISubMatches", subs_));
    }
  }

 private:
  std::string value_;
  std::int32_t index_;
  std::vector<Variant> subs_;
};

class RegExpObject : public Object {
 public:
  std::string typeName() const override { return "IRegExp2"; }
  int findMember(std::string_view name) const override {
    return memberIndex(name, {"Pattern", "IgnoreCase", "Global", "Multiline", "Test", "Execute", "Replace"});
  }
  Variant invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool) override {
    if (member <= 3) {
      if (kind == InvokeKind::Let) {
        if (args.size() != 1) raise(rt::kWrongNumberOfArguments);
        const Variant& v = *args[0];
        if (member == 0) pattern_ = toStr(rt, v);
        else (member == 1 ? ignoreCase_ : member == 2 ? global_ : multiline_) = toBool(rt, v);
        compiled_.reset();
        return {};
      }
      if (kind == InvokeKind::Set) raise(rt::kObjectDoesntSupportThisAction);
      noArgs(args);
      if (member == 0) return Variant::str(pattern_);
      return Variant::boolean(member == 1 ? ignoreCase_ : member == 2 ? global_ : multiline_);
    }
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) raise(rt::kObjectDoesntSupportThisPropertyOrMethod);
    if (member == 6) {
      if (args.size() != 2) raise(rt::kWrongNumberOfArguments);
      return Variant::str(replace(rt, text(rt, *args[0]), text(rt, *args[1])));
    }
    if (args.size() != 1) raise(rt::kWrongNumberOfArguments);
    const std::string s = text(rt, *args[0]);
    if (member == 4) {
      std::vector<int> g;
      return Variant::boolean(regex().search(s, 0, g, [&rt] { rt.checkInterrupt(); }));
    }
    return execute(rt, s);
  }

 private:
  static std::string text(Runtime& rt, const Variant& v) { return v.isNull() ? std::string() : toStr(rt, v); }

  const Regex& regex() {
    if (!compiled_) compiled_ = std::make_unique<Regex>(pattern_, Regex::Options{ignoreCase_, multiline_});
    return *compiled_;
  }

  // A match: the whole match's text, position and length, and the groups' texts.
  struct Found {
    size_t pos, len;
    std::vector<Variant> groups;
  };

  template <class F>
  void eachMatch(Runtime& rt, const std::string& s, F&& f) {
    const Regex& re = regex();
    const std::function<void()> poll = [&rt] { rt.checkInterrupt(); };
    std::vector<int> g;
    size_t from = 0;
    while (from <= s.size() && re.search(s, from, g, poll)) {
      Found m{static_cast<size_t>(g[0]), static_cast<size_t>(g[1] - g[0]), {}};
      for (size_t i = 1; 2 * i + 1 < g.size(); ++i)
        m.groups.push_back(g[2 * i] >= 0 && g[2 * i + 1] >= 0
                               ? Variant::str(s.substr(static_cast<size_t>(g[2 * i]), static_cast<size_t>(g[2 * i + 1] - g[2 * i])))
                               : Variant());
      f(m);
      if (!global_) break;
      from = m.pos + (m.len == 0 ? 1 : m.len);
    }
  }

  Variant execute(Runtime& rt, const std::string& s) {
    std::vector<Variant> matches;
    eachMatch(rt, s, [&](Found& m) {
      matches.push_back(Variant::object(
          makeObject<MatchObject>(s.substr(m.pos, m.len), static_cast<std::int32_t>(m.pos), std::move(m.groups))));
    });
    return Variant::object(makeObject<ListObject>("IMatchCollection2", std::move(matches)));
  }

  std::string replace(Runtime& rt, const std::string& s, const std::string& repl) {
    std::string out;
    size_t last = 0;
    eachMatch(rt, s, [&](Found& m) {
      const size_t pos = m.pos;
      out.append(s, last, pos - last);
      for (size_t i = 0; i < repl.size(); ++i) {
        const char c = repl[i];
        if (c != '$' || i + 1 >= repl.size()) {
          out += c;
          continue;
        }
        const char n = repl[i + 1];
        if (n == '$') out += '$', ++i;
        else if (n == '&') out.append(s, pos, m.len), ++i;
        else if (n == '`') out.append(s, 0, pos), ++i;
        else if (n == '\'') out.append(s, pos + m.len, std::string::npos), ++i;
        else if (n >= '1' && n <= '9') {
          size_t group = static_cast<size_t>(n - '0');
          size_t used = 1;
          if (i + 2 < repl.size() && repl[i + 2] >= '0' && repl[i + 2] <= '9') {
            const size_t two = group * 10 + static_cast<size_t>(repl[i + 2] - '0');
            if (two <= m.groups.size()) group = two, used = 2;
          }
          if (group <= m.groups.size()) out += plainText(m.groups[group - 1]), i += used;
          else out += c;
        } else {
          out += c;
        }
      }
      last = pos + m.len;
    });
    out.append(s, last, std::string::npos);
    return out;
  }

  std::string pattern_;
  bool ignoreCase_ = false, global_ = false, multiline_ = false;
  std::unique_ptr<Regex> compiled_;
};
}  // namespace

ObjRef makeRegExp() { return makeObject<RegExpObject>(); }

}  // namespace lathwick::vbs

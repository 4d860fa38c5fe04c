#include "extend/vbscript/regexp.h"

#include <optional>
#include <regex>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/errors.h"
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
  if (!a.empty()) raise(rt::kWrongArgs);
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
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) raise(rt::kNoAction);
    if (member == 1) {
      noArgs(args);
      return Variant::longv(static_cast<std::int32_t>(items_.size()));
    }
    if (args.size() != 1) raise(rt::kWrongArgs);
    const std::int32_t i = toLong(rt, *args[0]);
    if (i < 0 || static_cast<size_t>(i) >= items_.size()) raise(rt::kInvalidCall);
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
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) raise(rt::kNoAction);
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
        if (args.size() != 1) raise(rt::kWrongArgs);
        const Variant& v = *args[0];
        if (member == 0) pattern_ = toStr(rt, v);
        else (member == 1 ? ignoreCase_ : member == 2 ? global_ : multiline_) = toBool(rt, v);
        compiled_.reset();
        return {};
      }
      if (kind == InvokeKind::Set) raise(rt::kNoAction);
      noArgs(args);
      if (member == 0) return Variant::str(pattern_);
      return Variant::boolean(member == 1 ? ignoreCase_ : member == 2 ? global_ : multiline_);
    }
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) raise(rt::kNoMember);
    if (member == 6) {
      if (args.size() != 2) raise(rt::kWrongArgs);
      return Variant::str(replace(rt, text(rt, *args[0]), text(rt, *args[1])));
    }
    if (args.size() != 1) raise(rt::kWrongArgs);
    const std::string s = text(rt, *args[0]);
    if (member == 4) return Variant::boolean(std::regex_search(s, regex(rt)));
    return execute(rt, s);
  }

 private:
  static std::string text(Runtime& rt, const Variant& v) { return v.isNull() ? std::string() : toStr(rt, v); }

  const std::regex& regex(Runtime&) {
    if (!compiled_) {
      auto flags = std::regex::ECMAScript;
      if (ignoreCase_) flags |= std::regex::icase;
      if (multiline_) flags |= std::regex::multiline;
      try {
        compiled_.emplace(pattern_, flags);
      } catch (const std::regex_error& e) {
        switch (e.code()) {
          case std::regex_constants::error_brack: raise(5019);
          case std::regex_constants::error_paren: raise(5020);
          case std::regex_constants::error_range: raise(5021);
          case std::regex_constants::error_badrepeat: raise(5018);
          default: raise(5017);
        }
      }
    }
    return *compiled_;
  }

  template <class F>
  void eachMatch(Runtime& rt, const std::string& s, F&& f) {
    const std::regex& re = regex(rt);
    try {
      for (auto it = std::sregex_iterator(s.begin(), s.end(), re); it != std::sregex_iterator(); ++it) {
        f(*it);
        if (!global_) break;
      }
    } catch (const std::regex_error&) {
      raise(rt::kOutOfStack);  // the matcher ran out of room on a pathological pattern
    }
  }

  Variant execute(Runtime& rt, const std::string& s) {
    std::vector<Variant> matches;
    eachMatch(rt, s, [&](const std::smatch& m) {
      std::vector<Variant> subs;
      for (size_t i = 1; i < m.size(); ++i)
        subs.push_back(m[i].matched ? Variant::str(m[i].str()) : Variant());
      matches.push_back(Variant::object(makeObject<MatchObject>(m.str(), static_cast<std::int32_t>(m.position()), std::move(subs))));
    });
    return Variant::object(makeObject<ListObject>("IMatchCollection2", std::move(matches)));
  }

  std::string replace(Runtime& rt, const std::string& s, const std::string& repl) {
    std::string out;
    size_t last = 0;
    eachMatch(rt, s, [&](const std::smatch& m) {
      const size_t pos = static_cast<size_t>(m.position());
      out.append(s, last, pos - last);
      for (size_t i = 0; i < repl.size(); ++i) {
        const char c = repl[i];
        if (c != '$' || i + 1 >= repl.size()) {
          out += c;
          continue;
        }
        const char n = repl[i + 1];
        if (n == '$') out += '$', ++i;
        else if (n == '&') out += m.str(), ++i;
        else if (n == '`') out.append(s, 0, pos), ++i;
        else if (n == '\'') out.append(s, pos + static_cast<size_t>(m.length()), std::string::npos), ++i;
        else if (n >= '1' && n <= '9') {
          size_t group = static_cast<size_t>(n - '0');
          size_t used = 1;
          if (i + 2 < repl.size() && repl[i + 2] >= '0' && repl[i + 2] <= '9') {
            const size_t two = group * 10 + static_cast<size_t>(repl[i + 2] - '0');
            if (two < m.size()) group = two, used = 2;
          }
          if (group < m.size()) out += m[group].str(), i += used;
          else out += c;
        } else {
          out += c;
        }
      }
      last = pos + static_cast<size_t>(m.length());
    });
    out.append(s, last, std::string::npos);
    return out;
  }

  std::string pattern_;
  bool ignoreCase_ = false, global_ = false, multiline_ = false;
  std::optional<std::regex> compiled_;
};
}  // namespace

ObjRef makeRegExp() { return makeObject<RegExpObject>(); }

}  // namespace lathwick::vbs

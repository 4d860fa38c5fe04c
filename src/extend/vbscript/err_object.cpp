#include "extend/vbscript/err_object.h"

#include <cmath>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/errors.h"
#include "extend/vbscript/runtime.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
enum Member { kNumber, kDescription, kSource, kHelpFile, kHelpContext, kClear, kRaise, kCount };
const char* const kNames[kCount] = {"Number", "Description", "Source", "HelpFile", "HelpContext", "Clear", "Raise"};

class ErrObject : public Object {
 public:
  std::string typeName() const override { return "ErrObject"; }
  int findMember(std::string_view name) const override {
    for (int i = 0; i < kCount; ++i)
      if (equalsIgnoreCase(name, kNames[i])) return i;
    return -1;
  }
  int defaultMember() const override { return kNumber; }

  Variant invoke(Runtime& rt, int member, InvokeKind kind, const ArgRefs& args, bool) override {
    auto& e = rt.err;
    if (kind == InvokeKind::Let) {
      if (args.size() != 1) raise(rt::kWrongNumberOfArguments);
      const Variant& v = *args[0];
      switch (member) {
        case kNumber: e.number = toLong(rt, v); return {};
        case kDescription: e.description = toStr(rt, v); return {};
        case kSource: e.source = toStr(rt, v); return {};
        case kHelpFile: e.helpFile = toStr(rt, v); return {};
        case kHelpContext: e.helpContext = toLong(rt, v); return {};
        default: raise(rt::kObjectDoesntSupportThisPropertyOrMethod);
      }
    }
    if (kind == InvokeKind::Set) raise(rt::kObjectDoesntSupportThisPropertyOrMethod);
    switch (member) {
      case kNumber: noArgs(args); return Variant::longv(e.number);
      case kDescription: noArgs(args); return Variant::str(e.description);
      case kSource: noArgs(args); return Variant::str(e.source);
      case kHelpFile: noArgs(args); return Variant::str(e.helpFile);
      case kHelpContext: noArgs(args); return Variant::longv(e.helpContext);
      case kClear: noArgs(args); rt.clearErr(); return {};
      case kRaise: raiseError(rt, args); return {};
      default: raise(rt::kObjectDoesntSupportThisPropertyOrMethod);
    }
  }

 private:
  static void noArgs(const ArgRefs& args) {
    if (!args.empty()) raise(rt::kWrongNumberOfArguments);
  }

  static void raiseError(Runtime& rt, const ArgRefs& args) {
    if (args.empty() || isOmitted(args[0]) || args.size() > 5) raise(rt::kWrongNumberOfArguments);
    const Variant& n = *args[0];
    double d = toDouble(rt, n);
    d = bankersRound(d);
    if (!(d >= -2147483648.0 && d <= 4294967295.0)) raise(rt::kOverflow);
    // Numbers written in hexadecimal above &H7FFFFFFF arrive as their unsigned value.
    const auto number = static_cast<std::int32_t>(static_cast<std::int64_t>(d));
    if (number == 0) raise(rt::kInvalidProcedureCall);
    const auto& prev = rt.err;
    const bool keep = prev.number != 0;  // omitted arguments keep the previous error's values
    auto given = [&](size_t i) { return args.size() > i && !args[i]->isEmpty(); };
    std::string source = given(1) ? toStr(rt, *args[1]) : (keep ? prev.source : std::string(kRuntimeSource));
    std::string description = given(2) ? toStr(rt, *args[2]) : (keep ? prev.description : errorText(number));
    ScriptError err(number, description, source);
    err.helpFile = given(3) ? toStr(rt, *args[3]) : (keep ? prev.helpFile : std::string());
    err.helpContext = given(4) ? toLong(rt, *args[4]) : (keep ? prev.helpContext : 0);
    throw err;
  }
};
}  // namespace

ObjRef makeErrObject() { return makeObject<ErrObject>(); }

}  // namespace lathwick::vbs

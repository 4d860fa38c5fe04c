// MsgBox and InputBox (through the host's callbacks), RGB, engine information, Err,
// CreateObject, number formatting, and the vb* constants.
#include <cmath>

#include "extend/vbscript/builtins.h"

namespace lathwick::vbs::builtin {

namespace {
Variant fnMsgBox(Runtime& rt, Args& a) {
  const std::string prompt = a[0].isNull() ? std::string() : toStr(rt, a[0]);
  const std::int32_t buttons = given(a, 1) ? intArg(rt, a[1]) : 0;
  const std::string title = given(a, 2) && !a[2].isNull() ? toStr(rt, a[2]) : std::string("Lathwick");
  int answer = 1;
  if (rt.ui.msgBox) answer = rt.ui.msgBox(prompt, buttons, title);
  rt.checkInterrupt();
  return Variant::integer(answer);
}

Variant fnInputBox(Runtime& rt, Args& a) {
  const std::string prompt = a[0].isNull() ? std::string() : toStr(rt, a[0]);
  const std::string title = given(a, 1) && !a[1].isNull() ? toStr(rt, a[1]) : std::string("Lathwick");
  const std::string def = given(a, 2) && !a[2].isNull() ? toStr(rt, a[2]) : std::string();
  std::optional<std::string> answer;
  if (rt.ui.inputBox) answer = rt.ui.inputBox(prompt, title, def);
  rt.checkInterrupt();
  return Variant::str(answer.value_or(std::string()));
}

Variant fnRGB(Runtime& rt, Args& a) {
  std::int32_t c[3];
  for (int i = 0; i < 3; ++i) {
    c[i] = intArg(rt, a[static_cast<size_t>(i)]);
    if (c[i] < 0) raise(rt::kInvalidProcedureCall);
    if (c[i] > 255) c[i] = 255;
  }
  return Variant::longv(c[0] + 256 * c[1] + 65536 * c[2]);
}

Variant fnScriptEngine(Runtime&, Args&) { return Variant::str("VBScript"); }
Variant fnMajor(Runtime&, Args&) { return Variant::longv(5); }
Variant fnMinor(Runtime&, Args&) { return Variant::longv(8); }
Variant fnBuild(Runtime&, Args&) { return Variant::longv(1); }
Variant fnErr(Runtime& rt, Args&) { return Variant::object(rt.errObject); }
Variant fnCreateObject(Runtime&, Args& a) {
  raise(rt::kCantCreateObject, given(a, 0) && a[0].isString() ? a[0].strValue() : std::string());
}
Variant fnGetLocale(Runtime&, Args&) { return Variant::longv(1033); }
// Execute runs in the global scope (like ExecuteGlobal): a procedure's locals are not visible.
Variant fnExecuteGlobal(Runtime& rt, Args& a) {
  rt.executeGlobal(strArg(rt, a[0]));
  return {};
}
Variant fnEval(Runtime& rt, Args& a) { return rt.evaluate(strArg(rt, a[0])); }

// GetRef: an object whose default member calls the named procedure.
class ProcedureRef : public Object {
 public:
  explicit ProcedureRef(ProcPtr p) : proc_(std::move(p)) {}
  int findMember(std::string_view) const override { return -1; }
  int defaultMember() const override { return 0; }
  Variant invoke(Runtime& rt, int, InvokeKind kind, const ArgRefs& args, bool) override {
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) raise(rt::kObjectDoesntSupportThisAction);
    return rt.callProcedure(*proc_, args, {});
  }

 private:
  ProcPtr proc_;
};
Variant fnGetRef(Runtime& rt, Args& a) {
  const GlobalEntry* e = rt.findEntry(strArg(rt, a[0]));
  if (!e || e->kind != GlobalEntry::Procedure) raise(rt::kInvalidProcedureCall);
  return Variant::object(makeObject<ProcedureRef>(e->proc));
}

// FormatNumber(x[, digits[, leadingZero[, negParens[, group]]]]) with "." and ",".
std::string formatFixed(Runtime& rt, Args& a, double scale, const char* suffix) {
  if (a[0].isNull()) raise(rt::kTypeMismatch);
  const double x = toDouble(rt, a[0]) * scale;
  std::int32_t digits = given(a, 1) ? intArg(rt, a[1]) : 2;
  if (digits == -1) digits = 2;
  if (digits < 0 || digits > 255) raise(rt::kInvalidProcedureCall);
  const auto tristate = [&](size_t i, bool def) {
    if (!given(a, i)) return def;
    const std::int32_t t = intArg(rt, a[i]);
    return t == -2 ? def : t != 0;
  };
  const bool leadingZero = tristate(2, true), negParens = tristate(3, false), group = tristate(4, true);
  const double scaleDigits = std::pow(10.0, digits);
  const double r = std::round(std::fabs(x) * scaleDigits) / scaleDigits;
  char buf[400];
  std::snprintf(buf, sizeof buf, "%.*f", digits, r);
  std::string s = buf;
  std::string intPart = s.substr(0, s.find('.'));
  std::string frac = s.find('.') == std::string::npos ? std::string() : s.substr(s.find('.'));
  if (group) {
    std::string g;
    for (size_t i = 0; i < intPart.size(); ++i) {
      if (i && (intPart.size() - i) % 3 == 0) g += ',';
      g += intPart[i];
    }
    intPart = g;
  }
  if (!leadingZero && intPart == "0" && !frac.empty()) intPart.clear();
  std::string out = intPart + frac + suffix;
  if (x < 0 && r != 0) out = negParens ? "(" + out + ")" : "-" + out;
  return out;
}
Variant fnFormatNumber(Runtime& rt, Args& a) { return Variant::str(formatFixed(rt, a, 1, "")); }
Variant fnFormatPercent(Runtime& rt, Args& a) { return Variant::str(formatFixed(rt, a, 100, "%")); }

const Builtin kRows[] = {
    {"MsgBox", 1, 5, fnMsgBox},
    {"InputBox", 1, 7, fnInputBox},
    {"RGB", 3, 3, fnRGB},
    {"ScriptEngine", 0, 0, fnScriptEngine},
    {"ScriptEngineMajorVersion", 0, 0, fnMajor},
    {"ScriptEngineMinorVersion", 0, 0, fnMinor},
    {"ScriptEngineBuildVersion", 0, 0, fnBuild},
    {"Err", 0, 0, fnErr},
    {"CreateObject", 1, 2, fnCreateObject},
    {"GetObject", 0, 2, fnCreateObject},
    {"GetLocale", 0, 0, fnGetLocale},
    {"Execute", 1, 1, fnExecuteGlobal},
    {"ExecuteGlobal", 1, 1, fnExecuteGlobal},
    {"Eval", 1, 1, fnEval},
    {"GetRef", 1, 1, fnGetRef},
    {"FormatNumber", 1, 5, fnFormatNumber},
    {"FormatPercent", 1, 5, fnFormatPercent},
};

// ---- constants: each is a function of no arguments -----------------------------------------
template <std::int32_t N>
Variant intConst(Runtime&, Args&) {
  return Variant::integer(N);
}
template <std::int32_t N>
Variant longConst(Runtime&, Args&) {
  return Variant::longv(N);
}
template <char... C>
Variant strConst(Runtime&, Args&) {
  return Variant::str(std::string{C...});
}
Variant emptyString(Runtime&, Args&) { return Variant::str(""); }

const Builtin kConstants[] = {
    {"vbCr", 0, 0, strConst<'\r'>}, {"vbLf", 0, 0, strConst<'\n'>}, {"vbCrLf", 0, 0, strConst<'\r', '\n'>},
    {"vbNewLine", 0, 0, strConst<'\r', '\n'>}, {"vbTab", 0, 0, strConst<'\t'>},
    {"vbVerticalTab", 0, 0, strConst<'\v'>}, {"vbFormFeed", 0, 0, strConst<'\f'>},
    {"vbNullChar", 0, 0, strConst<'\0'>}, {"vbNullString", 0, 0, emptyString},
    {"vbBinaryCompare", 0, 0, intConst<0>}, {"vbTextCompare", 0, 0, intConst<1>},
    {"vbDatabaseCompare", 0, 0, intConst<2>},
    {"vbUseSystemDayOfWeek", 0, 0, intConst<0>}, {"vbSunday", 0, 0, intConst<1>}, {"vbMonday", 0, 0, intConst<2>},
    {"vbTuesday", 0, 0, intConst<3>}, {"vbWednesday", 0, 0, intConst<4>}, {"vbThursday", 0, 0, intConst<5>},
    {"vbFriday", 0, 0, intConst<6>}, {"vbSaturday", 0, 0, intConst<7>},
    {"vbUseSystem", 0, 0, intConst<0>}, {"vbFirstJan1", 0, 0, intConst<1>}, {"vbFirstFourDays", 0, 0, intConst<2>},
    {"vbFirstFullWeek", 0, 0, intConst<3>},
    {"vbGeneralDate", 0, 0, intConst<0>}, {"vbLongDate", 0, 0, intConst<1>}, {"vbShortDate", 0, 0, intConst<2>},
    {"vbLongTime", 0, 0, intConst<3>}, {"vbShortTime", 0, 0, intConst<4>},
    {"vbUseDefault", 0, 0, intConst<-2>}, {"vbTrue", 0, 0, intConst<-1>}, {"vbFalse", 0, 0, intConst<0>},
    {"vbEmpty", 0, 0, intConst<0>}, {"vbNull", 0, 0, intConst<1>}, {"vbInteger", 0, 0, intConst<2>},
    {"vbLong", 0, 0, intConst<3>}, {"vbSingle", 0, 0, intConst<4>}, {"vbDouble", 0, 0, intConst<5>},
    {"vbCurrency", 0, 0, intConst<6>}, {"vbDate", 0, 0, intConst<7>}, {"vbString", 0, 0, intConst<8>},
    {"vbObject", 0, 0, intConst<9>}, {"vbError", 0, 0, intConst<10>}, {"vbBoolean", 0, 0, intConst<11>},
    {"vbVariant", 0, 0, intConst<12>}, {"vbDataObject", 0, 0, intConst<13>}, {"vbDecimal", 0, 0, intConst<14>},
    {"vbByte", 0, 0, intConst<17>}, {"vbArray", 0, 0, intConst<8192>},
    {"vbBlack", 0, 0, longConst<0>}, {"vbRed", 0, 0, longConst<0xFF>}, {"vbGreen", 0, 0, longConst<0xFF00>},
    {"vbYellow", 0, 0, longConst<0xFFFF>}, {"vbBlue", 0, 0, longConst<0xFF0000>},
    {"vbMagenta", 0, 0, longConst<0xFF00FF>}, {"vbCyan", 0, 0, longConst<0xFFFF00>},
    {"vbWhite", 0, 0, longConst<0xFFFFFF>}, {"vbObjectError", 0, 0, longConst<kObjectError>},
    {"vbOKOnly", 0, 0, intConst<0>}, {"vbOKCancel", 0, 0, intConst<1>}, {"vbAbortRetryIgnore", 0, 0, intConst<2>},
    {"vbYesNoCancel", 0, 0, intConst<3>}, {"vbYesNo", 0, 0, intConst<4>}, {"vbRetryCancel", 0, 0, intConst<5>},
    {"vbCritical", 0, 0, intConst<16>}, {"vbQuestion", 0, 0, intConst<32>}, {"vbExclamation", 0, 0, intConst<48>},
    {"vbInformation", 0, 0, intConst<64>}, {"vbDefaultButton1", 0, 0, intConst<0>},
    {"vbDefaultButton2", 0, 0, intConst<256>}, {"vbDefaultButton3", 0, 0, intConst<512>},
    {"vbDefaultButton4", 0, 0, intConst<768>}, {"vbApplicationModal", 0, 0, intConst<0>},
    {"vbSystemModal", 0, 0, intConst<4096>}, {"vbMsgBoxHelpButton", 0, 0, longConst<16384>},
    {"vbMsgBoxSetForeground", 0, 0, longConst<65536>}, {"vbMsgBoxRight", 0, 0, longConst<524288>},
    {"vbMsgBoxRtlReading", 0, 0, longConst<1048576>},
    {"vbOK", 0, 0, intConst<1>}, {"vbCancel", 0, 0, intConst<2>}, {"vbAbort", 0, 0, intConst<3>},
    {"vbRetry", 0, 0, intConst<4>}, {"vbIgnore", 0, 0, intConst<5>}, {"vbYes", 0, 0, intConst<6>},
    {"vbNo", 0, 0, intConst<7>},
};
}  // namespace

Table miscFunctions() { return {kRows, std::size(kRows)}; }
Table constantValues() { return {kConstants, std::size(kConstants)}; }

}  // namespace lathwick::vbs::builtin

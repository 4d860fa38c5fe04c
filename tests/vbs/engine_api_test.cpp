// The host contract: named objects and their global members, code in pieces, procedure list,
// running by name, reset, interrupt, UI callbacks and error records.
#include <gtest/gtest.h>

#include <thread>

#include "extend/vbscript/engine.h"
#include "platform/bytes.h"
#include "platform/errors.h"

using namespace lathwick::vbs;

namespace {

// A small stand-in for the editor's Application object.
class FakeApp : public HostObject {
 public:
  std::string selText = "G01 X1";
  std::vector<std::string> calls;
  int findMember(std::string_view name) const override {
    static const char* names[] = {"SelText", "Colorize", "LineText", "Fail", "Swap"};
    for (int i = 0; i < 5; ++i)
      if (lathwick::equalsIgnoreCase(name, names[i])) return i;
    return -1;
  }
  std::string typeName() const override { return "Application"; }
  Variant hostInvoke(int member, InvokeKind kind, std::vector<Variant>& args) override {
    switch (member) {
      case 0:
        if (kind == InvokeKind::Let) {
          selText = args.back().strValue();
          return {};
        }
        return Variant::str(selText);
      case 1: calls.push_back("Colorize"); return {};
      case 2: return Variant::str("line " + std::to_string(args.at(0).intValue()));
      case 3: throw lathwick::AppError(53, "File not found");
      case 4: args.at(0) = Variant::str("swapped"); return {};
    }
    return {};
  }
};

// What a run gave as text: a string as it is, anything else as its whole number.
std::string asText(const std::optional<Variant>& r) {
  return r ? (r->isString() ? r->strValue() : std::to_string(r->intValue())) : "<error>";
}

// Where an error record points: "source name:line:column [line text]".
std::string where(const ErrorRecord& e) {
  return e.source + " " + e.sourceName + ":" + std::to_string(e.line) + ":" + std::to_string(e.column) + " [" +
         e.lineText + "]";
}

struct Fixture : ::testing::Test {
  Engine engine;
  ObjRef appRef = makeObject<FakeApp>();
  FakeApp& app = static_cast<FakeApp&>(*appRef.get());
  std::vector<std::string> shown;
  void SetUp() override {
    engine.addObject("Application", appRef, true);
    UiCallbacks ui;
    ui.msgBox = [this](const std::string& p, int, const std::string&) {
      shown.push_back(p);
      return 6;
    };
    ui.inputBox = [](const std::string&, const std::string&, const std::string& def) {
      return std::optional<std::string>(def + "!");
    };
    engine.setUi(ui);
  }
  std::string eval(const std::string& expr) {
    EXPECT_TRUE(engine.addCode("Function Probe__()\nProbe__ = " + expr + "\nEnd Function"));
    return asText(engine.run("Probe__"));
  }
};

TEST_F(Fixture, HostMembersAreGlobalNamesAndObjectMembers) {
  ASSERT_TRUE(engine.addCode("SelText = UCase(Application.SelText) & \"!\"\nColorize\nApplication.Colorize"));
  EXPECT_EQ(app.selText, "G01 X1!");
  EXPECT_EQ(app.calls.size(), 2u);
  EXPECT_EQ(eval("LineText(3)"), "line 3");
  // A script name shadows a host global; a host global never shadows a built-in.
  ASSERT_TRUE(engine.addCode("Function LineText(n)\nLineText = \"mine\"\nEnd Function"));
  EXPECT_EQ(eval("LineText(3) & Len(\"ab\")"), "mine2");
}

TEST_F(Fixture, HostErrorsBecomeErrAndByRefOutputIsWrittenBack) {
  ASSERT_TRUE(engine.addCode("On Error Resume Next\nFail\nn = Err.Number : d = Err.Description : s = Err.Source\n"
                             "v = \"x\" : Swap v"));
  EXPECT_EQ(eval("n & \"|\" & d & \"|\" & s & \"|\" & v"), "53|File not found|Application|swapped");
}

TEST_F(Fixture, CodePiecesShareOneNamespaceAndProceduresAreListedInOrder) {
  ASSERT_TRUE(engine.addCode("Dim total\ntotal = 1\nSub V_Renumber()\nEnd Sub", "main.vbs"));
  ASSERT_TRUE(engine.addCode("total = total + 1\nFunction Add(a, b)\nAdd = a + b + total\nEnd Function\n"
                             "Sub LoadDoc(name)\nEnd Sub", "extra.vbs"));
  ASSERT_TRUE(engine.addCode("Sub V_Renumber(x)\nEnd Sub", "late.vbs"));
  // name(parameters) function? source:line; the later V_Renumber replaced the first in place.
  std::vector<std::string> listed;
  for (const auto& p : engine.procedures())
    listed.push_back(p.name + "(" + std::to_string(p.paramCount) + ") " + (p.isFunction ? "F " : "S ") +
                     p.sourceName + ":" + std::to_string(p.line));
  EXPECT_EQ(listed, (std::vector<std::string>{"V_Renumber(1) S late.vbs:1", "Add(2) F extra.vbs:2",
                                              "LoadDoc(1) S extra.vbs:5"}));
  std::vector<Variant> args{Variant::integer(2), Variant::integer(3)};
  EXPECT_EQ(asText(engine.run("add", args)), "7");
}

TEST_F(Fixture, RunPassesArgumentsByReferenceAndReportsUnknownNamesAndWrongArity) {
  ASSERT_TRUE(engine.addCode("Sub Bump(x)\nx = x + 1\nEnd Sub"));
  std::vector<Variant> args{Variant::integer(41)};
  ASSERT_TRUE(engine.run("Bump", args));
  EXPECT_EQ(args[0].intValue(), 42);
  EXPECT_FALSE(engine.run("Nope"));
  EXPECT_EQ(engine.lastError()->number, 35);
  EXPECT_EQ(engine.lastError()->message(), "Sub or Function not defined: 'Nope'");
  EXPECT_FALSE(engine.run("Bump"));
  EXPECT_EQ(engine.lastError()->number, 450);
}

TEST_F(Fixture, CompileErrorDefinesNothingAndRecordsThePosition) {
  std::vector<ErrorRecord> seen;
  engine.setErrorHandler([&](const ErrorRecord& e) { seen.push_back(e); });
  EXPECT_FALSE(engine.addCode("Sub Good()\nEnd Sub\nx = (1 +\n", "bad.vbs"));
  ASSERT_EQ(seen.size(), 1u);
  EXPECT_EQ(where(seen[0]), "VBScript compilation error bad.vbs:3:9 [x = (1 +]");
  EXPECT_TRUE(engine.procedures().empty());
}

TEST_F(Fixture, RuntimeErrorKeepsGlobalsAndTheEngineStaysUsable) {
  EXPECT_FALSE(engine.addCode("g = 5\nSub S()\n  y = 1\n  y = y / 0\nEnd Sub\nS", "rt.vbs"));
  EXPECT_EQ(engine.lastError()->number, 11);
  EXPECT_EQ(where(*engine.lastError()), "VBScript runtime error rt.vbs:4:3 [  y = y / 0]");
  EXPECT_EQ(eval("g"), "5");
}

TEST_F(Fixture, ResetDropsCodeStateAndObjects) {
  ASSERT_TRUE(engine.addCode("Const K = 1\nDim v\nv = 3\nSub S()\nEnd Sub"));
  engine.reset();
  EXPECT_TRUE(engine.procedures().empty());
  ASSERT_TRUE(engine.addCode("Const K = 2\nFunction Probe()\nProbe = IsEmpty(v) & K\nEnd Function"));
  EXPECT_EQ(asText(engine.run("Probe")), "True2");
  // Application is gone until the host registers it again.
  EXPECT_FALSE(engine.addCode("Option Explicit\nx = Application.SelText"));
}

TEST_F(Fixture, MsgBoxAndInputBoxGoToTheHost) {
  ASSERT_TRUE(engine.addCode("r = MsgBox(\"Sure?\", vbYesNo)\nMsgBox \"done \" & r\ns = InputBox(\"Name\", \"T\", \"abc\")"));
  EXPECT_EQ(shown, (std::vector<std::string>{"Sure?", "done 6"}));
  EXPECT_EQ(eval("s"), "abc!");
}

TEST_F(Fixture, OmittedMsgBoxArgumentsTakeTheirDefaults) {
  std::vector<std::pair<int, std::string>> boxes;
  UiCallbacks ui;
  ui.msgBox = [&boxes](const std::string&, int buttons, const std::string& title) {
    boxes.emplace_back(buttons, title);
    return 1;
  };
  engine.setUi(ui);
  ASSERT_TRUE(engine.addCode("MsgBox \"a\", , \"Renumber\"\nr = MsgBox(\"b\", vbYesNo, )\nMsgBox \"c\", ,"));
  const std::vector<std::pair<int, std::string>> want{{0, "Renumber"}, {4, "Lathwick"}, {0, "Lathwick"}};
  EXPECT_EQ(boxes, want);
}

TEST_F(Fixture, AHostWritingToAnOmittedArgumentChangesNothingElse) {
  // Swap writes its first argument back; left out, that must not reach later omitted ones.
  ASSERT_TRUE(engine.addCode("On Error Resume Next\nSwap , 1\nErr.Raise 5, , \"d\"\ns = Err.Source"));
  EXPECT_EQ(eval("s"), "VBScript runtime error");
  EXPECT_EQ(eval("TypeName(Array(1, , 3)(1))"), "Empty");
}

TEST_F(Fixture, InterruptStopsARunawayLoopEvenUnderResumeNext) {
  engine.setInterruptError(kObjectError + 1, "Macro cancelled");
  std::thread stopper([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    engine.interrupt();
  });
  const bool ok = engine.addCode("On Error Resume Next\nDo\nn = n + 1\nLoop");
  stopper.join();
  EXPECT_FALSE(ok);
  EXPECT_EQ(engine.lastError()->number, kObjectError + 1);
  EXPECT_EQ(engine.lastError()->description, "Macro cancelled");
  EXPECT_TRUE(engine.addCode("x = 1"));  // usable again
}

TEST_F(Fixture, InterruptFromACallbackStopsAtTheNextCall) {
  UiCallbacks ui;
  ui.msgBox = [this](const std::string&, int, const std::string&) {
    engine.interrupt();
    return 1;
  };
  engine.setUi(ui);
  EXPECT_FALSE(engine.addCode("MsgBox \"stop me\"\nSet marker = Nothing\nmarker = 1"));
  EXPECT_EQ(engine.lastError()->line, 1);
}

// ---- malformed input never crashes or hangs ---------------------------------------------------

std::optional<ErrorRecord> compileOnly(const std::string& text) {
  Engine e;
  if (e.addCode(text)) return std::nullopt;
  return e.lastError();
}
// The number of the error a fresh engine gives for `text`, 0 when it compiles.
long errorNumber(const std::string& text) {
  const auto e = compileOnly(text);
  return e ? e->number : 0;
}

// Adds code that defines a function R, runs R and gives its text, or "<error>".
std::string resultOfR(Engine& e, const std::string& code) {
  return e.addCode(code) ? asText(e.run("R")) : "<error>";
}

TEST(MalformedScripts, GarbageAndNulBytesAreCompileErrors) {
  std::string garbage;
  for (int i = 0; i < 4096; ++i) garbage += static_cast<char>((i * 7919) % 256);
  auto e = compileOnly(garbage);
  ASSERT_TRUE(e);
  EXPECT_EQ(e->source, "VBScript compilation error");
  EXPECT_EQ(errorNumber(std::string("x = 1\0y", 7)), 1032);
}

TEST(MalformedScripts, DeepNestingIsACompileErrorNotACrash) {
  EXPECT_TRUE(compileOnly("x = " + std::string(100000, '(') + "1" + std::string(100000, ')')));
  std::string ifs;
  for (int i = 0; i < 50000; ++i) ifs += "If True Then\n";
  EXPECT_TRUE(compileOnly(ifs));
  EXPECT_TRUE(compileOnly("x = " + std::string(100000, '-') + "1"));
  EXPECT_TRUE(compileOnly("x = " + std::string(100000, 'F') + "(((("));
  // Moderate nesting is fine.
  EXPECT_FALSE(compileOnly("x = " + std::string(50, '(') + "1" + std::string(50, ')')));
}

TEST(MalformedScripts, MegabyteLineCompilesOrFailsCleanly) {
  std::string line = "x = 0";
  while (line.size() < 1024 * 1024) line += " : x = x + 1";
  Engine e;
  EXPECT_TRUE(e.addCode(line));
  // One expression of a quarter million operators is refused, not evaluated recursively.
  std::string chain = "x = 0";
  while (chain.size() < 1024 * 1024) chain += " + 1";
  EXPECT_EQ(errorNumber(chain), 1001);
  EXPECT_EQ(errorNumber(std::string(1024 * 1024, 'a')), 1030);  // identifier too long
  EXPECT_EQ(errorNumber("x = \"" + std::string(1024 * 1024, 'z')), 1033);
}

TEST(ResourceLimits, ReleasingLongChainsOfObjectsOrNestedArraysDoesNotRecurse) {
  Engine e;
  ASSERT_TRUE(e.addCode("Class Node\nPublic NextNode\nEnd Class\n"
                        "Set head = Nothing\n"
                        "For i = 1 To 300000\nSet n = New Node\nSet n.NextNode = head\nSet head = n\nNext\n"
                        "Set n = Nothing\nSet head = Nothing"));
  ASSERT_TRUE(e.addCode("Set head2 = New Node\nSet cur = head2\n"
                        "For i = 1 To 300000\nSet cur.NextNode = New Node\nSet cur = cur.NextNode\nNext\nSet cur = Nothing"));
  e.reset();  // releases the second chain from the engine's side
  EXPECT_TRUE(e.addCode("a = Empty\nFor i = 1 To 500000\n  a = Array(a)\nNext\nn = UBound(a(0))\na = Empty"));
}

// A host whose methods re-enter the engine, as LoadScriptFile and a save of main.vbs do.
class ReentrantHost : public HostObject {
 public:
  Engine* engine = nullptr;
  int findMember(std::string_view name) const override {
    if (lathwick::equalsIgnoreCase(name, "LoadScript")) return 0;
    if (lathwick::equalsIgnoreCase(name, "ResetAll")) return 1;
    return -1;
  }
  Variant hostInvoke(int member, InvokeKind, std::vector<Variant>& args) override {
    if (member == 0) return Variant::boolean(engine->addCode(args.at(0).strValue(), "loaded.vbs"));
    engine->reset();
    return {};
  }
};

TEST(Reentrancy, ScriptsCanAddCodeAndResetWhileRunning) {
  Engine e;
  ObjRef host = makeObject<ReentrantHost>();
  static_cast<ReentrantHost*>(host.get())->engine = &e;
  e.addObject("App", host, true);
  ASSERT_TRUE(e.addCode("ok = LoadScript(\"Function Helper()\" & vbCrLf & \"Helper = 41\" & vbCrLf & \"End Function\")\n"
                        "Function Probe()\nProbe = Helper() + 1\nEnd Function"));
  EXPECT_EQ(asText(e.run("Probe")), "42");
  // A failing nested load reports its own error and the caller carries on.
  ASSERT_TRUE(e.addCode("bad = LoadScript(\"x = (\")\nFunction WasBad()\nWasBad = Not bad\nEnd Function"));
  const auto r = e.run("WasBad");
  ASSERT_TRUE(r);
  EXPECT_TRUE(r->boolValue());
  // Resetting under a running procedure drops everything without pulling the code away.
  ASSERT_TRUE(e.addCode("Sub Wipe()\nDim local\nlocal = 1\nResetAll\nlocal = local + 1\nEnd Sub"));
  EXPECT_TRUE(e.run("Wipe").has_value());
  EXPECT_TRUE(e.procedures().empty());
  EXPECT_FALSE(e.run("Wipe").has_value());
}

TEST(ErrorRecords, NameRelatedErrorsAppendTheNameAndOptionExplicitIsPerUnit) {
  Engine e;
  ASSERT_TRUE(e.addCode("Option Explicit\nDim a\na = 1"));
  ASSERT_TRUE(e.addCode("b = 2"));  // a later piece does not inherit Option Explicit
  EXPECT_FALSE(e.addCode("Option Explicit\nc = a + b\n"));
  const ErrorRecord& r = *e.lastError();
  EXPECT_EQ(r.number, 500);
  EXPECT_EQ(r.description, "Variable is undefined");
  EXPECT_EQ(r.message(), "Variable is undefined: 'c'");
  EXPECT_EQ(r.line, 2);
  EXPECT_EQ(r.column, 1);
  EXPECT_FALSE(e.addCode("x = 1\nUnknownProc 3"));
  EXPECT_EQ(e.lastError()->message(), "Type mismatch: 'UnknownProc'");
}

TEST(RegExpEngine, LongSubjectsNeitherExhaustTheStackNorStallOnHopelessSearches) {
  Engine e;
  EXPECT_EQ(resultOfR(e, "Set re = New RegExp\nre.Global = True\ns = String(300000, \"a\") & \";\"\n"
                         "re.Pattern = \"(a|b)*;\"\nn1 = re.Execute(s).Count\n"
                         "re.Pattern = \"a*\"\nn2 = re.Execute(s).Count\n"
                         "re.Pattern = \"[^;]*Q\"\nn3 = re.Execute(s).Count\n"
                         "Function R()\nR = n1 & \" \" & n2 & \" \" & n3\nEnd Function"),
            "1 3 0");
}

TEST(Interrupt, ThePollCallbackLetsASingleThreadedHostStopAMacro) {
  Engine e;
  int polls = 0;
  UiCallbacks ui;
  ui.poll = [&] {
    if (++polls == 3) e.interrupt();
  };
  e.setUi(ui);
  EXPECT_FALSE(e.addCode("Sub Spin()\nSpin2\nEnd Sub\nSub Spin2()\nEnd Sub\nDo\nSpin\nLoop"));
  EXPECT_EQ(polls, 3);
  EXPECT_EQ(e.lastError()->number, kObjectError + 1);
  EXPECT_EQ(e.lastError()->description, "Script interrupted");
}

// A host collection: default Item(i) with get and let, Count, Add, and For Each.
class FakeList : public HostObject {
 public:
  std::vector<Variant> items;
  std::string typeName() const override { return "LineList"; }
  int findMember(std::string_view name) const override {
    static const char* names[] = {"Item", "Count", "Add"};
    for (int i = 0; i < 3; ++i)
      if (lathwick::equalsIgnoreCase(name, names[i])) return i;
    return -1;
  }
  int defaultMember() const override { return 0; }
  bool enumerate(Runtime&, std::vector<Variant>& out) override {
    out = items;
    return true;
  }
  Variant hostInvoke(int member, InvokeKind kind, std::vector<Variant>& args) override {
    switch (member) {
      case 0: {
        const auto i = static_cast<size_t>(args.at(0).intValue());
        if (i >= items.size()) throw ScriptError(9, errorText(9), "LineList");
        if (kind == InvokeKind::Let) {
          items[i] = args.at(1);
          return {};
        }
        return items[i];
      }
      case 1: return Variant::longv(static_cast<std::int32_t>(items.size()));
      default: items.push_back(args.at(0)); return {};
    }
  }
};

TEST(HostObjects, DefaultMemberIndexedLetAndForEach) {
  Engine e;
  ObjRef list = makeObject<FakeList>();
  e.addObject("Lines", list, false);
  EXPECT_EQ(resultOfR(e, "Lines.Add \"G00\"\nLines.Add \"G01\"\nLines(1) = Lines(1) & \" X1\"\n"
                         "For Each l In Lines\n  s = s & l & \";\"\nNext\n"
                         "Function R()\nR = s & Lines.Count & TypeName(Lines) & IsEmpty(l)\nEnd Function"),
            "G00;G01 X1;2LineListTrue");
  // Without global members, the collection's members are not bare names.
  EXPECT_FALSE(e.addCode("Option Explicit\nx = Count"));
  EXPECT_FALSE(e.addCode("y = Lines(5)"));
  EXPECT_EQ(e.lastError()->number, 9);
  EXPECT_EQ(e.lastError()->source, "LineList");
}
}  // namespace

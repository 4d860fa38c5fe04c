// The macro host over the headless workspace: the Application object's members, the macro
// listing, the Script Error box and the reset after it, the script-file name rule, the key
// recorder, and scripts that misbehave (runaway loops, deep recursion, wrong arguments).
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "platform/file_system.h"
#include "support/temp_dir.h"
#include "workspace/application_object.h"
#include "workspace/headless_workspace.h"
#include "workspace/key_recording.h"
#include "workspace/script_format.h"
#include "workspace/script_host.h"

namespace lathwick {
namespace {

const std::string kProgram = "N10 G00 X1 Y2\r\nN20 G01 X2.5 F100\r\nN30 M30\r\n";

struct Window : ScriptWindow {
  std::vector<transform::OperateEntries> operated;
  void operate(const transform::OperateEntries& e) override { operated.push_back(e); }
};

struct ScriptHostTest : ::testing::Test {
  test::TempDir dir;
  std::ostringstream out;
  std::istringstream in{"answer\n"};
  HeadlessWorkspace workspace{HeadlessSettings{std::string(LATHWICK_APP_DIR) + "/Lathwick.dat", 1, dir.file("work")},
                              out, in};
  Window window;
  std::unique_ptr<ScriptHost> host;

  // A host whose script folder holds main.vbs with `mainScript`.
  ScriptHost& start(const std::string& mainScript) {
    dir.write("Script/main.vbs", mainScript);
    host = std::make_unique<ScriptHost>(workspace, window, dir.file("Script/"));
    host->setUi(consoleUi());
    host->loadMainScript();
    return *host;
  }
  // MsgBox prints its prompt on the console, as the batch tool's does.
  vbs::UiCallbacks consoleUi() {
    vbs::UiCallbacks ui;
    ui.msgBox = [this](const std::string& prompt, int, const std::string&) {
      out << prompt << "\n";
      return 1;
    };
    return ui;
  }
  HeadlessDocument& open(const std::string& text = kProgram) { return workspace.open(dir.write("a.nc", text)); }
  // Runs `body` as a Sub and returns what the console got.
  std::string run(const std::string& body) {
    out.str("");
    host->addScriptText("Sub T_\r\n" + body + "\r\nEnd Sub\r\n", "t");
    host->runMacro("T_");
    return out.str();
  }
};

TEST(MacroListing, ProceduresWithTheMarkerAnyCaseCaptionsReplaceOnlyUpperCase) {
  std::vector<vbs::ProcedureInfo> procedures;
  for (const char* name : {"V_Renumber", "v_test", "Helper", "AV_xV_y", "LoadDoc"}) {
    vbs::ProcedureInfo p;
    p.name = name;
    procedures.push_back(p);
  }
  const std::vector<MacroEntry> entries = macroEntries(procedures);
  ASSERT_EQ(entries.size(), 3u);
  EXPECT_EQ(entries[0].caption, "&Renumber");
  EXPECT_EQ(entries[1].caption, "v_test");
  EXPECT_EQ(entries[1].tag, "v_test");
  EXPECT_EQ(entries[2].caption, "A&x&y");
  EXPECT_EQ(entries[2].tag, "AV_xV_y");
}

TEST(ScriptErrorText, HasTheLinesAndLabelsOfTheBox) {
  vbs::ErrorRecord e;
  e.number = 1002;
  e.source = "Microsoft VBScript compilation error";
  e.description = "Syntax error";
  e.line = 3;
  e.column = 7;
  e.lineText = "If If";
  EXPECT_EQ(scriptErrorText(e, "...Script/main.vbs"),
            "Microsoft VBScript compilation error\r\n" + std::string(53, '-') +
                "\r\nFile =  ...Script/main.vbs\r\nLine = 3\r\nColumn = 7\r\nText =  If If\r\nDiscription =  Syntax error\r\n");
}

TEST(ScriptFileName, SuffixIsAddedToEveryNonEmptyName) {
  EXPECT_EQ(scriptFileName("tools"), "tools.vbs");
  EXPECT_EQ(scriptFileName("tools.vbs"), "tools.vbs.vbs");
  EXPECT_EQ(scriptFileName(""), "");
}

TEST(KeyRecording, PrefixOrderTableAndCtrlF1) {
  // Letters are typed text, not special keys.
  const struct { int key, shift; const char* text; } keys[] = {
      {112, kCtrlBit, ""}, {112, kCtrlBit | kShiftBit, "^+{F1}"}, {35, kShiftBit | kCtrlBit, "^+{END}"},
      {36, kShiftBit | kCtrlBit | kAltBit, "%^+{HOME}"}, {127, 0, "{F16}"}, {65, kCtrlBit, ""}};
  for (const auto& k : keys) EXPECT_EQ(recordedKeyText(k.key, k.shift), k.text) << k.key << " " << k.shift;

  test::TempDir dir;
  const std::string file = dir.file("Keyboard.vbs");
  std::string pending = "G01 X1";
  ASSERT_TRUE(recordKey(file, pending, 112, kCtrlBit));
  EXPECT_FALSE(readWholeFile(file).has_value());  // nothing recorded, the pending text waits
  ASSERT_TRUE(recordKey(file, pending, 13, 0));
  ASSERT_TRUE(recordKey(file, pending, 35, kShiftBit | kCtrlBit));
  EXPECT_EQ(readWholeFile(file).value_or(""), "Key \"G01 X1\"\r\nKey \"{ENTER}\"\r\nKey \"^+{END}\"\r\n");
  EXPECT_TRUE(pending.empty());
}

TEST(LikePattern, TheLikeLanguage) {
  const struct { const char *text, *pattern; bool matches; } rows[] = {
      {"G01", "G0?", true}, {"G01", "X*", false},       {"X12.5", "X##.#", true},        {"b", "[a-c]", true},
      {"b", "[!a-c]", false}, {"*", "[+-*/]", true},    {"-", "[+-*/]", true}, {"25", "[0123456789.]", false},
      {"", "*", true},        {"a", "[a", false}};
  for (const auto& r : rows) EXPECT_EQ(likeMatch(r.text, r.pattern), r.matches) << r.text << " like " << r.pattern;
}

TEST(Format, NumbersAndDates) {
  const struct { double value; const char *format, *shown; } numbers[] = {
      {3.14159, "##0.0###", "3.1416"}, {-0.5, "0.00", "-0.50"},         {1234567.891, "#,##0.00", "1,234,567.89"},
      {7, "X0000", "X0007"},           {1234.5, "Standard", "1,234.50"}, {0.25, "Percent", "25.00%"}};
  for (const auto& n : numbers) EXPECT_EQ(formatNumber(n.value, n.format), n.shown) << n.format;
  // 2026-01-03 is a Saturday in the week of January 1; Sunday 2026-01-04 starts week 2.
  const double jan3 = 46025, jan4 = 46026;
  EXPECT_EQ(formatDateSerial(jan3, "yyyy-mm-dd w ww"), "2026-01-03 7 1");
  EXPECT_EQ(formatDateSerial(jan4, "dddd d mmm yy ww"), "Sunday 4 Jan 26 2");
  EXPECT_EQ(formatDateSerial(jan4 + 0.5, "hh:nn:ss"), "12:00:00");
}

TEST_F(ScriptHostTest, MembersActOnTheDocument) {
  start("");
  HeadlessDocument& doc = open();
  EXPECT_EQ(run("SelStart = 3 : MsgBox \"[\" & LineText & \"]\" & LineNumber & \"/\" & LineCount"), "[]0/4\n");
  EXPECT_EQ(run("SelStart = 35 : MsgBox \"[\" & LineText & \"]\" & LineNumber"), "[\nN30 M30]2\n");
  EXPECT_EQ(run("SelStart = 4 : SelLength = 3 : MsgBox SelText : SelText = \"G0\" : MsgBox SelStart & \",\" & SelLength"),
            "G00\n6,0\n");
  EXPECT_EQ(doc.text(), "N10 G0 X1 Y2\r\nN20 G01 X2.5 F100\r\nN30 M30\r\n");
  run("Text = \"G00 X1\" & vbCrLf & \"M30\"");
  EXPECT_EQ(doc.text(), "G00 X1\r\nM30");
  EXPECT_EQ(run("MsgBox LikeString(\"G01\", \"G0?\") & \"|\" & IsEmpty(LikeString(\"G01\", \"X*\")) & \"|\" & "
                "Fmt(2.5, \"0.000\") & \"|\" & Application.filename"),
            "3|True|2.500|" + dir.file("a.nc") + "\n");
  run("Text = \"G00X1\" & vbCrLf : AddSpaces");
  EXPECT_EQ(doc.text(), "G00 X1\r\n");
  run("RemoveSpaces");
  EXPECT_EQ(doc.text(), "G00X1\r\n");
  run("Text = \"G00 X1\" & vbLf & \"M30\" & vbLf : JunkFilter");
  EXPECT_EQ(doc.text(), "G00 X1\r\nM30\r\n");
  run("Save");
  EXPECT_EQ(readWholeFile(dir.file("a.nc")).value_or(""), "G00 X1\r\nM30\r\n");
  EXPECT_FALSE(run("MsgBox Scheme").empty());
}

TEST_F(ScriptHostTest, OperateChecksOneCharacterEachThenRunsTheDialog) {
  start("");
  open();
  EXPECT_EQ(run("Operate \"1\", \"*\", \"2\", \"##0.0\""), std::string(kAddressMustBeLetter) + "\n");
  EXPECT_EQ(run("Operate \"X\", \"x\", \"2\", \"##0.0\""), std::string(kOperatorMustBe) + "\n");
  EXPECT_EQ(run("Operate \"X\", \"*\", \"2.5\", \"##0.0\""), std::string(kValueMustBeNumber) + "\n");
  EXPECT_TRUE(window.operated.empty());
  EXPECT_EQ(run("Operate \"XY\", \"*\", \"2\", \"##0.0\""), "");  // two letters pass the first check
  ASSERT_EQ(window.operated.size(), 1u);
  EXPECT_EQ(window.operated[0].address, "XY");
  EXPECT_EQ(window.operated[0].value, "2");
}

TEST_F(ScriptHostTest, HeadlessOperateChangesTheValues) {
  HeadlessDocument& doc = open();
  doc.operate({"X", "*", "2", "##0.0###"});
  EXPECT_EQ(doc.text(), "N10 G00 X2.0 Y2\r\nN20 G01 X5.0 F100\r\nN30 M30");  // rich text keeps no final break
}

TEST_F(ScriptHostTest, WithoutADocumentMembersAreEmptyAndSilent) {
  start("");
  EXPECT_EQ(run("MsgBox \"[\" & SelText & LineText & Text & LineCount & \"]\" : SelText = \"x\" : Save : "
                "Operate \"1\", \"*\", \"2\", \"0\""),
            "[]\n");
}

TEST_F(ScriptHostTest, MainScriptLoadsWithApplicationAndListsMacros) {
  ScriptHost& h = start("Sub V_One()\r\nSelText = \"1\"\r\nEnd Sub\r\nSub v_test()\r\nEnd Sub\r\nSub LoadDoc(f)\r\nMsgBox \"loaded \" & f\r\nEnd Sub\r\n");
  ASSERT_EQ(h.macros().size(), 2u);
  EXPECT_EQ(h.macros()[0].caption, "&One");
  open();
  out.str("");
  h.callHook("LoadDoc", {vbs::Variant::str("a.nc")});
  EXPECT_EQ(out.str(), "loaded a.nc\n");
  h.runMacro("V_One");
  EXPECT_EQ(workspace.activeDocument()->text().substr(0, 4), "1N10");
  h.callHook("SendTo", {});  // not defined: nothing happens, nothing is said
  EXPECT_EQ(out.str(), "loaded a.nc\n");
}

TEST_F(ScriptHostTest, SyntaxErrorInMainIsToldOnceAndLeavesNoMacrosUntilReset) {
  ScriptHost& h = start("Sub V_One()\r\nIf If\r\nEnd Sub\r\n");
  const std::string told = out.str();
  EXPECT_NE(told.find("Discription =  Expected expression"), std::string::npos) << told;
  EXPECT_NE(told.find("File =  "), std::string::npos);
  EXPECT_TRUE(h.macros().empty());
  dir.write("Script/main.vbs", "Sub V_Two()\r\nEnd Sub\r\n");
  h.resetCode();
  ASSERT_EQ(h.macros().size(), 1u);
  EXPECT_EQ(h.macros()[0].tag, "V_Two");
}

TEST_F(ScriptHostTest, RuntimeErrorShowsTheBoxThenAllCodeIsGone) {
  ScriptHost& h = start("Sub V_Bad()\r\nx = 1 / 0\r\nEnd Sub\r\n");
  open();
  out.str("");
  EXPECT_FALSE(h.runMacro("V_Bad"));
  EXPECT_NE(out.str().find("Discription =  Division by zero"), std::string::npos) << out.str();
  EXPECT_TRUE(h.macros().empty());
  h.resetCode();
  EXPECT_EQ(h.macros().size(), 1u);
  EXPECT_EQ(workspace.activeDocument()->text(), kProgram);
}

TEST_F(ScriptHostTest, LoadScriptFileAddsTheSuffixAndReportsAMissingFile) {
  ScriptHost& h = start("");
  dir.write("Script/tools.vbs", "Sub V_Tool()\r\nEnd Sub\r\n");
  out.str("");
  h.loadScriptFile("tools");
  EXPECT_EQ(h.macros().size(), 1u);
  EXPECT_EQ(out.str(), "");
  h.loadScriptFile("tools.vbs");
  EXPECT_EQ(out.str(), dir.file("Script/") + "tools.vbs.vbs does not exist\n");
}

TEST_F(ScriptHostTest, RunawayLoopStopsWhenInterruptedAndRecursionAndArgumentsAreTold) {
  ScriptHost& h = start("Sub V_Loop()\r\nDo\r\nLoop\r\nEnd Sub\r\nSub Deep(n)\r\nDeep n + 1\r\nEnd Sub\r\nSub V_Deep()\r\nDeep 1\r\nEnd Sub\r\n");
  open();
  int polls = 0;
  vbs::UiCallbacks ui = consoleUi();
  ui.poll = [&] {
    if (++polls == 3) h.interrupt();
  };
  h.setUi(ui);
  out.str("");
  EXPECT_FALSE(h.runMacro("V_Loop"));
  EXPECT_NE(out.str().find("Discription =  Script interrupted"), std::string::npos) << out.str();
  h.resetCode();
  out.str("");
  EXPECT_FALSE(h.runMacro("V_Deep"));
  EXPECT_NE(out.str().find("Discription =  Out of stack space"), std::string::npos) << out.str();
  h.resetCode();
  out.str("");
  host->addScriptText("Sub T_\r\nLikeString \"a\"\r\nEnd Sub\r\n", "t");
  h.runMacro("T_");
  EXPECT_NE(out.str().find("Wrong number of arguments"), std::string::npos) << out.str();
  EXPECT_EQ(workspace.activeDocument()->text(), kProgram);
}

}  // namespace
}  // namespace lathwick

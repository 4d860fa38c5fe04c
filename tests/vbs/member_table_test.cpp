// Host objects built from a member table: lookup by name in any case, the Get/Let pair of a
// property, arity checks, the host errors and the members as global names.
#include <gtest/gtest.h>

#include "extend/vbscript/member_table.h"

using namespace lathwick::vbs;

namespace {

struct Machine {
  std::string* scheme;
  std::vector<std::string>* calls;
};

constexpr MemberRow<Machine> kMachineMembers[] = {
    {"Scheme", MemberKind::Get, 0, 0, [](Machine& m, HostArgs&) { return Variant::str(*m.scheme); }},
    {"Scheme", MemberKind::Let, 0, 0,
     [](Machine& m, HostArgs& a) {
       if (!a.back().isString()) raiseTypeMismatch();
       *m.scheme = a.back().strValue();
       return Variant();
     }},
    {"Colorize", MemberKind::Method, 0, 0,
     [](Machine& m, HostArgs&) {
       m.calls->push_back("Colorize");
       return Variant();
     }},
    {"Pad", MemberKind::Method, 1, 2,
     [](Machine&, HostArgs& a) {
       const size_t width = a.size() > 1 ? static_cast<size_t>(a[1].intValue()) : 4;
       const std::string s = a[0].strValue();
       return Variant::str(std::string(s.size() < width ? width - s.size() : 0, '0') + s);
     }},
};

struct MemberTable : ::testing::Test {
  Engine engine;
  std::string scheme = "Fanuc";
  std::vector<std::string> calls;
  void SetUp() override {
    addTableObject(engine, "Application", "Application", kMachineMembers, Machine{&scheme, &calls});
  }
  // The error number a piece of code stops with, 0 when it runs through.
  int errorOf(const std::string& code) {
    engine.clearError();
    return engine.addCode(code) ? 0 : engine.lastError()->number;
  }
};

TEST_F(MemberTable, MembersAreObjectMembersAndGlobalNamesInAnyCase) {
  ASSERT_TRUE(engine.addCode("Application.scheme = \"Haas\"\ncolorize\nApplication.COLORIZE\n"
                             "Function R()\nR = Scheme & \"|\" & Pad(\"7\") & \"|\" & Application.Pad(\"7\", 2) & \"|\" & TypeName(Application)\nEnd Function"));
  EXPECT_EQ(scheme, "Haas");
  EXPECT_EQ(calls.size(), 2u);
  auto r = engine.run("R");
  ASSERT_TRUE(r);
  EXPECT_EQ(r->strValue(), "Haas|0007|07|Application");
  ASSERT_TRUE(engine.addCode("Scheme = \"Mazak\""));
  EXPECT_EQ(scheme, "Mazak");
}

TEST_F(MemberTable, HostErrorsHaveTheirNumbersAndTexts) {
  EXPECT_EQ(errorOf("Application.Nope"), 438);
  EXPECT_EQ(errorOf("x = Pad()"), 450);
  EXPECT_EQ(errorOf("x = Pad(\"1\", 2, 3)"), 450);
  EXPECT_EQ(errorOf("Application.Colorize 1"), 450);
  EXPECT_EQ(errorOf("Application.Colorize = 1"), 501);  // a method cannot be assigned
  EXPECT_EQ(errorOf("Application.Scheme = 5"), 13);
  EXPECT_EQ(engine.lastError()->description, "Type mismatch");
  EXPECT_EQ(scheme, "Fanuc");  // the failed assignment changed nothing
  EXPECT_EQ(errorOf("On Error Resume Next\nApplication.Nope\nIf Err.Description <> \"Object doesn't support "
                    "this property or method\" Then Err.Raise 5"),
            0);
}

}  // namespace

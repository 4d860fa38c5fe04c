// Runs every .vbs under scripts/ and checks the expectations written in it:
//   ' expect: TEXT          the next line the script prints (WriteLine, MsgBox) is TEXT
//   ' expect error N        the script stops with error N ...
//   ' expect error N at L:C ... reported at line L, column C (1-based)
//   ' input: TEXT           a line the script can read (InputBox, ReadLine)
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "script_runner.h"

namespace fs = std::filesystem;

namespace {

struct Expectations {
  std::vector<std::string> lines;
  bool wantError = false;
  int number = 0;
  int line = 0;
  int column = 0;
  std::string input;
};

Expectations expectationsOf(const std::string& text) {
  Expectations e;
  std::istringstream in(text);
  std::string line;
  while (std::getline(in, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    size_t p;
    if ((p = line.find("' expect: ")) != std::string::npos) {
      e.lines.push_back(line.substr(p + 10));
    } else if ((p = line.find("' expect:")) != std::string::npos && p + 9 == line.size()) {
      e.lines.emplace_back();
    } else if ((p = line.find("' expect error ")) != std::string::npos) {
      e.wantError = true;
      std::istringstream rest(line.substr(p + 15));
      rest >> e.number;
      std::string at;
      if (rest >> at && at == "at") {
        char colon;
        rest >> e.line >> colon >> e.column;
      }
    } else if ((p = line.find("' input: ")) != std::string::npos) {
      e.input += line.substr(p + 9) + "\n";
    }
  }
  return e;
}

std::vector<std::string> splitLines(const std::string& s) {
  std::vector<std::string> out;
  std::istringstream in(s);
  std::string line;
  while (std::getline(in, line)) out.push_back(line);
  return out;
}

std::vector<fs::path> scripts() {
  std::vector<fs::path> out;
  for (const auto& e : fs::recursive_directory_iterator(LATHWICK_VBS_SCRIPTS))
    if (e.path().extension() == ".vbs") out.push_back(e.path());
  std::sort(out.begin(), out.end());
  return out;
}

std::string caseName(const fs::path& p) {
  std::string n = fs::relative(p, LATHWICK_VBS_SCRIPTS).replace_extension().generic_string();
  for (char& c : n)
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  return n;
}

class Script : public ::testing::TestWithParam<fs::path> {};

TEST_P(Script, MeetsItsExpectations) {
  std::ifstream f(GetParam(), std::ios::binary);
  std::stringstream ss;
  ss << f.rdbuf();
  const std::string text = ss.str();
  const Expectations want = expectationsOf(text);
  ASSERT_TRUE(!want.lines.empty() || want.wantError) << "script states no expectation";
  const auto run = lathwick::vbs::test::runScript(text, want.input, GetParam().filename().string());
  EXPECT_EQ(splitLines(run.output), want.lines);
  if (want.wantError) {
    ASSERT_TRUE(run.error.has_value()) << "expected error " << want.number;
    EXPECT_EQ(run.error->number, want.number) << run.error->message();
    if (want.line) {
      EXPECT_EQ(run.error->line, want.line);
      EXPECT_EQ(run.error->column, want.column);
    }
  } else if (run.error) {
    ADD_FAILURE() << "line " << run.error->line << ":" << run.error->column << " " << run.error->source << " "
                  << run.error->number << ": " << run.error->message() << "\n    " << run.error->lineText;
  }
}

INSTANTIATE_TEST_SUITE_P(Vbs, Script, ::testing::ValuesIn(scripts()),
                         [](const ::testing::TestParamInfo<fs::path>& i) { return caseName(i.param); });

}  // namespace

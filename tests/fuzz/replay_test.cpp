// Replays every fuzz target's seed corpus and the inputs that once found a fault, through the
// same entry points the fuzzer calls, so a fixed fault stays fixed. No libFuzzer needed.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "fuzz_targets.h"

namespace {

namespace fs = std::filesystem;
using lathwick::fuzz::Target;

struct NamedTarget {
  const char* name;  // the folder under corpus/ and regressions/
  Target run;
  const char* moreSeeds = nullptr;  // a folder of tests/ whose files (at any depth) seed it too
};

const NamedTarget kTargets[] = {
    {"rtf_reader", lathwick::fuzz::rtfReader},
    {"macro_engine", lathwick::fuzz::macroEngine, "vbs/scripts"},  // the language's own test scripts
    {"colorizer", lathwick::fuzz::colorizer},
    {"passes", lathwick::fuzz::passes},
    {"scheme_data_file", lathwick::fuzz::schemeDataFile},
    {"send_to_file", lathwick::fuzz::sendToFile},
    {"easy_text_file", lathwick::fuzz::easyTextFile},
    {"motion_model", lathwick::fuzz::motionModel},
};

// The test's name says which target; gtest prints the parameter with it.
void PrintTo(const NamedTarget& target, std::ostream* os) { *os << target.name; }

std::vector<fs::path> inputsUnder(const fs::path& folder) {
  std::vector<fs::path> files;
  if (fs::is_directory(folder))
    for (const auto& entry : fs::recursive_directory_iterator(folder))
      if (entry.is_regular_file()) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  return files;
}

// Runs the target on each file; a failed check or an escaping exception names the file.
size_t replay(const NamedTarget& target, const fs::path& folder) {
  const auto files = inputsUnder(folder);
  for (const auto& file : files) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    try {
      EXPECT_EQ(target.run(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()), 0) << file;
    } catch (const std::exception& e) {
      ADD_FAILURE() << file << ": " << e.what();
    }
  }
  return files.size();
}

class FuzzReplay : public ::testing::TestWithParam<NamedTarget> {};

TEST_P(FuzzReplay, SeedCorpusAndRegressionsRunClean) {
  const fs::path root = LATHWICK_FUZZ_DIR;
  EXPECT_GT(replay(GetParam(), root / "corpus" / GetParam().name), 0u) << "no seed corpus";
  replay(GetParam(), root / "regressions" / GetParam().name);
  if (GetParam().moreSeeds) {
    EXPECT_GT(replay(GetParam(), root.parent_path() / GetParam().moreSeeds), 0u);
  }
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzReplay, ::testing::ValuesIn(kTargets),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace

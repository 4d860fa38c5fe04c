// The scheme data file: whole records only, the remembered selection, write, remove, failures.
#include <gtest/gtest.h>

#include "format/scheme_data_file.h"
#include "support/temp_dir.h"

using namespace lathwick;
using lathwick::test::readBytes;
using lathwick::test::TempDir;

namespace {

SchemeRecord named(const std::string& name) {
  SchemeRecord r;
  r.name = name;
  for (auto& set : r.sets)
    for (auto& s : set) s.fontName = "Courier New";
  return r;
}

std::string fileOf(const std::vector<std::string>& names) {
  std::string bytes;
  for (const auto& n : names) bytes += encodeSchemeRecord(named(n));
  return bytes;
}

}  // namespace

TEST(SchemeDataFile, ListReadsWholeRecordsAndSelectsTheRememberedOne) {
  TempDir dir;
  const std::string path = dir.write("Lathwick.dat", fileOf({"One", "  Two", "Three"}) + "partial rec");
  SchemeList list = loadSchemeList(path, 2);
  ASSERT_EQ(list.entries.size(), 3u);
  EXPECT_EQ(list.entries[1].name, "Two");
  EXPECT_EQ(list.entries[2].record, 3);
  EXPECT_EQ(list.selected, 1);
  EXPECT_FALSE(list.dataFileProblem);
  EXPECT_EQ(loadSchemeList(path, 4).selected, 0);  // beyond the count: the first
  EXPECT_EQ(loadSchemeList(path, 0).selected, 0);

  const std::string empty = dir.write("empty.dat", "");
  list = loadSchemeList(empty, 1);
  EXPECT_TRUE(list.entries.empty());
  EXPECT_EQ(list.selected, -1);
  EXPECT_FALSE(list.dataFileProblem);
}

TEST(SchemeDataFile, BadOrMissingFilesGiveTheDataFileProblem) {
  TempDir dir;
  SchemeList list = loadSchemeList(dir.file("missing.dat"), 1);
  EXPECT_TRUE(list.dataFileProblem);
  EXPECT_TRUE(list.entries.empty());

  // A good first record followed by garbage: the list keeps what was read.
  std::string bytes = fileOf({"Good"}) + std::string(kSchemeRecordSize, '\x01');
  const std::string path = dir.write("bad.dat", bytes);
  list = loadSchemeList(path, 1);
  EXPECT_TRUE(list.dataFileProblem);
  ASSERT_EQ(list.entries.size(), 1u);
  EXPECT_EQ(list.entries[0].name, "Good");

  EXPECT_EQ(readSchemeRecord(path, 1).name, "Good");
  EXPECT_THROW(readSchemeRecord(path, 2), DataFileProblem);
  EXPECT_THROW(readSchemeRecord(path, 3), DataFileProblem);
  EXPECT_THROW(readSchemeRecord(path, 0), DataFileProblem);
  const std::string shortFile = dir.write("short.dat", "too short");
  EXPECT_THROW(readSchemeRecord(shortFile, 1), DataFileProblem);
}

TEST(SchemeDataFile, WriteReplacesOrAppendsOneRecord) {
  TempDir dir;
  const std::string path = dir.write("Lathwick.dat", fileOf({"One", "Two"}));
  writeSchemeRecord(path, 2, named("Second"));
  writeSchemeRecord(path, 3, named("Third"));
  EXPECT_THROW(writeSchemeRecord(path, 5, named("Gap")), DataFileProblem);
  EXPECT_EQ(readBytes(path), fileOf({"One", "Second", "Third"}));
  const std::string fresh = dir.file("new.dat");
  writeSchemeRecord(fresh, 1, named("First"));
  EXPECT_EQ(readBytes(fresh), fileOf({"First"}));
}

TEST(SchemeDataFile, RemoveCopiesTheOthersInOrderThroughTheTempFile) {
  TempDir dir;
  const std::string path = dir.write("Lathwick.dat", fileOf({"A", "B", "C"}));
  removeSchemeRecord(path, dir.file("TEMP1.TXT"), 2);
  EXPECT_EQ(readBytes(path), fileOf({"A", "C"}));
  EXPECT_FALSE(std::filesystem::exists(dir.file("TEMP1.TXT")));

  // The temporary file cannot be made: nothing changes.
  EXPECT_THROW(removeSchemeRecord(path, dir.file("no/such/folder/TEMP1.TXT"), 1), DataFileProblem);
  EXPECT_EQ(readBytes(path), fileOf({"A", "C"}));

  removeSchemeRecord(path, dir.file("TEMP1.TXT"), 1);
  removeSchemeRecord(path, dir.file("TEMP1.TXT"), 1);
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(std::filesystem::file_size(path), 0u);
  EXPECT_THROW(removeSchemeRecord(dir.file("gone.dat"), dir.file("TEMP1.TXT"), 1), DataFileProblem);
}

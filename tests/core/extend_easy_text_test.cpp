// Easy-text category files: the count record and quoted name/text records with multi-line
// texts, double quotes stored as character 127, empty files, the listing of "*.dis" files,
// deletion, and broken or unwritable files losing nothing.
#include <gtest/gtest.h>

#include <filesystem>

#include "extend/easy_text.h"
#include "support/temp_dir.h"
#include "write_failure.h"

using namespace lathwick;
using namespace lathwick::extend;
using lathwick::test::readBytes;
using lathwick::test::TempDir;
using namespace std::string_literals;

namespace {

TEST(EasyTextFile, QuotesCommasAndLineBreaksInsideTextsSurviveByteForByte) {
  TempDir dir;
  const std::vector<Snippet> snippets{
      {"Tool change", "T1 M06\r\nG43 H1 Z25.\r\n"},
      {"Note, with comma", "(CHECK \"PART ZERO\", THEN) M00"},
      {"Empty", ""},
      {"Say \"hi\"", "\r\n\r\n"},
  };
  writeCategory(dir.file("Mill.dis"), snippets);
  EXPECT_EQ(readBytes(dir.file("Mill.dis")),
            "4\r\n"
            "\"Tool change\",\"T1 M06\r\nG43 H1 Z25.\r\n\"\r\n"
            "\"Note, with comma\",\"(CHECK \x7fPART ZERO\x7f, THEN) M00\"\r\n"
            "\"Empty\",\"\"\r\n"
            "\"Say \x7fhi\x7f\",\"\r\n\r\n\"\r\n");
  EXPECT_EQ(readCategory(dir.file("Mill.dis")), snippets);
}

TEST(EasyTextCategory, AnEmptyFileIsAnEmptyListAndANewSnippetWritesCountOne) {
  TempDir dir;
  dir.write("Empty.dis", "");
  CategoryList list(dir.str());  // no trailing separator: one is added
  EXPECT_EQ(list.DatLocation(), dir.folder());
  ASSERT_EQ(list.load("Empty.dis"), std::nullopt);
  EXPECT_EQ(list.count(), 0);
  const int p = list.append("Safe start");
  EXPECT_EQ(readBytes(dir.file("Empty.dis")), "");  // a new name alone writes nothing yet
  ASSERT_EQ(list.store(p, "G17 G40 G80"), std::nullopt);
  EXPECT_EQ(readBytes(dir.file("Empty.dis")), "1\r\n\"Safe start\",\"G17 G40 G80\"\r\n");
}

TEST(EasyTextCategory, DeletedSnippetsVanishFromTheFileAndTheOthersKeepTheirOrder) {
  TempDir dir;
  writeCategory(dir.file("Lathe.dis"), {{"A", "1"}, {"B", "2"}, {"C", "3"}});
  CategoryList list(dir.folder());
  ASSERT_EQ(list.load("Lathe.dis"), std::nullopt);
  ASSERT_EQ(list.remove(1), std::nullopt);
  EXPECT_EQ(list.names(), (std::vector<std::string>{"A", "C"}));
  EXPECT_EQ(list.text(1), "3");
  ASSERT_EQ(list.store(1, "33"), std::nullopt);
  EXPECT_EQ(readCategory(dir.file("Lathe.dis")), (std::vector<Snippet>{{"A", "1"}, {"C", "33"}}));
  EXPECT_EQ(list.positionOf("B"), -1);
}

TEST(EasyTextCategory, BrokenFilesGiveTheReadMessageAndAreKeptBeforeTheyAreWrittenOver) {
  const std::pair<const char*, std::string> broken[] = {
      {"truncated", "2\r\n\"A\",\"1\"\r\n\"B\",\"tex"},
      {"count larger than the records", "3\r\n\"A\",\"1\"\r\n"},
      {"count smaller than the records", "1\r\n\"A\",\"1\"\r\n\"B\",\"2\"\r\n"},
      {"unbalanced quotes", "1\r\n\"A\",\"1\r\n"},
      {"binary bytes", "1\r\n\"A\",\"\0\0\x02\"\r\n"s},
      {"count not a number", "one\r\n\"A\",\"1\"\r\n"},
  };
  for (const auto& [what, bytes] : broken) {
    SCOPED_TRACE(what);
    TempDir dir;
    dir.write("Bad.dis", bytes);
    CategoryList list(dir.folder());
    const auto message = list.load("Bad.dis");
    ASSERT_TRUE(message);
    EXPECT_NE(message->find("\r\nUnable to read easy text file Bad.dis."), std::string::npos) << *message;
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(readBytes(dir.file("Bad.dis")), bytes);
    ASSERT_EQ(list.store(list.append("New"), "x"), std::nullopt);
    EXPECT_EQ(readBytes(dir.file("Bad.dis.bak")), bytes);
  }
}

TEST(EasyTextCategory, AFailedWriteLeavesTheOldFileWhole) {
  TempDir dir;
  writeCategory(dir.file("Mill.dis"), {{"A", "1"}});
  const std::string before = readBytes(dir.file("Mill.dis"));
  CategoryList list(dir.folder());
  ASSERT_EQ(list.load("Mill.dis"), std::nullopt);
  std::optional<std::string> message;
  {
    lathwick::test::FailingWrites failing;
    message = list.store(0, "a much longer text than before");
  }
  ASSERT_TRUE(message);
  EXPECT_NE(message->find("Unable to save easy text file Mill.dis."), std::string::npos);
  EXPECT_EQ(readBytes(dir.file("Mill.dis")), before);
}

TEST(EasyTextCategory, CategoriesAreTheDisFilesOfTheFolderSortedByName) {
  TempDir dir;
  for (const char* name : {"mill.dis", "Lathe.DIS", "Probe.dis", "notes.txt", "Mill.dis.bak", ".hidden.dis"})
    dir.write(name, "");
  std::filesystem::create_directory(dir.path() / "folder.dis");
  EXPECT_EQ(listCategories(dir.folder()), (std::vector<std::string>{"Lathe.DIS", "mill.dis", "Probe.dis"}));
  EXPECT_TRUE(listCategories(dir.file("missing")).empty());
}

TEST(EasyTextCategory, TheBundledCategoriesReadWhole) {
  for (const char* name : {"Mill.dis", "Lathe.dis"}) {
    SCOPED_TRACE(name);
    const auto snippets = readCategory(std::string(LATHWICK_APP_DIR) + "/" + name);
    EXPECT_GE(snippets.size(), 8u);
    for (const Snippet& s : snippets) EXPECT_FALSE(s.text.empty()) << s.name;
  }
}

}  // namespace

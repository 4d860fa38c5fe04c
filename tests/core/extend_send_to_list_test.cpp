// The send-to list file: its exact bytes, the second number carried along, the editing checks
// in the dialog's order, moves that reach the file only when written, and files that cannot be
// read or written losing nothing.
#include <gtest/gtest.h>

#include "extend/send_to_list.h"
#include "extend/shell_words.h"
#include "platform/file_system.h"
#include "support/temp_dir.h"
#include "write_failure.h"

using namespace lathwick;
using namespace lathwick::extend;
using lathwick::test::readBytes;
using lathwick::test::TempDir;
using namespace std::string_literals;

namespace {

class SendToListTest : public ::testing::Test {
 protected:
  TempDir dir;
  std::string program = dir.write("comm.sh", "#!/bin/sh\n");
  std::string dat = dir.file("SendTo.dat");
};

TEST_F(SendToListTest, WritesCountSecondNumberAndQuotedRecordsWithCrLfAndReadsThemBack) {
  const SendToFile file{{{"DNC, left machine", "/opt/dnc/send", "-p 'ttyS0' -b 9600"},
                         {"Empty parameters", "/usr/bin/less", ""},
                         {"Two\r\nlines", "/bin/x", "a,b"}},
                        -7};
  writeSendToFile(dat, file);
  EXPECT_EQ(readBytes(dat),
            "3,-7\r\n"
            "\"DNC, left machine\",\"/opt/dnc/send\",\"-p 'ttyS0' -b 9600\"\r\n"
            "\"Empty parameters\",\"/usr/bin/less\",\"\"\r\n"
            "\"Two\r\nlines\",\"/bin/x\",\"a,b\"\r\n");
  const SendToFile back = readSendToFile(dat);
  EXPECT_EQ(back.entries, file.entries);
  EXPECT_EQ(back.second, -7);
}

TEST_F(SendToListTest, TheSecondNumberSurvivesEveryEditAndAMissingFileIsAnEmptyList) {
  SendToList list(dat);
  EXPECT_EQ(list.read(), std::nullopt);
  EXPECT_EQ(list.count(), 0);
  dir.write("SendTo.dat", "0, 4711 \r\n");  // blanks around numbers are read as the runtime reads them
  EXPECT_EQ(list.read(), std::nullopt);
  EXPECT_EQ(list.add({"A", program, ""}), std::nullopt);
  EXPECT_EQ(list.add({"B", program, "-x"}), std::nullopt);
  EXPECT_EQ(list.remove(0), std::nullopt);
  EXPECT_EQ(readBytes(dat), "1,4711\r\n\"B\",\"" + program + "\",\"-x\"\r\n");
}

TEST_F(SendToListTest, AddAndSaveCheckInTheDialogsOrderWithItsMessages) {
  SendToList list(dat);
  list.read();
  EXPECT_EQ(list.add({"  ", program, ""}), kTitleAndPathRequired);
  EXPECT_EQ(list.add({"T", "   ", ""}), kTitleAndPathRequired);
  EXPECT_EQ(list.add({"", "/no/such/program", ""}), kTitleAndPathRequired);  // emptiness first
  EXPECT_EQ(list.add({"T", "/no/such/program", ""}), kProgramMissing);
  EXPECT_EQ(list.add({"T", dir.str(), ""}), kProgramMissing);  // a folder is not a program
  EXPECT_EQ(list.add({"T", program, "--title \"x\""}), kNoDoubleQuotes);
  EXPECT_FALSE(isRegularFile(dat));  // nothing was written
  ASSERT_EQ(list.add({"Comm", program, ""}), std::nullopt);
  EXPECT_EQ(list.add({"Comm", "/no/such/program", ""}), kProgramMissing);  // the program is checked first
  EXPECT_EQ(list.add({"Comm", program, "-b"}), kTitleInUse);
  EXPECT_EQ(list.add({"Comm 2", program, "-b"}), std::nullopt);  // the same program twice is fine
  // Saving an entry under its own title is no clash; under another's it is.
  EXPECT_EQ(list.save(1, {"Comm 2", program, "-c"}), std::nullopt);
  EXPECT_EQ(list.save(1, {"Comm", program, "-c"}), kTitleInUse);
  EXPECT_EQ(list.titles(), (std::vector<std::string>{"Comm", "Comm 2"}));
  EXPECT_EQ(list.ShellParameters(1), "-c");
}

TEST_F(SendToListTest, MovesChangeTheFileOnlyWhenWrittenAndKeepEachEntrysIndex) {
  dir.write("SendTo.dat", "3,0\r\n\"A\",\"/a\",\"\"\r\n\"B\",\"/b\",\"\"\r\n\"C\",\"/c\",\"\"\r\n");
  const std::string before = readBytes(dat);
  SendToList list(dat);
  ASSERT_EQ(list.read(), std::nullopt);
  EXPECT_FALSE(list.move(0, -1));
  EXPECT_FALSE(list.move(2, 1));
  EXPECT_TRUE(list.move(2, -1));
  EXPECT_EQ(list.titles(), (std::vector<std::string>{"A", "C", "B"}));
  EXPECT_EQ(list.itemData(1), 2);
  EXPECT_EQ(list.ShellProgram(2), "/c");  // the arrays do not move
  EXPECT_EQ(readBytes(dat), before);
  ASSERT_EQ(list.write(), std::nullopt);
  EXPECT_EQ(readBytes(dat), "3,0\r\n\"A\",\"/a\",\"\"\r\n\"C\",\"/c\",\"\"\r\n\"B\",\"/b\",\"\"\r\n");
  EXPECT_EQ(list.itemData(1), 1);  // read back: indexes follow the file again
}

TEST_F(SendToListTest, AnUnreadableFileGivesTheReadMessageKeepsTheListAndIsKeptAsBak) {
  const std::pair<const char*, std::string> broken[] = {
      {"truncated", "2,0\r\n\"A\",\"/a\",\"\"\r\n\"B\",\"/b"},
      {"count larger than the records", "3,0\r\n\"A\",\"/a\",\"\"\r\n\"B\",\"/b\",\"\"\r\n"},
      {"count smaller than the records", "1,0\r\n\"A\",\"/a\",\"\"\r\n\"B\",\"/b\",\"\"\r\n"},
      {"unbalanced quotes", "1,0\r\n\"A\",\"/a,\"\"\r\n"},
      {"quote inside a field", "1,0\r\n\"A \"big\" one\",\"/a\",\"\"\r\n"},
      {"binary bytes", "1,0\r\n\"A\",\"/a\0\x01\",\"\"\r\n"s},
      {"count not a number", "x,0\r\n"},
      {"count beyond 16 bits", "40000,0\r\n"},
      {"negative count", "-1,0\r\n"},
      {"second number missing", "0\r\n"},
  };
  for (const auto& [what, bytes] : broken) {
    SCOPED_TRACE(what);
    dir.write("SendTo.dat", "1,9\r\n\"Kept\",\"" + program + "\",\"\"\r\n");
    SendToList list(dat);
    ASSERT_EQ(list.read(), std::nullopt);
    dir.write("SendTo.dat", bytes);
    EXPECT_EQ(list.read(), kSendToReadFailed);
    EXPECT_EQ(list.titles(), std::vector<std::string>{"Kept"});
    EXPECT_EQ(readBytes(dat), bytes);
    // The next save writes the list, but the file it could not read is kept beside it.
    ASSERT_EQ(list.add({"New", program, ""}), std::nullopt);
    EXPECT_EQ(readBytes(dat + ".bak"), bytes);
    EXPECT_EQ(list.titles(), (std::vector<std::string>{"Kept", "New"}));
  }
}

TEST_F(SendToListTest, AFailedWriteLeavesTheOldFileWholeAndTheListAsItWas) {
  dir.write("SendTo.dat", "1,0\r\n\"A\",\"" + program + "\",\"\"\r\n");
  const std::string before = readBytes(dat);
  SendToList list(dat);
  ASSERT_EQ(list.read(), std::nullopt);
  {
    lathwick::test::FailingWrites failing;
    EXPECT_EQ(list.add({"B", program, ""}), kSendToWriteFailed);
  }
  EXPECT_EQ(readBytes(dat), before);
  EXPECT_EQ(list.titles(), std::vector<std::string>{"A"});
}

TEST(SendCommand, ParametersSplitAsAShellSplitsWordsAndTheFileNameStaysOneWord) {
  const auto command = buildSendCommand({"T", " /usr/bin/dnc ", "-p  'COM 1'\t--baud=9600 a\\ b \"x y\""},
                                        "/home/shop/my part.nc");
  ASSERT_TRUE(command);
  EXPECT_EQ(command->program, "/usr/bin/dnc");
  EXPECT_EQ(command->arguments,
            (std::vector<std::string>{"-p", "COM 1", "--baud=9600", "a b", "x y", "/home/shop/my part.nc"}));
  EXPECT_EQ(command->workingFolder, "/home/shop/");
  EXPECT_EQ(buildSendCommand({"T", "/p", ""}, "f.nc")->arguments, std::vector<std::string>{"f.nc"});
  EXPECT_FALSE(buildSendCommand({"T", "/p", "-t 'open"}, "f.nc"));
  EXPECT_EQ(sendFailedMessage("File not found"),
            "File not found\r\nUnable to shell this file.\r\nPlease check path and parameters in send-to list.");
}

TEST(ShellWords, QuotesBackslashesAndEmptyWords) {
  EXPECT_EQ(splitShellWords("  "), std::vector<std::string>{});
  EXPECT_EQ(splitShellWords("''"), std::vector<std::string>{""});
  EXPECT_EQ(splitShellWords("a'b c'd"), std::vector<std::string>{"ab cd"});
  EXPECT_EQ(splitShellWords(R"("a\"b\\c\d")"), std::vector<std::string>{R"(a"b\c\d)"});
  EXPECT_EQ(splitShellWords("'$HOME' *.nc"), (std::vector<std::string>{"$HOME", "*.nc"}));  // nothing expands
  EXPECT_FALSE(splitShellWords("trailing\\"));
  EXPECT_FALSE(splitShellWords("\"open"));
}

}  // namespace

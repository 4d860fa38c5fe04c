// lathwick-cli sendto and snippets: the list and category files edited from scripts, with the
// dialogs' checks and messages, and broken files refused untouched.
#include <gtest/gtest.h>

#include "support/cli_runner.h"

using lathwick::test::readBytes;
using lathwick::test::CliResult;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

TEST(SendToCli, AddListMoveAndRemoveEditTheFileInItsOrder) {
  TempDir dir;
  const std::string dat = dir.file("SendTo.dat");
  const std::string prog = dir.write("dnc", "#!/bin/sh\n");
  EXPECT_EQ(runCli({"sendto", "--file", dat, "add", "DNC, mill", prog, "-p 'COM 1'"}).exitCode, 0);
  EXPECT_EQ(runCli({"sendto", "--file", dat, "add", "Backplot", prog}).exitCode, 0);
  EXPECT_EQ(runCli({"sendto", "--file", dat, "list"}).out,
            "DNC, mill\t" + prog + "\t-p 'COM 1'\nBackplot\t" + prog + "\t\n");
  EXPECT_EQ(runCli({"sendto", "--file", dat, "move", "Backplot", "up"}).exitCode, 0);
  EXPECT_EQ(readBytes(dat), "2,0\r\n\"Backplot\",\"" + prog + "\",\"\"\r\n\"DNC, mill\",\"" + prog + "\",\"-p 'COM 1'\"\r\n");
  EXPECT_EQ(runCli({"sendto", "--file", dat, "move", "Backplot", "up"}).exitCode, 0);  // already first
  EXPECT_EQ(runCli({"sendto", "--file", dat, "remove", "DNC, mill"}).exitCode, 0);
  EXPECT_EQ(runCli({"sendto", "--file", dat, "list"}).out, "Backplot\t" + prog + "\t\n");
}

TEST(SendToCli, RefusalsCarryTheDialogsMessagesAndLeaveTheFileAlone) {
  TempDir dir;
  const std::string prog = dir.write("dnc", "");
  const std::string dat = dir.write("SendTo.dat", "1,3\r\n\"DNC\",\"" + prog + "\",\"\"\r\n");
  const std::string before = readBytes(dat);
  EXPECT_EQ(runCli({"sendto", "--file", dat, "add", "DNC", prog}), (CliResult{1, "", "Title is already in use.\n"}));
  EXPECT_EQ(runCli({"sendto", "--file", dat, "add", "New", dir.file("missing")}),
            (CliResult{1, "", "Specified program does not exist.\nPlease check path and file name.\n"}));
  EXPECT_EQ(runCli({"sendto", "--file", dat, "add", " ", prog}).err,
            "The title and full path ar required.\nPlease enter information.\n");
  EXPECT_EQ(runCli({"sendto", "--file", dat, "remove", "Nope"}).exitCode, 1);
  EXPECT_EQ(readBytes(dat), before);

  dir.write("SendTo.dat", "2,0\r\n\"DNC\",\"/x\",\"\"\r\n");  // one record short
  EXPECT_EQ(runCli({"sendto", "--file", dat, "add", "New", prog}), (CliResult{1, "", "Unable to read SendTo dat file. \n"}));
  EXPECT_EQ(readBytes(dat), "2,0\r\n\"DNC\",\"/x\",\"\"\r\n");
}

TEST(SendToCli, UsageErrorsExitTwo) {
  for (const auto& args : std::vector<std::vector<std::string>>{
           {"sendto"}, {"sendto", "list", "extra"}, {"sendto", "move", "A", "sideways"}, {"sendto", "add", "A"},
           {"sendto", "--bogus", "list"}, {"snippets", "show", "Mill.dis"}, {"snippets", "frobnicate"}}) {
    EXPECT_EQ(runCli(args).exitCode, 2) << args.back();
  }
}

TEST(SnippetsCli, ListShowAddAndDeleteAsTheDialogDoes) {
  TempDir dir;
  dir.write("Mill.dis", "1\r\n\"Start\",\"G17 G40\r\n(SAY \x7fHI\x7f)\"\r\n");
  dir.write("Lathe.dis", "");
  dir.write("readme.txt", "");
  const std::string folder = dir.str();
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "list"}).out, "Lathe.dis\nMill.dis\n");
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "list", "Mill.dis"}).out, "Start\n");
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "show", "Mill", "Start"}).out, "G17 G40\r\n(SAY \"HI\")");

  const std::string text = dir.write("end.txt", "M30\r\n(\"END\", ALL)\r\n%");
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "add", "Lathe.dis", "End", text}).exitCode, 0);
  EXPECT_EQ(readBytes(dir.file("Lathe.dis")), "1\r\n\"End\",\"M30\r\n(\x7f" "END\x7f, ALL)\r\n%\"\r\n");
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "show", "Lathe.dis", "End"}).out, readBytes(text));
  // Adding an existing name replaces its text; a new category file is made when asked for.
  const std::string other = dir.write("other.txt", "M02");
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "add", "Lathe.dis", "End", other}).exitCode, 0);
  EXPECT_EQ(readBytes(dir.file("Lathe.dis")), "1\r\n\"End\",\"M02\"\r\n");
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "add", "Probe", "Touch", other}).exitCode, 0);
  EXPECT_EQ(readBytes(dir.file("Probe.dis")), "1\r\n\"Touch\",\"M02\"\r\n");

  EXPECT_EQ(runCli({"snippets", "--folder", folder, "delete", "Mill.dis", "Start"}).exitCode, 0);
  EXPECT_EQ(readBytes(dir.file("Mill.dis")), "0\r\n");
  EXPECT_EQ(runCli({"snippets", "--folder", folder, "show", "Mill.dis", "Start"}),
            (CliResult{1, "", "No snippet named \"Start\" in Mill.dis.\n"}));
}

TEST(SnippetsCli, ABrokenCategoryIsRefusedUntouched) {
  TempDir dir;
  const std::string bad = dir.write("Bad.dis", "2\r\n\"A\",\"1\"\r\n");
  const std::string text = dir.write("t.txt", "x");
  EXPECT_EQ(runCli({"snippets", "--folder", dir.str(), "add", "Bad.dis", "B", text}),
            (CliResult{1, "", "Input past end of file\nUnable to read easy text file Bad.dis.\n"}));
  EXPECT_EQ(readBytes(bad), "2\r\n\"A\",\"1\"\r\n");
}

TEST(SnippetsCli, TheBundledFolderIsTheDefault) {
  const auto r = runCli({"snippets", "list"});
  EXPECT_EQ(r.exitCode, 0);
  EXPECT_NE(r.out.find("Mill.dis\n"), std::string::npos);
  EXPECT_NE(r.out.find("Lathe.dis\n"), std::string::npos);
  EXPECT_EQ(runCli({"snippets", "show", "Mill.dis", "Program end"}).exitCode, 0);
  EXPECT_GE(runCli({"sendto", "list"}).out.size(), 10u);
}

}  // namespace

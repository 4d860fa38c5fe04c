// A document's file written, replaced or deleted by another program: told apart from the file as
// the editor last knew it, and the texts the user is shown.
#include <gtest/gtest.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <filesystem>

#include "document/disk_change.h"
#include "platform/atomic_file.h"
#include "support/temp_dir.h"

using namespace lathwick;
using lathwick::test::TempDir;

TEST(DiskChange, StampFollowsWritesReplacementsAndDeletion) {
  TempDir dir;
  const std::string path = dir.write("O1000.NC", "G00 X0\r\n");
  const FileStamp loaded = fileStampOf(path);
  ASSERT_TRUE(loaded.exists);
  EXPECT_EQ(loaded.size, 8);
  EXPECT_EQ(judgeDiskChange(loaded, fileStampOf(path)), DiskChange::None);

  // Posted again with the same length and the same time stamp, through a rename: another file.
  writeFileAtomically(path, "G00 X1\r\n");
  struct stat st {};
  ::stat(path.c_str(), &st);
  const timespec times[2] = {st.st_atim, {loaded.modifiedNs / 1'000'000'000, loaded.modifiedNs % 1'000'000'000}};
  ::utimensat(AT_FDCWD, path.c_str(), times, 0);
  const FileStamp replaced = fileStampOf(path);
  EXPECT_EQ(replaced.modifiedNs, loaded.modifiedNs);
  EXPECT_EQ(judgeDiskChange(loaded, replaced), DiskChange::Changed);

  // Written in place, longer.
  dir.write("O1000.NC", "G00 X1\r\nG01 Z-1\r\n");
  EXPECT_EQ(judgeDiskChange(replaced, fileStampOf(path)), DiskChange::Changed);

  const FileStamp before = fileStampOf(path);
  std::filesystem::remove(path);
  const FileStamp gone = fileStampOf(path);
  EXPECT_FALSE(gone.exists);
  EXPECT_EQ(judgeDiskChange(before, gone), DiskChange::Deleted);
  EXPECT_EQ(judgeDiskChange(gone, fileStampOf(path)), DiskChange::None) << "told once";
  dir.write("O1000.NC", "back");
  EXPECT_EQ(judgeDiskChange(gone, fileStampOf(path)), DiskChange::Changed);
  EXPECT_FALSE(fileStampOf(dir.str()).exists) << "a folder is not a file";
}

TEST(DiskChange, TheQuestionNamesTheFileAndAnyUnsavedChanges) {
  const std::string plain = reloadQuestion("/cam/O1000.NC", false);
  EXPECT_NE(plain.find("/cam/O1000.NC"), std::string::npos);
  EXPECT_NE(plain.find("Reload"), std::string::npos);
  EXPECT_EQ(plain.find("not saved"), std::string::npos);
  EXPECT_NE(reloadQuestion("/cam/O1000.NC", true).find("changes that are not saved"), std::string::npos);
  EXPECT_NE(deletedNotice("/cam/O1000.NC").find("/cam/O1000.NC"), std::string::npos);
}

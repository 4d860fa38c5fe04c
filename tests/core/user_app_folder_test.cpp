// The per-user application folder: when the application folder cannot be written (an
// installed program), each user works in a copy under the XDG data home that keeps their edits.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/file_system.h"
#include "platform/install_layout.h"
#include "platform/app_folder.h"
#include "startup_host.h"

namespace {
namespace fs = std::filesystem;
using lathwick::test::TempDir;

// Makes a folder read-only for the length of a test (and writable again so it can be removed).
struct ReadOnly {
  explicit ReadOnly(const TempDir& d) : path(d.path()) { set(fs::perms::owner_read | fs::perms::owner_exec); }
  ~ReadOnly() { set(fs::perms::owner_all); }
  void set(fs::perms p) const {
    for (const auto& e : fs::recursive_directory_iterator(path))
      if (e.is_directory()) fs::permissions(e.path(), p);
    fs::permissions(path, p);
  }
  fs::path path;
};

// An installed data folder as the install step lays it out.
void fillLikeInstalled(const TempDir& d) {
  d.write("Lathwick.dat", "schemes");
  d.write("SendTo.dat", "sendto");
  d.write("Mill.dis", "mill");
  d.write("Readme.txt", "read me");
  d.write("Script/main.vbs", "Sub LoadDoc\r\nEnd Sub\r\n");
  d.write("help/index.html", "<html></html>");
  d.write("samples/bracket.nc", "G00 X0\r\n");
}

using Host = lathwick::test::FakeStartupHost;

struct Machine {
  TempDir home, bin, installed, user;
  Machine() { fillLikeInstalled(installed); }
  Host host() const { return Host(home, bin.str(), installed.folder(), user.folder() + "lathwick/"); }
  std::string userFolder() const { return user.folder() + "lathwick/"; }
};
}  // namespace

TEST(UserAppFolder, FollowsTheXdgDataHomeThenTheHomeFolder) {
  EXPECT_EQ(lathwick::userAppFolder("/data/me", "/home/me"), "/data/me/lathwick/");
  EXPECT_EQ(lathwick::userAppFolder(nullptr, "/home/me"), "/home/me/.local/share/lathwick/");
  EXPECT_EQ(lathwick::userAppFolder("relative/path", "/home/me/"), "/home/me/.local/share/lathwick/");
  EXPECT_EQ(lathwick::userAppFolder("", ""), "");
  EXPECT_EQ(lathwick::installedDataFolder("/opt/cnc/bin"), "/opt/cnc/share/lathwick/");
}

TEST(UserAppFolder, AFolderWithoutWriteBitsIsReadOnlyEvenForTheAdministrator) {
  TempDir d;
  EXPECT_TRUE(lathwick::isWritableFolder(d.str()));
  {
    ReadOnly ro(d);
    EXPECT_FALSE(lathwick::isWritableFolder(d.str()));
  }
  EXPECT_FALSE(lathwick::isWritableFolder(d.file("missing")));
  EXPECT_FALSE(lathwick::isWritableFolder(d.write("file.txt", "x")));
}

TEST(UserAppFolder, FillCopiesTheDataFilesOnlyAndNeverReplacesTheUsersOwn) {
  TempDir from, to;
  fillLikeInstalled(from);
  from.write("TEMP2.TXT", "work file");
  from.write("lathwick", "an executable");
  from.write("CMakeFiles/x.txt", "build output");
  to.write("Script/main.vbs", "the user's macros");
  EXPECT_EQ(lathwick::fillAppFolder(from.folder(), to.folder()), 6);
  EXPECT_EQ(to.read("Lathwick.dat"), "schemes");
  EXPECT_EQ(to.read("samples/bracket.nc"), "G00 X0\r\n");
  EXPECT_EQ(to.read("Script/main.vbs"), "the user's macros");
  EXPECT_FALSE(fs::exists(to.file("TEMP2.TXT")));
  EXPECT_FALSE(fs::exists(to.file("lathwick")));
  EXPECT_FALSE(fs::exists(to.file("CMakeFiles")));
  // A later fill copies only what was added since.
  from.write("Lathe.dis", "lathe");
  EXPECT_EQ(lathwick::fillAppFolder(from.folder(), to.folder()), 1);
  EXPECT_EQ(lathwick::fillAppFolder(from.folder(), to.folder()), 0);
}

TEST(UserAppFolder, InstalledProgramWorksInTheUsersCopyFromTheFirstStart) {
  Machine m;
  Host host = m.host();
  ReadOnly ro(m.installed);
  const auto r = lathwick::runStartup(host);
  ASSERT_EQ(r.outcome, lathwick::StartupOutcome::Running);
  EXPECT_EQ(host.calls, (std::vector<std::string>{"chdir", "splash", "main", "setup"}));  // nothing reported
  EXPECT_EQ(r.values.AppFolder, m.userFolder());
  EXPECT_EQ(r.values.DataFilePath, m.userFolder() + "Lathwick.dat");
  EXPECT_EQ(r.values.UndoFile, m.userFolder() + "UNDO.RTF");
  EXPECT_EQ(host.store.get("Startup", "app_path"), m.userFolder());
  EXPECT_EQ(lathwick::test::readBytes(m.userFolder() + "Script/main.vbs"), "Sub LoadDoc\r\nEnd Sub\r\n");
}

TEST(UserAppFolder, LaterStartsKeepTheUsersFilesAndPickUpNewInstalledOnes) {
  Machine m;
  Host host = m.host();
  lathwick::runStartup(host);
  m.user.write("lathwick/Script/main.vbs", "edited");
  m.installed.write("Script/main.vbs", "newer installed");
  m.installed.write("Lathe.dis", "added by an upgrade");
  const auto r = lathwick::runStartup(host);
  EXPECT_EQ(r.values.AppFolder, m.userFolder());
  EXPECT_EQ(lathwick::test::readBytes(m.userFolder() + "Script/main.vbs"), "edited");
  EXPECT_EQ(lathwick::test::readBytes(m.userFolder() + "Lathe.dis"), "added by an upgrade");
}

TEST(UserAppFolder, AWritableFolderWithTheDataFileIsUsedAsItIs) {
  Machine m;
  m.bin.write("Lathwick.dat", "beside the executable");
  Host host = m.host();
  EXPECT_EQ(lathwick::runStartup(host).values.AppFolder, m.bin.folder());
  EXPECT_FALSE(fs::exists(m.userFolder()));
}

TEST(UserAppFolder, AReadOnlyStoredFolderIsCopiedLikeAnInstalledOne) {
  Machine m;
  TempDir shared;
  shared.write("Lathwick.dat", "the shop's schemes");
  Host host = m.host();
  host.store.save("Startup", "app_path", shared.folder());
  ReadOnly ro(shared);
  const auto r = lathwick::runStartup(host);
  EXPECT_EQ(r.values.AppFolder, m.userFolder());
  EXPECT_EQ(lathwick::test::readBytes(m.userFolder() + "Lathwick.dat"), "the shop's schemes");
}

TEST(UserAppFolder, WithoutAUserFolderTheReadOnlyFolderIsKept) {
  Machine m;
  Host host(m.home, m.bin.str(), m.installed.folder(), "");
  const auto r = lathwick::runStartup(host);
  EXPECT_EQ(r.outcome, lathwick::StartupOutcome::Running);
  EXPECT_EQ(r.values.AppFolder, m.installed.folder());
}

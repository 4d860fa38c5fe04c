// The recovery folder: each editor's session with its lock, the copies written and removed, and
// at the next start the documents of editors that ended without closing them, and only those.
#include <gtest/gtest.h>

#include <filesystem>

#include "document/recovery_store.h"
#include "platform/atomic_file.h"
#include "support/ended_process.h"
#include "support/temp_dir.h"

using namespace lathwick;
using lathwick::test::crashedEditor;
using lathwick::test::readBytes;
using lathwick::test::TempDir;
namespace fs = std::filesystem;

namespace {
RecoveryIndex indexFor(const std::string& path, std::int64_t time, RecoveredKind kind = RecoveredKind::Plain) {
  RecoveryIndex index;
  index.originalPath = path;
  index.caption = path.empty() ? "Untitled 1" : fs::path(path).filename().string();
  index.savedAt = time;
  index.kind = kind;
  return index;
}

std::size_t entriesIn(const std::string& folder) {
  std::size_t n = 0;
  for ([[maybe_unused]] const auto& e : fs::directory_iterator(folder)) ++n;
  return n;
}
}  // namespace

TEST(RecoveryRoot, StateHomeThenHome) {
  EXPECT_EQ(recoveryRoot("/xdg/state", "/home/u"), "/xdg/state/lathwick/recovery/");
  EXPECT_EQ(recoveryRoot(nullptr, "/home/u"), "/home/u/.local/state/lathwick/recovery/");
  EXPECT_EQ(recoveryRoot("", "/home/u/"), "/home/u/.local/state/lathwick/recovery/");
  EXPECT_EQ(recoveryRoot("relative", "/home/u"), "/home/u/.local/state/lathwick/recovery/");
  EXPECT_EQ(recoveryRoot(nullptr, nullptr), "");
}

TEST(RecoverySession, WritesPrivateCopiesAndRemovesThem) {
  TempDir dir;
  const std::string root = dir.folder() + "state/lathwick/recovery/";
  RecoverySession session(root);
  EXPECT_EQ(fs::path(session.folder()).parent_path().filename(), "session-" + std::to_string(::getpid()));
  EXPECT_EQ(fs::status(session.folder()).permissions() & fs::perms::all, fs::perms::owner_all);
  EXPECT_FALSE(session.hasDocuments());

  session.write(1, indexFor("/parts/a.nc", 100), "G01 X1\r\n");
  EXPECT_EQ(readBytes(session.textPathOf(1, RecoveredKind::Plain)), "G01 X1\r\n");
  const auto index = decodeRecoveryIndex(readBytes(session.indexPathOf(1)));
  ASSERT_TRUE(index);
  EXPECT_EQ(index->originalPath, "/parts/a.nc");
  EXPECT_EQ(index->textFile, "doc1.txt");
  EXPECT_TRUE(session.hasDocuments());

  // Saved since as rich text: the plain copy goes with the new one.
  session.write(1, indexFor("/parts/a.rtf", 101, RecoveredKind::Rich), "{\\rtf1 G01}");
  EXPECT_FALSE(fs::exists(session.textPathOf(1, RecoveredKind::Plain)));
  EXPECT_TRUE(fs::exists(session.textPathOf(1, RecoveredKind::Rich)));

  session.remove(1);
  EXPECT_FALSE(session.hasDocuments());
  EXPECT_EQ(entriesIn(session.folder()), 1u) << "only the lock is left";
}

TEST(RecoverySession, CleanExitKeepsOnlyWhatWasNeverClosed) {
  TempDir dir;
  std::string kept;
  {
    RecoverySession empty(dir.folder());
    const std::string folder = empty.folder();
    empty.close();
    EXPECT_FALSE(fs::exists(folder)) << "nothing left: the session goes whole";
  }
  RecoverySession session(dir.folder());
  session.write(2, indexFor("", 5), "unsaved");
  session.close();
  EXPECT_FALSE(fs::exists(session.folder() + "lock"));
  // Without its lock the session counts as ended, even though this process still runs.
  const auto offered = listRecoverable(dir.folder());
  ASSERT_EQ(offered.size(), 1u);
  EXPECT_EQ(readBytes(offered[0].textPath), "unsaved");
}

TEST(RecoveryListing, OffersEndedSessionsOnlyNewestFirst) {
  TempDir dir;
  RecoverySession mine(dir.folder());  // a running editor: never offered
  mine.write(1, indexFor("/parts/running.nc", 300), "mine");
  const ProcessIdentity crashed = crashedEditor();
  RecoverySession left(dir.folder(), crashed);
  left.write(1, indexFor("/parts/old.nc", 100), "old");
  left.write(2, indexFor("", 200), "newer");
  left.write(3, indexFor("/parts/damaged.nc", 250), "x");
  writeFileAtomically(left.indexPathOf(3), "not an index");
  writeFileAtomically(left.indexPathOf(4), encodeRecoveryIndex(indexFor("/parts/textless.nc", 260)));

  const auto offered = listRecoverable(dir.folder());
  ASSERT_EQ(offered.size(), 2u);
  EXPECT_EQ(offered[0].index.caption, "Untitled 1");
  EXPECT_EQ(readBytes(offered[0].textPath), "newer");
  EXPECT_EQ(offered[1].index.originalPath, "/parts/old.nc");
  EXPECT_EQ(offered[1].sessionFolder + "/", left.folder());
}

TEST(RecoveryListing, RemovesEndedSessionsWithNothingToOffer) {
  TempDir dir;
  const ProcessIdentity crashed = crashedEditor();
  std::string folder;
  {
    RecoverySession left(dir.folder(), crashed);
    folder = left.folder();
  }
  fs::create_directories(dir.folder() + "session-7/");  // no lock at all
  fs::create_directories(dir.folder() + "unrelated/");
  EXPECT_TRUE(listRecoverable(dir.folder()).empty());
  EXPECT_FALSE(fs::exists(folder));
  EXPECT_FALSE(fs::exists(dir.folder() + "session-7"));
  EXPECT_TRUE(fs::exists(dir.folder() + "unrelated")) << "only session folders are the listing's";
  EXPECT_TRUE(listRecoverable(dir.folder() + "missing/").empty());
}

TEST(RecoverySession, AProcessIdOfAnEndedSessionGetsAFolderOfItsOwn) {
  TempDir dir;
  ProcessIdentity earlier = currentProcessIdentity();
  earlier.startTicks += 1;  // this process id, in an editor that ended
  RecoverySession left(dir.folder(), earlier);
  left.write(1, indexFor("/parts/a.nc", 1), "left behind");
  RecoverySession now(dir.folder());
  EXPECT_NE(now.folder(), left.folder());
  EXPECT_EQ(listRecoverable(dir.folder()).size(), 1u);
}

TEST(RecoverySession, AdoptsACopyOnceAndTidiesTheEndedSession) {
  TempDir dir;
  RecoverySession left(dir.folder(), crashedEditor());
  left.write(1, indexFor("/parts/a.nc", 10), "recovered text");
  const auto offered = listRecoverable(dir.folder());
  ASSERT_EQ(offered.size(), 1u);

  RecoverySession mine(dir.folder());
  const auto adopted = mine.adopt(offered[0], 7);
  ASSERT_TRUE(adopted);
  EXPECT_EQ(adopted->textPath, mine.textPathOf(7, RecoveredKind::Plain));
  EXPECT_EQ(readBytes(adopted->textPath), "recovered text");
  EXPECT_EQ(decodeRecoveryIndex(readBytes(mine.indexPathOf(7)))->originalPath, "/parts/a.nc");
  EXPECT_FALSE(fs::exists(left.folder())) << "nothing left in the ended session";
  EXPECT_FALSE(mine.adopt(offered[0], 8)) << "taken already (by another editor, say)";
  EXPECT_TRUE(listRecoverable(dir.folder()).empty()) << "now this running editor's copy";
}

TEST(RecoveryListing, DiscardRemovesOneCopyAndTheSessionWithTheLast) {
  TempDir dir;
  RecoverySession left(dir.folder(), crashedEditor());
  left.write(1, indexFor("/parts/a.nc", 10), "a");
  left.write(2, indexFor("/parts/b.nc", 20), "b");
  auto offered = listRecoverable(dir.folder());
  ASSERT_EQ(offered.size(), 2u);
  EXPECT_TRUE(discardRecovered(offered[0]));
  EXPECT_FALSE(discardRecovered(offered[0]));
  EXPECT_TRUE(fs::exists(left.folder()));
  offered = listRecoverable(dir.folder());
  ASSERT_EQ(offered.size(), 1u);
  EXPECT_EQ(offered[0].index.originalPath, "/parts/a.nc");
  EXPECT_TRUE(discardRecovered(offered[0]));
  EXPECT_FALSE(fs::exists(left.folder()));
}

// The real editor, killed outright after an unsaved edit, leaves the edited document to be
// offered at the next start; one that exits cleanly leaves nothing.
#include <QMdiSubWindow>
#include <QProcess>
#include <QThread>
#include <filesystem>

#include "document/document_table.h"
#include "frame_fixture.h"
#include "shell/gui/recovery_controller.h"

using namespace lathwick;
using lathwick::test::FrameTest;
using lathwick::test::readBytes;
using gui::RecoveryChoice;
namespace fs = std::filesystem;

namespace {
class RecoveryAfterCrashTest : public FrameTest {
 protected:
  // The editor with its settings, state and data under `home`, offscreen.
  void startEditor(QProcess& editor, const QStringList& arguments, const QString& typed = {}) {
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    const QString base = QString::fromStdString(home.str());
    env.insert(QStringLiteral("HOME"), base);
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), base + QStringLiteral("/config"));
    env.insert(QStringLiteral("XDG_STATE_HOME"), base + QStringLiteral("/state"));
    env.insert(QStringLiteral("XDG_DATA_HOME"), base + QStringLiteral("/data"));
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    if (!typed.isEmpty()) env.insert(QStringLiteral("LATHWICK_TEST_TYPE"), typed);
    editor.setProcessEnvironment(env);
    editor.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    editor.start(QStringLiteral(LATHWICK_EDITOR_PATH), arguments);
    ASSERT_TRUE(editor.waitForStarted(30000));
  }
  std::vector<fs::path> sessions() const {
    std::vector<fs::path> out;
    if (fs::is_directory(root))
      for (const auto& entry : fs::directory_iterator(root))
        if (entry.path().filename().string().starts_with("session-")) out.push_back(entry.path());
    return out;
  }
  bool indexIn(const fs::path& session) const {
    if (!fs::is_directory(session)) return false;
    for (const auto& entry : fs::directory_iterator(session))
      if (entry.path().extension() == ".index") return true;
    return false;
  }

  test::TempDir home;
  std::string root = home.str() + "/state/lathwick/recovery/";
};
}  // namespace

TEST_F(RecoveryAfterCrashTest, KilledAfterAnEditTheDocumentIsOfferedAtTheNextStart) {
  const std::string part = home.write("parts/O4000.nc", "G00 X0\r\nM30\r\n");
  QProcess editor;
  startEditor(editor, {QString::fromStdString(part)}, QStringLiteral("G01 X99\r\n"));
  const fs::path session = root + "session-" + std::to_string(editor.processId());
  // The copy is written a quiet period after the edit; a minute is far more than it needs.
  for (int i = 0; i < 1200 && !indexIn(session) && editor.state() == QProcess::Running; ++i) QThread::msleep(50);
  ASSERT_TRUE(indexIn(session)) << "no copy written";
  editor.kill();  // SIGKILL: nothing of the editor's own runs any more
  ASSERT_TRUE(editor.waitForFinished(30000));
  EXPECT_EQ(editor.exitStatus(), QProcess::CrashExit);

  const auto offered = listRecoverable(root);
  ASSERT_EQ(offered.size(), 1u);
  EXPECT_EQ(offered[0].index.originalPath, part);
  EXPECT_EQ(readBytes(offered[0].textPath), "G01 X99\r\nG00 X0\r\nM30\r\n");
  EXPECT_EQ(readBytes(part), "G00 X0\r\nM30\r\n");

  // The next start offers it; Open brings it back unsaved under its own name.
  start();
  auto* recovery = new gui::RecoveryController(*frame, root);
  std::vector<std::string> names;
  recovery->setChooser([&names](const std::vector<RecoveredDocument>& documents) {
    for (const auto& d : documents) names.push_back(recoveredDocumentName(d.index));
    return gui::RecoveryController::Offer{RecoveryChoice::Open, std::vector<bool>(documents.size(), true)};
  });
  recovery->offerRecovered();
  ASSERT_EQ(names.size(), 1u);
  EXPECT_NE(names[0].find("O4000.nc"), std::string::npos) << names[0];
  gui::frmEditor* e = frame->activeEditor();
  ASSERT_NE(e, nullptr);
  EXPECT_EQ(e->record().fileName, part);
  EXPECT_TRUE(e->record().changed);
  EXPECT_EQ(e->text(), "G01 X99\r\nG00 X0\r\nM30\r\n");
  trigger("mnuSave");
  EXPECT_EQ(readBytes(part), "G01 X99\r\nG00 X0\r\nM30\r\n");
}

TEST_F(RecoveryAfterCrashTest, ACleanExitLeavesNoSession) {
  QProcess editor;
  startEditor(editor, {QStringLiteral("--quit-after-start")});
  ASSERT_TRUE(editor.waitForFinished(60000));
  EXPECT_EQ(editor.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(editor.exitCode(), 0);
  EXPECT_TRUE(fs::is_directory(root)) << "the session was made";
  EXPECT_TRUE(sessions().empty());
}

// Opening a program: the work file ends up holding what the window shows, and a copy that could
// not be made is reported once the window is loaded.
#include <gtest/gtest.h>

#include "document/work_copy.h"
#include "platform/errors.h"
#include "support/temp_dir.h"

using namespace lathwick;

TEST(WorkCopy, TheWindowLoadsTheProgramOrItsTwinAndTheWorkFileHoldsTheSame) {
  test::TempDir dir;
  const std::string work = dir.file("TEMP2.TXT");
  struct Case {
    const char* name;
    std::string bytes;
    bool rich;
    LineEnds ends;
    bool loadsTwin;
  };
  const Case cases[] = {
      {"crlf.nc", "G0 X1\r\nG1 Y2\r\n", false, LineEnds::CrLf, false},
      {"lf.nc", "G0 X1\nG1 Y2\n", false, LineEnds::Lf, true},
      {"mixed.nc", "G0 X1\nG1 Y2\r\n", false, LineEnds::CrLf, false},
      {"one.nc", "G0 X1", false, LineEnds::CrLf, true},  // no break: its own twin
      // Rich text is copied as it is, even with bare LFs.
      {"part.rtf", "{\\rtf1 G0 X1\\par\n}", true, LineEnds::CrLf, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const std::string program = dir.write(c.name, c.bytes);
    WorkCopy copy(program, work, c.rich);
    EXPECT_EQ(copy.loadFrom(), c.loadsTwin ? work : program);
    copy.finish();
    EXPECT_EQ(copy.lineEnds(), c.ends);
    EXPECT_EQ(dir.read("TEMP2.TXT"), c.loadsTwin ? linuxToCrLf(c.bytes) : c.bytes);
  }
}

TEST(WorkCopy, AWorkFileThatCannotBeWrittenIsPathFileAccessErrorAndLeavesTheProgram) {
  test::TempDir dir;
  const std::string program = dir.write("crlf.nc", "G0 X1\r\n");
  const std::string work = dir.file("missing-folder/TEMP2.TXT");
  WorkCopy copy(program, work, false);
  try {
    copy.finish();
    FAIL() << "the copy should have failed";
  } catch (const AppError& e) {
    EXPECT_EQ(e.number(), err::kPathFileAccessError);
  }
  EXPECT_EQ(dir.read("crlf.nc"), "G0 X1\r\n");
  EXPECT_THROW(WorkCopy(dir.file("gone.nc"), work, false), AppError);
}

// The document table's slots, and the decisions of loading, saving and closing.
#include <gtest/gtest.h>

#include "document/document_table.h"

using namespace lathwick;

TEST(DocumentTable, FreeSlotsAreReusedLowestFirstAndTheTableGrowsOtherwise) {
  DocumentTable table;
  EXPECT_EQ(table.upperBound(), 0);
  EXPECT_EQ(table.findFreeSlot(), 1);
  EXPECT_EQ(table.findFreeSlot(), 2);
  EXPECT_EQ(table.findFreeSlot(), 3);
  table.record(1).fileName = "old";
  table.record(1).changed = true;
  table.release(3);
  table.release(1);
  EXPECT_EQ(table.openIndexes(), std::vector<int>{2});
  EXPECT_EQ(table.findFreeSlot(), 1);
  EXPECT_EQ(table.record(1).fileName, "");  // a reused slot starts clean
  EXPECT_FALSE(table.record(1).changed);
  EXPECT_EQ(table.findFreeSlot(), 3);
  EXPECT_EQ(table.findFreeSlot(), 4);
  EXPECT_EQ(table.upperBound(), 4);
  EXPECT_THROW(table.record(0), std::out_of_range);
  EXPECT_THROW(table.record(5), std::out_of_range);
}

TEST(DocumentTable, NamesCaptionsAndSaveNames) {
  EXPECT_EQ(untitledName(3), "Untitled 3");
  EXPECT_TRUE(isRichTextName("C:\\x.rtf"));
  EXPECT_TRUE(isRichTextName("x.RTF"));
  EXPECT_FALSE(isRichTextName("x.rtf.nc"));
  EXPECT_FALSE(isRichTextName("rtf"));
  const std::string long_ = "C:\\CNC\\Programs\\Customer\\Job42\\part.nc";
  EXPECT_EQ(captionAfterLoad(long_), "C:\\ ...\\Job42\\part.nc");
  EXPECT_EQ(captionAfterSave(long_), "C:\\ ...\\JOB42\\PART.NC");
  EXPECT_EQ(captionAfterLoad("a.nc"), "a.nc");
  EXPECT_EQ(emptyFileMessage("a.nc"), "The file [a.nc] is empty.");
  // Save needs a name while untitled; chosen names lose the stray dot.
  EXPECT_TRUE(saveNeedsName("Untitled 2"));
  EXPECT_TRUE(saveNeedsName("C:\\Untitled 2.nc"));
  EXPECT_FALSE(saveNeedsName("untitled 2"));  // case-sensitive on purpose
  EXPECT_EQ(fixChosenSaveName("C:.\\x.nc"), "C:\\x.nc");
  EXPECT_EQ(fixChosenSaveName("C:\\x.nc"), "C:\\x.nc");
  EXPECT_EQ(fixChosenSaveName("/home/a/.x"), "/home/a/.x");
}

TEST(DocumentTable, CloseQueryAnswers) {
  EXPECT_EQ(closeQueryMessage("A.NC"), "The text in [A.NC] has changed.\r\nDo you want to save the changes?");
  DocumentRecord record;
  EXPECT_FALSE(closeNeedsQuery(record));
  record.changed = true;
  EXPECT_TRUE(closeNeedsQuery(record));

  // Only a caption that begins with "Untitled" asks for a name.
  const struct {
    QueryAnswer answer;
    const char* caption;
    bool cancel;
    CloseDecision::Save save;
  } cases[] = {{QueryAnswer::Cancel, "A.NC", true, CloseDecision::Save::None},
               {QueryAnswer::No, "A.NC", false, CloseDecision::Save::None},
               {QueryAnswer::Yes, "A.NC", false, CloseDecision::Save::UnderRecordName},
               {QueryAnswer::Yes, "Untitled 4", false, CloseDecision::Save::AskForName},
               {QueryAnswer::Yes, "C:\\Untitled 4", false, CloseDecision::Save::UnderRecordName}};
  for (const auto& c : cases) {
    const CloseDecision d = decideClose(c.answer, c.caption);
    EXPECT_EQ(d.cancel, c.cancel) << c.caption;
    EXPECT_EQ(d.save, c.save) << c.caption;
  }
}

// The file dialogs' filters, turned into the form the dialog reads.
#include <gtest/gtest.h>

#include "platform/gui/dialogs.h"

using lathwick::gui::qtFilterOf;

TEST(FrameDialogs, FiltersKeepTheirDescriptionsAndShowFilesWithoutExtensions) {
  EXPECT_EQ(qtFilterOf("All Files (*.*)|*.*"), "All Files (*)");
  EXPECT_EQ(qtFilterOf("Text (*.*)|*.*|Text (*.TXT)|*.TXT"), "Text (*);;Text (*.TXT)");
  EXPECT_EQ(qtFilterOf("Rich Text (*.RTF)|*.RTF"), "Rich Text (*.RTF)");
  EXPECT_EQ(qtFilterOf("Programs|*.nc;*.tap"), "Programs (*.nc *.tap)");
}

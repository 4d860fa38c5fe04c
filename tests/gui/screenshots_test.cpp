// Pictures of the scheme editor and of a print preview for the documentation. They are taken
// when LATHWICK_SCREENSHOT_DIR names a folder (run under a real X server for real fonts);
// otherwise the test only checks that both windows come up with something painted.
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <cstdlib>
#include <filesystem>

#include "document/gui/listing_printer.h"
#include "frame_fixture.h"
#include "scheme_editor_fixture.h"

using namespace lathwick;
using lathwick::test::FrameTest;
using lathwick::test::SchemeEditorTest;

namespace {

QString shotPath(const char* name) {
  const char* dir = std::getenv("LATHWICK_SCREENSHOT_DIR");
  return dir ? QString::fromLocal8Bit(dir) + "/" + name : QString();
}

// Shows the preview without waiting for the user, and keeps a picture of it.
class PreviewShot : public gui::ListingPrinter {
 public:
  QImage image;
  bool print(const gui::ListingLayout& layout, const QString&) override {
    QPrinter printer(QPrinter::HighResolution);
    QPrintPreviewDialog preview(&printer);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* target) { gui::paintListing(*target, layout); });
    preview.resize(900, 760);
    preview.show();
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
    image = preview.grab().toImage();
    return true;
  }
};

}  // namespace

TEST_F(SchemeEditorTest, PictureOfTheSchemeEditor) {
  host.remembered = 1;
  open();
  clickLabel(kG02Mode);
  form->resize(720, form->sizeHint().height());
  QApplication::processEvents();
  const QImage image = form->grab().toImage();
  ASSERT_FALSE(image.isNull());
  if (const QString path = shotPath("scheme-editor.png"); !path.isEmpty()) {
    EXPECT_TRUE(image.save(path));
  }
}

TEST_F(FrameTest, PictureOfAPrintPreview) {
  const std::string sample = std::string(LATHWICK_APP_DIR) + "/samples/bracket.nc";
  if (!std::filesystem::exists(sample) || !useBundledSchemes()) GTEST_SKIP() << "no application folder";
  start();
  openFile(sample);
  trigger("mnuModal", 0);
  PreviewShot shot;
  gui::ScopedListingPrinter seam(shot);
  trigger("mnuPrintAsRtf");
  ASSERT_FALSE(shot.image.isNull());
  if (const QString path = shotPath("print-preview.png"); !path.isEmpty()) {
    EXPECT_TRUE(shot.image.save(path));
  }
}

#include "document/gui/listing_printer.h"

#include <QApplication>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>

namespace lathwick::gui {

namespace {

constexpr double kAscent = 0.8;  // of the font size, from a line's top to its baseline

QColor colourOf(std::uint32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

QFont fontOf(const PrintFormat& f) {
  QFont font(QString::fromLatin1(f.fontName.c_str()));
  font.setStyleHint(QFont::TypeWriter, QFont::PreferMatch);  // listings are set fixed-pitch when the face is missing
  font.setPointSizeF(f.points);
  font.setBold(f.bold);
  font.setItalic(f.italic);
  font.setUnderline(f.underline);
  font.setStrikeOut(f.strike);
  return font;
}

// Points to the printer's device units.
double scaleOf(const QPrinter& printer) { return printer.resolution() / 72.0; }

void paintPage(QPainter& painter, const QPrinter& printer, const PrintedListing& listing, const PrintPage& page) {
  const double k = scaleOf(printer);
  if ((listing.paperColour & 0xFFFFFF) != 0xFFFFFF) {
    const QRectF paper = printer.paperRect(QPrinter::DevicePixel).translated(-printer.pageRect(QPrinter::DevicePixel).topLeft());
    painter.fillRect(paper, colourOf(listing.paperColour));
  }
  double top = 0;
  for (const PrintLine& line : page.lines) {
    double ascent = 0;
    for (const PrintRun& run : line.runs) ascent = std::max(ascent, run.format.points * kAscent);
    double x = listing.indentPoints * k;
    for (const PrintRun& run : line.runs) {
      const QFont font = fontOf(run.format);
      painter.setFont(font);
      painter.setPen(colourOf(run.format.colour));
      const QString text = QString::fromLatin1(run.text.data(), static_cast<qsizetype>(run.text.size()));
      painter.drawText(QPointF(x, (top + ascent) * k), text);
      x += QFontMetricsF(font, painter.device()).horizontalAdvance(text);
    }
    top += line.height;
  }
}

class PreviewPrinter : public ListingPrinter {
 public:
  bool print(const ListingLayout& layout, const QString& documentName) override {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(documentName);
    QPrintPreviewDialog preview(&printer, QApplication::activeWindow());
    bool painted = true;
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested, &preview,
                     [&](QPrinter* target) { painted = paintListing(*target, layout) && painted; });
    preview.exec();
    return painted;
  }
};

ListingPrinter*& current() {
  static PreviewPrinter real;
  static ListingPrinter* inUse = &real;
  return inUse;
}

}  // namespace

bool paintListing(QPrinter& printer, const ListingLayout& layout) {
  const QRectF area = printer.pageLayout().paintRect(QPageLayout::Point);
  const PrintedListing listing = layout(PrintableArea{area.width(), area.height()});
  QPainter painter;
  if (!painter.begin(&printer)) return false;
  for (std::size_t i = 0; i < listing.pages.size(); ++i) {
    if (i > 0 && !printer.newPage()) return false;
    paintPage(painter, printer, listing, listing.pages[i]);
  }
  return painter.end();
}

ListingPrinter& listingPrinter() { return *current(); }

ScopedListingPrinter::ScopedListingPrinter(ListingPrinter& replacement) : previous_(current()) {
  current() = &replacement;
}
ScopedListingPrinter::~ScopedListingPrinter() { current() = previous_; }

bool PdfListingPrinter::print(const ListingLayout& layout, const QString& documentName) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path_);
  printer.setDocName(documentName);
  return paintListing(printer, layout);
}

}  // namespace lathwick::gui

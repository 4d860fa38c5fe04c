#pragma once
// Puts a laid-out listing on a printer, and the one seam through which the program prints:
// the real one shows the print preview (with the system's print dialog, a printer or a PDF
// file behind its Print button); tests put their own in place and print straight to a PDF.
#include <QString>
#include <functional>

#include "document/print_pages.h"

class QPainter;
class QPrinter;

namespace lathwick::gui {

// Lays the listing out for the printable area of the printer it goes to.
using ListingLayout = std::function<PrintedListing(const PrintableArea& area)>;

// Paints every page of the listing on the printer (which must be ready to paint on); false
// when the printer cannot be painted on.
bool paintListing(QPrinter& printer, const ListingLayout& layout);

class ListingPrinter {
 public:
  virtual ~ListingPrinter() = default;
  // Prints the listing; false when it could not be printed (the caller says so). Cancelling the
  // preview or the print dialog is no failure.
  virtual bool print(const ListingLayout& layout, const QString& documentName) = 0;
};

ListingPrinter& listingPrinter();

// Puts `replacement` in use for its lifetime.
class ScopedListingPrinter {
 public:
  explicit ScopedListingPrinter(ListingPrinter& replacement);
  ~ScopedListingPrinter();
  ScopedListingPrinter(const ScopedListingPrinter&) = delete;
  ScopedListingPrinter& operator=(const ScopedListingPrinter&) = delete;

 private:
  ListingPrinter* previous_;
};

// Prints to a PDF file without asking anything: what the seam's test double and the preview
// screenshots use.
class PdfListingPrinter : public ListingPrinter {
 public:
  explicit PdfListingPrinter(QString path) : path_(std::move(path)) {}
  bool print(const ListingLayout& layout, const QString& documentName) override;

 private:
  QString path_;
};

}  // namespace lathwick::gui

#pragma once
// Writes a laid-out listing to PDF: each page filled with the listing's paper colour, each line
// set from the top margin down, its runs in the standard font nearest to their own.
#include <string>

#include "document/print_pages.h"

namespace lathwick {

struct PaperSize {
  double width = 595;   // A4, in points
  double height = 842;
  double margin = 36;   // on every side
  PrintableArea printable() const { return {width - 2 * margin, height - 2 * margin}; }
};

std::string listingPdf(const PrintedListing& listing, const PaperSize& paper);

}  // namespace lathwick

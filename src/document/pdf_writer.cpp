#include "document/pdf_writer.h"

#include <cstdio>
#include <stdexcept>

namespace lathwick {

namespace {

constexpr double kA4Width = 595.0;
constexpr double kA4Height = 842.0;

std::string number(double value, int places = 2) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.*f", places, value);
  std::string text = buffer;
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

// Four places, so that every byte of a colour comes back exactly when the page is drawn.
std::string rgb(PdfColour colour) {
  return number((colour & 0xFF) / 255.0, 4) + " " + number(((colour >> 8) & 0xFF) / 255.0, 4) + " " +
         number(((colour >> 16) & 0xFF) / 255.0, 4);
}

// A literal string: the bytes as they are, with the three characters PDF reserves escaped and
// control characters shown as blanks.
std::string literal(std::string_view bytes) {
  std::string out = "(";
  for (const char c : bytes) {
    if (c == '(' || c == ')' || c == '\\') out += '\\';
    out += static_cast<unsigned char>(c) < 32 ? ' ' : c;
  }
  return out + ")";
}

class ObjectFile {
 public:
  int add(const std::string& body) {
    offsets_.push_back(0);
    bodies_.push_back(body);
    return static_cast<int>(bodies_.size());
  }
  void set(int id, const std::string& body) { bodies_.at(static_cast<std::size_t>(id - 1)) = body; }
  std::string bytes(int root) {
    std::string out = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    for (std::size_t i = 0; i < bodies_.size(); ++i) {
      offsets_[i] = out.size();
      out += std::to_string(i + 1) + " 0 obj\n" + bodies_[i] + "\nendobj\n";
    }
    const std::size_t xref = out.size();
    out += "xref\n0 " + std::to_string(bodies_.size() + 1) + "\n0000000000 65535 f \n";
    for (const std::size_t offset : offsets_) {
      char entry[24];
      std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", offset);
      out += entry;
    }
    out += "trailer\n<< /Size " + std::to_string(bodies_.size() + 1) + " /Root " + std::to_string(root) +
           " 0 R >>\nstartxref\n" + std::to_string(xref) + "\n%%EOF\n";
    return out;
  }

 private:
  std::vector<std::string> bodies_;
  std::vector<std::size_t> offsets_;
};

std::string fontResources(ObjectFile& file, const std::vector<bool>& used) {
  std::string dict = "<< ";
  for (int i = 0; i < 12; ++i) {
    if (!used[static_cast<std::size_t>(i)]) continue;
    const StandardFont font{static_cast<StandardFamily>(i / 4), (i & 1) != 0, (i & 2) != 0};
    const int id = file.add("<< /Type /Font /Subtype /Type1 /BaseFont /" + standardFontName(font) +
                            " /Encoding /WinAnsiEncoding >>");
    dict += "/F" + std::to_string(i) + " " + std::to_string(id) + " 0 R ";
  }
  return dict + ">>";
}

}  // namespace

PdfWriter::Page& PdfWriter::current() {
  if (pages_.empty()) throw std::logic_error("PdfWriter: drawing before the first page");
  return pages_.back();
}

double PdfWriter::flip(double y) const { return pages_.back().height - y; }

void PdfWriter::beginPage(double width, double height) { pages_.push_back({width, height, {}}); }

void PdfWriter::fillRect(double x, double y, double width, double height, PdfColour colour) {
  Page& page = current();
  page.content += rgb(colour) + " rg " + number(x) + " " + number(flip(y + height)) + " " + number(width) + " " +
                  number(height) + " re f\n";
}

void PdfWriter::line(double x1, double y1, double x2, double y2, double thickness, PdfColour colour) {
  Page& page = current();
  page.content += rgb(colour) + " RG " + number(thickness) + " w " + number(x1) + " " + number(flip(y1)) + " m " +
                  number(x2) + " " + number(flip(y2)) + " l S\n";
}

void PdfWriter::text(double x, double y, const StandardFont& font, double size, PdfColour colour,
                     std::string_view bytes) {
  Page& page = current();
  fontsUsed_[static_cast<std::size_t>(font.index())] = true;
  page.content += "BT /F" + std::to_string(font.index()) + " " + number(size) + " Tf " + rgb(colour) + " rg " +
                  number(x) + " " + number(flip(y)) + " Td " + literal(bytes) + " Tj ET\n";
}

std::string PdfWriter::finish() const {
  std::vector<Page> pages = pages_;
  if (pages.empty()) pages.push_back({kA4Width, kA4Height, {}});
  ObjectFile file;
  const int catalog = file.add("");
  const int tree = file.add("");
  const std::string fonts = fontResources(file, fontsUsed_);
  std::string kids;
  for (const Page& page : pages) {
    const int content = file.add("<< /Length " + std::to_string(page.content.size()) + " >>\nstream\n" +
                                 page.content + "endstream");
    const int id = file.add("<< /Type /Page /Parent " + std::to_string(tree) + " 0 R /MediaBox [0 0 " +
                            number(page.width) + " " + number(page.height) + "] /Resources << /Font " + fonts +
                            " >> /Contents " + std::to_string(content) + " 0 R >>");
    kids += std::to_string(id) + " 0 R ";
  }
  file.set(catalog, "<< /Type /Catalog /Pages " + std::to_string(tree) + " 0 R >>");
  file.set(tree, "<< /Type /Pages /Kids [" + kids + "] /Count " + std::to_string(pages.size()) + " >>");
  return file.bytes(catalog);
}

}  // namespace lathwick

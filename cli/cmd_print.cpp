// print --plain|--rich [--lines A-B] IN OUT.pdf: the listing Print Plain Text or Print Rich Text
// would print, written to PDF. A plain program printed as rich text is coloured by modes (or by
// codes with --view codes) in the scheme first, as the editor shows it; an .RTF file is printed
// with its own formats.
#include <cctype>
#include <clocale>
#include <cstdio>
#include <ctime>
#include <string>

#include "commands.h"
#include "document/file_errors.h"
#include "document/print_pdf.h"
#include "document/rtf_reader.h"
#include "format/colorizer.h"
#include "format/scheme_data_file.h"
#include "options.h"
#include "platform/atomic_file.h"
#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick::cli {

namespace {

struct Stamp {
  std::string date, time;
};

Stamp now() {
  std::setlocale(LC_TIME, "");
  const std::time_t t = std::time(nullptr);
  char date[64], time[64];
  std::strftime(date, sizeof date, "%x", std::localtime(&t));
  std::strftime(time, sizeof time, "%X", std::localtime(&t));
  return {date, time};
}

bool endsWithRtf(const std::string& name) {
  if (name.size() < 4) return false;
  std::string tail = name.substr(name.size() - 4);
  for (char& c : tail) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return tail == ".RTF";
}

// The document as the editor would hold it for a rich print: the .RTF file as it is, or the
// program coloured in the scheme. Throws AppError with the message to show.
RtfDocument richDocument(const ParsedArgs& p, const std::string& in, const std::string& out, std::uint32_t& paper) {
  const SchemeRecord scheme =
      loadScheme(p.valueOr("--data", bundledDataFilePath()), parseInteger("--scheme", p.valueOr("--scheme", "1")));
  paper = static_cast<std::uint32_t>(scheme.backColour);
  if (endsWithRtf(in)) return readRtfFile(in);
  const std::string view = p.valueOr("--view", "modes");
  if (view != "modes" && view != "codes") throw UsageError("option --view needs modes or codes, not '" + view + "'");
  const std::string coloured = out + ".colour.rtf";
  const auto comment = p.value("--comment");
  const PassResult r = colorizeFile(scheme, view == "modes" ? ColorizeView::Modes : ColorizeView::Codes, in,
                                    coloured, silentMonitor(), comment ? &*comment : nullptr);
  if (r.outcome == PassOutcome::NoInput) throw makeError(err::kFileNotFound);
  if (r.outcome != PassOutcome::Completed) throw AppError(0, r.message);
  struct Remover {
    std::string path;
    ~Remover() { removeFile(path); }
  } remover{coloured};
  return readRtfFile(coloured);
}

PrintedListing listingFor(const ParsedArgs& p, const std::string& in, const std::string& out,
                          const PaperSize& paper) {
  const Stamp stamp = now();
  const bool whole = !p.value("--lines");
  const auto [first, last] = whole ? std::pair<long, long>{1, 0} : parseLineRange(*p.value("--lines"));
  if (p.flag("--plain")) {
    const auto text = readWholeFile(in);
    if (!text) throw makeError(err::kFileNotFound);
    const std::string_view part = whole ? std::string_view(*text) : plainLinesOf(*text, first, last);
    const int rows = plainPageRows(paper.printable().height, printLineHeight(kPlainPrintPoints));
    return layoutPlainListing(part, in, stamp.date + " " + stamp.time, rows);
  }
  std::uint32_t paperColour = 0xFFFFFF;
  RtfDocument document = richDocument(p, in, out, paperColour);
  if (!whole) document = richLinesOf(document, first, last);
  return layoutRichListing(document, richHeading(in, stamp.date, stamp.time), paper.printable(), paperColour);
}

}  // namespace

int cmdPrint(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(
      args, withSchemeOptions({{"--plain", false, false}, {"--rich", false, false}, {"--lines", true, false},
                               {"--view", true, false}}),
      2, "IN OUT.pdf");
  if (p.flag("--plain") == p.flag("--rich")) throw UsageError("give one of --plain and --rich");
  const std::string& in = p.positionals()[0];
  const std::string& out = p.positionals()[1];
  const PaperSize paper;
  try {
    const PrintedListing listing = listingFor(p, in, out, paper);
    writeFileAtomically(out, listingPdf(listing, paper));
  } catch (const DataFileProblem& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return kExitRefused;
  } catch (const UsageError&) {
    throw;
  } catch (const AppError& e) {
    const std::string text = e.number() == 0 ? e.description() : FileErrorText(e.number(), e.description());
    std::fprintf(stderr, "%s: %s\n", in.c_str(), text.c_str());
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace lathwick::cli

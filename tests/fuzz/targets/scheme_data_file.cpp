// A scheme data file of any bytes: the list loads or reports the data-file problem, every record
// that reads as a scheme writes back to the same bytes, and colours a program in both views.
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include "format/rich_text_builder.h"
#include "format/scheme_data_file.h"

namespace lathwick::fuzz {

void colorizeBothViews(const SchemeRecord& scheme, std::string_view program);

namespace {
constexpr long kMaxRecords = 4;
constexpr std::string_view kProgram =
    "%\r\nO1000 (FUZZ)\r\nN10 G00 X0 Y0 Z5.\r\n/N20 G01 Z-1. F100\r\nN30 G02 X10 Y10 I5 J5\r\n"
    "N40 G41 D1 X20\r\nN50 G91 G03 X-5 R5 M08\r\nN60 T2 S1200 M30\r\n%\r\n";
}  // namespace

int schemeDataFile(const std::uint8_t* data, std::size_t size) {
  const std::string path = scratchFile("Lathwick.dat");
  writeFile(path, std::string_view(reinterpret_cast<const char*>(data), size));
  SchemeList list;
  try {
    list = loadSchemeList(path, 1);
  } catch (const DataFileProblem&) {
    return 0;
  }
  FUZZ_CHECK(list.entries.empty() == (list.selected < 0));
  const long count = schemeRecordCount(path);
  FUZZ_CHECK(static_cast<long>(list.entries.size()) <= count);
  for (long n = 1; n <= count && n <= kMaxRecords; ++n) {
    SchemeRecord record;
    try {
      record = readSchemeRecord(path, n);
    } catch (const DataFileProblem&) {
      continue;
    }
    const std::string bytes = encodeSchemeRecord(record);
    FUZZ_CHECK(bytes.size() == kSchemeRecordSize);
    FUZZ_CHECK(encodeSchemeRecord(decodeSchemeRecord(bytes)) == bytes);
    buildSchemeFragments(record);
    colorizeBothViews(record, kProgram);
  }
  return 0;
}

}  // namespace lathwick::fuzz

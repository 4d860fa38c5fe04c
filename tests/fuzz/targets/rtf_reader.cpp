// The rich-text reader never fails, and what the writer makes of its result reads back as the
// same text, indent and strikeouts.
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include "document/rtf_reader.h"
#include "document/rtf_styling.h"
#include "document/rtf_writer.h"

namespace lathwick::fuzz {

int rtfReader(const std::uint8_t* data, std::size_t size) {
  const RtfDocument doc = readRtf(std::string_view(reinterpret_cast<const char*>(data), size));
  StyleTable table(StyleFormat{"Courier New", 20, kAutoColour});
  const DocumentStyling styling = styleDocument(doc, table);
  FUZZ_CHECK(styling.styles.size() == doc.text.size());
  for (const TextRange& r : styling.strikeouts) FUZZ_CHECK(r.start < r.end && r.end <= doc.text.size());

  const std::string written = writeRtf({doc.text, styling.styles, &styling.strikeouts, doc.indentTwips}, table);
  const RtfDocument again = readRtf(written);
  FUZZ_CHECK(again.text == doc.text);
  if (!doc.text.empty()) FUZZ_CHECK(again.indentTwips == doc.indentTwips);
  StyleTable againTable(table.defaultFormat());
  FUZZ_CHECK(styleDocument(again, againTable).strikeouts == styling.strikeouts);
  return 0;
}

}  // namespace lathwick::fuzz

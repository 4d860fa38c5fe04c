// The colorizer takes any program in both views, and the editor can read what it writes.
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include <cstdlib>
#include <vector>

#include "document/rtf_reader.h"
#include "format/bundled_schemes.h"
#include "format/colorizer.h"

namespace lathwick::fuzz {

namespace {
const std::vector<SchemeRecord>& schemes() {
  static const std::vector<SchemeRecord> all = bundledSchemes();
  return all;
}
}  // namespace

// Also used by the scheme data file target, with the schemes it reads.
void colorizeBothViews(const SchemeRecord& scheme, std::string_view program) {
  const std::string in = scratchFile("colorize-in.txt");
  const std::string out = scratchFile("colorize-out.rtf");
  writeFile(in, program);
  for (const ColorizeView view : {ColorizeView::Modes, ColorizeView::Codes}) {
    const PassResult r = colorizeFile(scheme, view, in, out, silentMonitor());
    FUZZ_CHECK(r.outcome != PassOutcome::Cancelled && r.outcome != PassOutcome::NoInput);
    if (r.outcome == PassOutcome::Failed) FUZZ_CHECK(!r.message.empty());
    if (r.outcome == PassOutcome::Completed) readRtf(readFile(out));
  }
}

int colorizer(const std::uint8_t* data, std::size_t size) {
  FieldReader fields(data, size);
  const long n = std::strtol(fields.next().c_str(), nullptr, 10);
  const auto& all = schemes();
  const auto index = static_cast<size_t>(n < 1 ? 0 : n - 1) % all.size();
  colorizeBothViews(all[index], fields.body());
  return 0;
}

}  // namespace lathwick::fuzz

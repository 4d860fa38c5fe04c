// Every transformation pass over any program with any settings. The first line names the pass
// and gives its settings, tab-separated (missing ones read as empty):
//   replace    FIND REPLACE FLAGS FIRST LAST
//   highlight  FIND FLAGS FIRST LAST
//   operate    ADDRESSES OPERATOR VALUE FORMAT EXCLUDE FIRST LAST
//   renumber   START INCREMENT METHOD SEQUENCE SKIP COMMENT FIRST LAST
//   addspaces  COMMENT
//   removespaces COMMENT
//   junk
// An unknown name picks a pass by its first byte, so mutated names still reach the passes.
// Besides the pass itself, the rich passes' per-line work must hand back marks that lie in the
// line, left to right, without overlapping, and no more marks than it counts.
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include <array>
#include <climits>
#include <cstdlib>

#include "format/bundled_schemes.h"
#include "format/pass_frame.h"
#include "platform/errors.h"
#include "transform/junk_filter.h"
#include "transform/operate.h"
#include "transform/renumber.h"
#include "transform/rich_text_escape.h"
#include "transform/search_match.h"
#include "transform/search_pass.h"
#include "transform/spaces.h"

namespace lathwick::fuzz {

namespace {
using namespace transform;

const PassFrame& frame() {
  static const PassFrame f = makePassFrame(bundledSchemes().front());
  return f;
}

long number(const std::string& text, long fallback) {
  if (text.empty()) return fallback;
  return std::strtol(text.c_str(), nullptr, 10);
}

LineRange range(FieldReader& fields) {
  LineRange r;
  r.first = number(fields.next(), 1);
  r.last = number(fields.next(), LONG_MAX);
  return r;
}

void checkLines(std::string_view program, RichLineTransform& transform) {
  std::string line;
  std::vector<Stretch> marks;
  while (!program.empty()) {
    const size_t end = program.find("\r\n");
    const std::string_view raw = program.substr(0, end);
    program = end == std::string_view::npos ? std::string_view() : program.substr(end + 2);
    line = escapeRichText(raw);
    marks.clear();
    const long count = transform.transform(raw, line, marks);
    FUZZ_CHECK(count >= static_cast<long>(marks.size()));
    size_t from = 0;
    for (const Stretch& s : marks) {
      FUZZ_CHECK(s.start >= from && s.start <= s.end && s.end <= line.size());
      from = s.end;
    }
  }
}

void checkResult(const PassResult& r) {
  FUZZ_CHECK(r.outcome != PassOutcome::Cancelled);
  if (r.outcome == PassOutcome::Failed || r.outcome == PassOutcome::Refused) FUZZ_CHECK(!r.message.empty());
}

void replace(FieldReader& fields, bool highlight, const std::string& in, const std::string& out) {
  SearchRequest req;
  req.findText = fields.next();
  req.replaceText = highlight ? req.findText : fields.next();
  req.flags = static_cast<int>(number(fields.next(), 0)) & (kMatchCase | kWholeWord | kExcludeComments);
  req.range = range(fields);
  ReplaceLine line(req.findText, req.replaceText, req.flags, frame());
  checkLines(fields.body(), line);
  checkResult(highlight ? runHighlightAll(in, out, req, frame(), silentMonitor())
                        : runReplaceAll(in, out, req, frame(), silentMonitor()));
}

void operate(FieldReader& fields, const std::string& in, const std::string& out) {
  OperateEntries entries;
  entries.address = fields.next();
  entries.op = fields.next();
  entries.value = fields.next();
  entries.format = fields.next();
  if (!validateOperate(entries).message.empty()) return;
  if (entries.op.size() != 1 || std::string_view("*+-/").find(entries.op[0]) == std::string_view::npos) return;
  OperateRequest req;
  req.addresses = entries.address;
  req.op = entries.op[0];
  req.operand = leadingValue(entries.value);
  req.format = entries.format;
  req.excludeComments = number(fields.next(), 0) != 0;
  req.range = range(fields);
  if (NumericPicture::isValid(req.format)) {
    OperateLine line(req, frame());
    try {
      checkLines(fields.body(), line);
    } catch (const AppError&) {
      // Overflow: the pass reports it as its error below.
    }
  }
  checkResult(runOperate(in, out, req, frame(), silentMonitor()));
}

void renumber(FieldReader& fields, const std::string& in, const std::string& out) {
  RenumberRequest req;
  req.start = static_cast<std::int32_t>(number(fields.next(), 100));
  req.increment = static_cast<std::int32_t>(number(fields.next(), 1));
  req.method = static_cast<RenumberMethod>(std::labs(number(fields.next(), 2)) % 3);
  req.sequenceText = fields.next();
  req.skipCharacters = fields.next();
  req.commentStart = fields.next();
  req.range = range(fields);
  checkResult(runRenumber(in, out, req, silentMonitor()));
}

constexpr std::array<const char*, 7> kPasses = {"replace",   "highlight",    "operate", "renumber",
                                                "addspaces", "removespaces", "junk"};
}  // namespace

int passes(const std::uint8_t* data, std::size_t size) {
  FieldReader fields(data, size);
  const std::string name = fields.next();
  size_t pass = kPasses.size();
  for (size_t i = 0; i < kPasses.size(); ++i)
    if (name == kPasses[i]) pass = i;
  if (pass == kPasses.size()) pass = name.empty() ? 0 : static_cast<unsigned char>(name[0]) % kPasses.size();

  const std::string in = scratchFile("pass-in.txt");
  const std::string out = scratchFile("pass-out.txt");
  writeFile(in, fields.body());
  switch (pass) {
    case 0: replace(fields, false, in, out); break;
    case 1: replace(fields, true, in, out); break;
    case 2: operate(fields, in, out); break;
    case 3: renumber(fields, in, out); break;
    case 4: checkResult(runAddSpaces(in, out, fields.next(), silentMonitor())); break;
    case 5: checkResult(runRemoveSpaces(in, out, fields.next(), silentMonitor())); break;
    default: {
      checkResult(runJunkFilter(in, out, silentMonitor()));
      // What the junk filter writes is clean: filtering it again changes nothing. (Output with
      // nothing but line breaks is not a fixed point: an empty file gives one CR LF, a file of
      // blank lines gives nothing.)
      const std::string filtered = readFile(out);
      if (filtered.find_first_not_of("\r\n") != std::string::npos) FUZZ_CHECK(junkFilter(filtered) == filtered);
    }
  }
  return 0;
}

}  // namespace lathwick::fuzz

#include "transform/operate.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstdint>

#include "platform/bytes.h"
#include "platform/errors.h"
#include "transform/search_match.h"

namespace lathwick::transform {

namespace {
// "+" and the characters - . / and the digits make up a value; the comma does not.
bool isValueCharacter(char c) { return c == '+' || (c >= 45 && c <= 57); }

}  // namespace

double leadingValue(std::string_view text) {
  size_t i = 0;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  const size_t start = i;
  bool digits = false;
  while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, digits = true;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && text[i] >= '0' && text[i] <= '9') ++i, digits = true;
  }
  if (!digits) return 0;
  // Up to 15 digits the value is a whole number over a power of ten, both exact as doubles, so
  // one division gives the correctly rounded result, as the general reading would.
  std::uint64_t mantissa = 0;
  int digitCount = 0, decimals = 0;
  bool afterPoint = false;
  for (size_t k = start; k < i && digitCount <= 15; ++k) {
    if (text[k] == '.') {
      afterPoint = true;
      continue;
    }
    mantissa = mantissa * 10 + static_cast<std::uint64_t>(text[k] - '0');
    ++digitCount;
    decimals += afterPoint;
  }
  if (digitCount <= 15) {
    constexpr double kPow10[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    const double v = static_cast<double>(mantissa) / kPow10[decimals];
    return negative ? -v : v;
  }
  double v = 0;
  const auto r = std::from_chars(text.data() + start, text.data() + i, v, std::chars_format::fixed);
  if (r.ec == std::errc::result_out_of_range) {
    // Too small reads as (nearly) zero; too large cannot be worked with.
    v = std::strtod(std::string(text.substr(start, i - start)).c_str(), nullptr);
    if (!std::isfinite(v)) throw makeError(err::kOverflow);
  }
  return negative ? -v : v;
}

OperateValidation validateOperate(const OperateEntries& entries) {
  OperateValidation v;
  const double value = leadingValue(trimBlanks(entries.value));
  if (entries.op == "/" && value == 0) {
    v.message = kDivisionByZero;
    v.resetOperator = true;
  } else if (entries.value.empty()) {
    v.message = kValueRequired;
  } else if (entries.address.empty()) {
    v.message = kAddressRequired;
  } else if (entries.format.empty()) {
    v.message = kFormatRequired;
  }
  return v;
}

OperateLine::OperateLine(const OperateRequest& request, const PassFrame& frame)
    : addresses_(request.addresses),
      op_(request.op),
      operand_(request.operand),
      picture_(request.format),
      excludeComments_(request.excludeComments),
      open_(frame.comment.openText()),
      close_(frame.comment.closeText()),
      markStart_(frame.highlightStart),
      markEnd_(frame.highlightEnd) {}

double OperateLine::compute(double value) const {
  switch (op_) {
    case '*': return value * operand_;
    case '+': return value + operand_;
    case '-': return value - operand_;
    case '/':
      if (operand_ == 0) throw AppError(11, "Division by zero");
      return value / operand_;
  }
  throw AppError(5, "Invalid procedure call or argument");
}

long OperateLine::transform(std::string_view raw, std::string& line, std::vector<Stretch>& marks) {
  const long open = excludeComments_ ? positionOf(raw, open_) : 0;
  const long close = excludeComments_ ? positionOf(raw, close_) : 0;
  long count = 0;  // operations made, which a value changed twice counts twice
  for (const char address : addresses_) {
    // A value character cannot be an address: its own values would overlap the others.
    if (isValueCharacter(address)) continue;
    const size_t before = marks.size();
    const long operations = operateOn(address, open, close, line, marks);
    if (operations == 0) continue;
    count += operations;
    // Usually the addresses come in the order of the line (X before Y before Z) and nothing
    // needs merging.
    if (before > 0 && marks.size() > before && marks[before].start < marks[before - 1].start)
      std::inplace_merge(marks.begin(), marks.begin() + static_cast<long>(before), marks.end(),
                         [](const Stretch& a, const Stretch& b) { return a.start < b.start; });
  }
  return count;
}

long OperateLine::operateOn(char address, long open, long close, std::string& line, std::vector<Stretch>& marks) {
  size_t p = line.find(address);
  if (p == std::string::npos) return 0;
  // The line is rebuilt left to right into done_, which is what changing each value in place
  // would give, without moving the rest of a long line at every value. The values marked for
  // earlier addresses move along with the text around them.
  done_.clear();
  size_t cursor = 0;
  size_t moved = 0;  // earlier stretches already carried over
  const size_t before = marks.size();
  long operations = 0;
  auto carry = [&](size_t limit) {
    const size_t shift = done_.size() - cursor;  // wraps for a shrinking line; the sum is right
    for (; moved < before && marks[moved].start < limit; ++moved)
      marks[moved].start += shift, marks[moved].end += shift;
  };
  while (p != std::string::npos) {
    const long position = static_cast<long>(done_.size() + (p - cursor)) + 1;
    // With an opening delimiter on the line, only letters at or before it and at or after the
    // closing one count; so a complete comment keeps the whole line as it is.
    if (open > 0 && !(position <= open && position >= close)) break;
    const size_t valueStart = p + 1;
    size_t valueEnd = valueStart;
    while (valueEnd < line.size() && isValueCharacter(line[valueEnd])) ++valueEnd;
    if (valueEnd == valueStart) {
      p = line.find(address, valueStart);
      continue;
    }
    const double result = compute(leadingValue(std::string_view(line).substr(valueStart, valueEnd - valueStart)));
    number_.clear();
    picture_.format(result, number_);
    carry(valueStart);
    done_.append(line, cursor, valueStart - cursor);
    const Stretch mark{done_.size(), done_.size() + number_.size()};
    // A letter given twice ("XX") works on a value it already changed. A mark starts just
    // after its letter and covers the whole value, so such a value begins where an earlier
    // mark begins: that mark moves over the new text instead of a second one being added.
    if (moved < before && marks[moved].start == valueStart)
      marks[moved++] = mark;
    else
      marks.push_back(mark);
    done_.append(number_);
    ++operations;
    cursor = valueEnd;
    p = line.find(address, valueEnd);
  }
  if (operations == 0) return 0;
  carry(std::string::npos);
  done_.append(line, cursor, std::string::npos);
  line.swap(done_);
  return operations;
}

long OperateLine::apply(std::string_view raw, std::string& line) {
  marks_.clear();
  const long n = transform(raw, line, marks_);
  insertMarkers(line, marks_, markStart_, markEnd_, scratch_);
  return n;
}

PassResult runOperate(const std::string& inPath, const std::string& outPath, const OperateRequest& request,
                      const PassFrame& frame, PassMonitor& monitor) {
  RichPassSettings settings;
  settings.statusText = kOperatingStatus;
  settings.countPhrase = kOperationsPhrase;
  settings.errorEnding = kOperateErrorEnding;
  settings.displayLineCount = request.displayLineCount;
  if (!NumericPicture::isValid(request.format))
    return failedResult(5, "Invalid procedure call or argument", settings.errorEnding);
  OperateLine transform(request, frame);
  return runRichPass(inPath, outPath, frame, request.range, transform, settings, monitor);
}

}  // namespace lathwick::transform

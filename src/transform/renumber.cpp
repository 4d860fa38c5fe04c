#include "transform/renumber.h"

#include <charconv>

#include "platform/bytes.h"
#include "platform/errors.h"
#include "transform/renumber_references.h"
#include "transform/search_match.h"

namespace lathwick::transform {

namespace {
// Characters + , - . / and the digits belong to an old sequence number.
bool isNumberCharacter(char c) { return c >= 43 && c <= 57; }

void appendNumber(std::string& out, std::int64_t n) {
  char buf[24];
  const auto r = std::to_chars(buf, buf + sizeof buf, n);
  out.append(buf, r.ptr);
}
}  // namespace

RenumberLine::RenumberLine(const RenumberRequest& request)
    : request_(request),
      sequence_(trimBlanks(request.sequenceText)),
      comment_(trimBlanks(request.commentStart)),
      current_(request.start) {}

RenumberLine::Action RenumberLine::decide(long s, long c) const {
  const bool commentFirst = c > 0 && (s == 0 || c < s);
  switch (request_.method) {
    case RenumberMethod::AllLines: return commentFirst || s == 0 ? Action::Insert : Action::Replace;
    case RenumberMethod::ExistingNumbers: return commentFirst || s == 0 ? Action::Keep : Action::Replace;
    case RenumberMethod::NonCommentLines:
      if (commentFirst) return Action::Keep;
      return s == 0 ? Action::Insert : Action::Replace;
  }
  return Action::Keep;
}

void RenumberLine::advance() {
  current_ += request_.increment;
  if (current_ > INT32_MAX || current_ < INT32_MIN) throw makeError(err::kOverflow);
}

bool RenumberLine::apply(long number, std::string& line) {
  if (!request_.range.contains(number)) return false;
  const size_t firstNonBlank = line.find_first_not_of(' ');
  if (firstNonBlank == std::string::npos) return false;  // blank lines keep their place
  if (request_.skipCharacters.find(line[firstNonBlank]) != std::string::npos) return false;

  const long s = positionOf(line, sequence_);
  const long c = positionOf(line, comment_);
  switch (decide(s, c)) {
    case Action::Keep: return false;
    case Action::Insert:
      scratch_.assign(sequence_);
      appendNumber(scratch_, current_);
      scratch_.append(line);
      line.swap(scratch_);
      advance();
      return true;
    case Action::Replace: {
      const size_t before = static_cast<size_t>(s - 1);
      size_t rest = before + sequence_.size();
      while (rest < line.size() && isNumberCharacter(line[rest])) ++rest;
      if (line.find_first_not_of(' ', rest) == std::string::npos) {
        // A block holding nothing but its number loses it; the number is not used up.
        line.erase(before, rest - before);
        return true;
      }
      scratch_.assign(line, 0, before);
      scratch_.append(sequence_);
      appendNumber(scratch_, current_);
      scratch_.append(line, rest, std::string::npos);
      const bool changed = scratch_ != line;
      line.swap(scratch_);
      advance();
      return changed;
    }
  }
  return false;
}

PassResult runRenumber(const std::string& inPath, const std::string& outPath, const RenumberRequest& request,
                       PassMonitor& monitor) {
  if (trimBlanks(request.sequenceText).empty()) {
    PassResult r;
    r.outcome = PassOutcome::Refused;
    r.message = kSequenceRequired;
    r.title = kSequenceRequiredTitle;
    return r;
  }
  if (request.updateReferences) return runRenumberKeepingReferences(inPath, outPath, request, monitor);
  RenumberLine transform(request);
  PlainPassSettings settings;
  settings.statusText = kRenumberingStatus;
  settings.failureMessage = kRenumberFailed;
  return runPlainPass(inPath, outPath, transform, settings, monitor);
}

}  // namespace lathwick::transform

#pragma once
// Renumber: gives the blocks of the range new sequence numbers, by one of three methods, leaving
// blank lines, skipped lines and comments alone.
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/pass_monitor.h"
#include "transform/operation_range.h"
#include "platform/pass_result.h"
#include "transform/plain_pass.h"

namespace lathwick::transform {

inline constexpr const char* kRenumberingStatus = "Renumbering file...";
inline constexpr const char* kRenumberFailed = "Unable to renumber file.";
inline constexpr const char* kSequenceRequired = "Sequence character must be specified.";
inline constexpr const char* kSequenceRequiredTitle = "Error";

enum class RenumberMethod : int {
  AllLines = 0,          // "&All lines"
  ExistingNumbers = 1,   // "&Existing numbers only"
  NonCommentLines = 2,   // "All &non-comment lines" (the default)
};

struct RenumberRequest {
  std::int32_t start = 100;
  std::int32_t increment = 1;
  RenumberMethod method = RenumberMethod::NonCommentLines;
  std::string sequenceText = "N";  // blanks are trimmed; used as a whole string
  std::string skipCharacters = "%";
  std::string commentStart = "(";  // the scheme's comment-start text; blanks are trimmed
  LineRange range;
  bool updateReferences = false;  // "Update references": rewrite the words that name a renumbered block
};

// The per-line work with its running number. Throws AppError 6 when the number leaves the
// 32-bit range.
class RenumberLine : public PlainLineTransform {
 public:
  explicit RenumberLine(const RenumberRequest& request);
  bool apply(long number, std::string& line) override;
  std::int32_t currentNumber() const { return static_cast<std::int32_t>(current_); }

 private:
  enum class Action { Keep, Insert, Replace };
  Action decide(long s, long c) const;
  void advance();

  RenumberRequest request_;
  std::string sequence_, comment_;
  std::int64_t current_;
  std::string scratch_;
};

// Refused with kSequenceRequired (outcome Refused) when the trimmed sequence text is empty. With
// `updateReferences` the references are kept (renumber_references.h) or the pass is refused.
PassResult runRenumber(const std::string& inPath, const std::string& outPath, const RenumberRequest& request,
                       PassMonitor& monitor);

}  // namespace lathwick::transform

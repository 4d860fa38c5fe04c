#pragma once
// Add spaces and remove spaces: reformat the code part of every line (through the first
// comment-start text, that text included) and leave the comment part after it untouched.
#include <string>
#include <string_view>

#include "platform/pass_monitor.h"
#include "platform/pass_result.h"
#include "transform/plain_pass.h"

namespace lathwick::transform {

inline constexpr const char* kAddingSpacesStatus = "Adding spaces...";
inline constexpr const char* kRemovingSpacesStatus = "Removing spaces...";
inline constexpr const char* kAddSpacesFailed = "Unable to expand file.";
inline constexpr const char* kRemoveSpacesFailed = "Unable to remove spaces.";

// Length of the code part of `line`: through the first occurrence of `commentStart` (already
// trimmed), or the whole line when it is absent or empty.
size_t codePartLength(std::string_view line, std::string_view commentStart);

// Puts a space where a letter directly follows a digit or a decimal point. The previous-numeric
// flag carries over from one line to the next, as the pass goes.
class AddSpacesLine : public PlainLineTransform {
 public:
  explicit AddSpacesLine(std::string commentStart);
  bool apply(long number, std::string& line) override;

 private:
  std::string comment_;
  bool previousNumeric_ = false;
  std::string scratch_;
};

// Deletes every space (code 32) of the code part; tabs and all else stay.
class RemoveSpacesLine : public PlainLineTransform {
 public:
  explicit RemoveSpacesLine(std::string commentStart);
  bool apply(long number, std::string& line) override;

 private:
  std::string comment_;
};

// `commentStart` is the scheme's comment-start text; blanks are trimmed.
PassResult runAddSpaces(const std::string& inPath, const std::string& outPath, const std::string& commentStart,
                        PassMonitor& monitor);
PassResult runRemoveSpaces(const std::string& inPath, const std::string& outPath, const std::string& commentStart,
                           PassMonitor& monitor);

}  // namespace lathwick::transform

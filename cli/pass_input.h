#pragma once
// The IN of a pass as the passes read it: a program with Linux line ends (LF, no CR) goes in as
// its CR LF twin, a temporary file removed again afterwards; any other IN goes in as it is.
// A plain-text OUT of such a program is written back with LF line ends.
#include <string>

#include "document/line_convention.h"
#include "platform/pass_result.h"

namespace lathwick::cli {

class PassInput {
 public:
  // An IN that cannot be read goes in as it is, for the pass to report.
  explicit PassInput(const std::string& in);
  ~PassInput();
  PassInput(const PassInput&) = delete;
  PassInput& operator=(const PassInput&) = delete;

  const std::string& path() const { return path_; }
  LineEnds lineEnds() const { return ends_; }

  // After a completed plain pass, OUT takes the IN's line ends. A failure to rewrite it turns
  // the result into a failed one.
  PassResult plainOut(PassResult result, const std::string& out) const;

 private:
  std::string path_;
  std::string twin_;  // empty when IN goes in as it is
  LineEnds ends_ = LineEnds::CrLf;
};

}  // namespace lathwick::cli

#pragma once
// Operate: arithmetic on the values of chosen address letters over the range, each new value
// written with a numeric picture and marked in the highlight colour.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/pass_monitor.h"
#include "transform/marker_insert.h"
#include "transform/numeric_picture.h"
#include "transform/operation_range.h"
#include "platform/pass_result.h"
#include "transform/rich_pass.h"
#include "format/pass_frame.h"

namespace lathwick::transform {

inline constexpr const char* kOperatingStatus = "Operating... [Esc] to cancel";
inline constexpr const char* kOperationsPhrase = " Operations made.";
inline constexpr const char* kOperateErrorEnding = " occurred during the operation.";
inline constexpr const char* kDivisionByZero = "Division by zero not allowed";
// Shown at once when "/" is chosen while the value is zero; the text differs by its full stop.
inline constexpr const char* kDivisionByZeroOnChoice = "Division by zero not allowed.";
inline constexpr const char* kValueRequired = "Value is required.";
inline constexpr const char* kAddressRequired = "Address is required.";
inline constexpr const char* kFormatRequired = "Format is required.";

// The dialog's entries as typed.
struct OperateEntries {
  std::string address;   // "XYZ"
  std::string op;        // "*", "+", "-" or "/"
  std::string value;     // "1"
  std::string format;    // "##0.0###"
};

struct OperateValidation {
  std::string message;        // empty when the entries are accepted
  bool resetOperator = false; // the operator box goes back to "+"
};

// The checks of the OK button, in their order; the first failure wins.
OperateValidation validateOperate(const OperateEntries& entries);

// Numeric reading of a value's characters from the left as far as they form a number: "1.5/2"
// reads 1.5, "+5" reads 5, a lone "-" reads 0.
double leadingValue(std::string_view text);

struct OperateRequest {
  std::string addresses = "XYZ";  // one address letter per character, compared case-sensitively
  char op = '*';                  // '*', '+', '-' or '/'
  double operand = 1;
  std::string format = "##0.0###";
  bool excludeComments = false;   // the stored search flags read as a boolean
  LineRange range;
  long displayLineCount = -1;
};

// The per-line work on an escaped line; `raw` is the line before escaping.
class OperateLine : public RichLineTransform {
 public:
  OperateLine(const OperateRequest& request, const PassFrame& frame);
  long transform(std::string_view raw, std::string& line, std::vector<Stretch>& marks) override;
  // The same with the markers put into the line.
  long apply(std::string_view raw, std::string& line);

 private:
  double compute(double value) const;
  // Changes every value of one address letter in the line; the number of values changed.
  long operateOn(char address, long open, long close, std::string& line, std::vector<Stretch>& marks);
  std::string addresses_;
  char op_;
  double operand_;
  NumericPicture picture_;
  bool excludeComments_;
  std::string open_, close_, markStart_, markEnd_;
  std::vector<Stretch> marks_;
  std::string number_, done_, scratch_;
};

// The operate pass. The caller validates first; a picture the formatter cannot read fails the
// pass with error 5.
PassResult runOperate(const std::string& inPath, const std::string& outPath, const OperateRequest& request,
                      const PassFrame& frame, PassMonitor& monitor);

}  // namespace lathwick::transform

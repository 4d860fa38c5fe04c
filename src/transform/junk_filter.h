#pragma once
// The junk filter: rewrites a program as clean text, printable characters only and every line
// ended by CR LF. Drops the leading noise (tape leader, blank lines, control characters), turns
// every line feed into CR LF and drops all other control characters and bytes from 127 up.
#include <string>
#include <string_view>

#include "platform/pass_monitor.h"
#include "platform/pass_result.h"

namespace lathwick::transform {

inline constexpr const char* kFilteringStatus = "Filtering file...";
inline constexpr const char* kJunkFilterFailed = "Unable to filter file.";

// Filters a stream given in pieces; the output of each piece is appended to `out`.
class JunkFilter {
 public:
  void feed(std::string_view bytes, std::string& out);
  void finish(std::string& out);  // the closing line break when the input did not end in LF

 private:
  bool inBody_ = false;
  unsigned char last_ = 0;
  bool any_ = false;
};

std::string junkFilter(std::string_view bytes);

// File to file; on success `reload` is true.
PassResult runJunkFilter(const std::string& inPath, const std::string& outPath, PassMonitor& monitor);

}  // namespace lathwick::transform

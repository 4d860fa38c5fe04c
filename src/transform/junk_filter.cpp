#include "transform/junk_filter.h"

#include <cstdio>
#include <new>
#include <vector>

#include "platform/errors.h"
#include "platform/file_system.h"
#include "transform/output_buffer.h"

namespace lathwick::transform {

void JunkFilter::feed(std::string_view bytes, std::string& out) {
  if (bytes.empty()) return;
  any_ = true;
  last_ = static_cast<unsigned char>(bytes.back());
  size_t i = 0;
  if (!inBody_) {
    while (i < bytes.size()) {
      const auto c = static_cast<unsigned char>(bytes[i]);
      if (c > 32 && c < 127) break;
      ++i;
    }
    if (i == bytes.size()) return;
    inBody_ = true;
  }
  // Copy runs of printable characters in one go.
  while (i < bytes.size()) {
    size_t run = i;
    while (run < bytes.size()) {
      const auto c = static_cast<unsigned char>(bytes[run]);
      if (c < 32 || c > 126) break;
      ++run;
    }
    out.append(bytes.data() + i, run - i);
    if (run == bytes.size()) break;
    if (bytes[run] == '\n') out.append("\r\n", 2);
    i = run + 1;
  }
}

void JunkFilter::finish(std::string& out) {
  if (!any_ || last_ != '\n') out.append("\r\n", 2);
}

std::string junkFilter(std::string_view bytes) {
  JunkFilter filter;
  std::string out;
  out.reserve(bytes.size() + bytes.size() / 16 + 2);
  filter.feed(bytes, out);
  filter.finish(out);
  return out;
}

PassResult runJunkFilter(const std::string& inPath, const std::string& outPath, PassMonitor& monitor) {
  monitor.statusText(kFilteringStatus);
  PassResult result;
  std::FILE* in = nullptr;
  try {
    in = std::fopen(nativePath(inPath).c_str(), "rb");
    if (!in) throw makeError(err::kFileNotFound);
    OutputBuffer out(outPath);
    JunkFilter filter;
    std::vector<char> block(1 << 16);
    std::string filtered;
    filtered.reserve(block.size() * 2 + 2);
    size_t n;
    while ((n = std::fread(block.data(), 1, block.size(), in)) > 0) {
      filtered.clear();
      filter.feed(std::string_view(block.data(), n), filtered);
      out.append(filtered);
    }
    if (std::ferror(in)) throw makeError(err::kPathFileAccessError);
    filtered.clear();
    filter.finish(filtered);
    out.append(filtered);
    out.commit();
    result.reload = true;
  } catch (const AppError& e) {
    result = PassResult{};
    result.outcome = PassOutcome::Failed;
    result.errorNumber = e.number();
    result.errorDescription = e.description();
    result.message = kJunkFilterFailed;
  } catch (const std::bad_alloc&) {
    result = PassResult{};
    result.outcome = PassOutcome::Failed;
    result.errorNumber = 7;
    result.errorDescription = "Out of memory";
    result.message = kJunkFilterFailed;
  }
  if (in) std::fclose(in);
  monitor.statusText(kReadyStatus);
  return result;
}

}  // namespace lathwick::transform

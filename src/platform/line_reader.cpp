#include "platform/line_reader.h"

#include <cstring>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

LineReader::LineReader(const std::string& path) : buf_(1 << 16) {
  file_ = std::fopen(nativePath(path).c_str(), "rb");
  if (!file_) throw makeError(err::kFileNotFound);
}

LineReader::~LineReader() {
  if (file_) std::fclose(file_);
}

bool LineReader::fill() {
  pos_ = 0;
  len_ = std::fread(buf_.data(), 1, buf_.size(), file_);
  return len_ > 0;
}

bool LineReader::next(std::string& line) {
  line.clear();
  if (pos_ >= len_ && !fill()) return false;
  for (;;) {
    const char* start = buf_.data() + pos_;
    const void* cr = std::memchr(start, '\r', len_ - pos_);
    if (cr) {
      const size_t n = static_cast<const char*>(cr) - start;
      line.append(start, n);
      pos_ += n + 1;
      if (pos_ >= len_ && !fill()) return true;
      if (buf_[pos_] == '\n') ++pos_;
      return true;
    }
    line.append(start, len_ - pos_);
    if (!fill()) return true;  // last line without a break
  }
}

}  // namespace lathwick

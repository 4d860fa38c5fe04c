#pragma once
// Collects a pass's output in one reused block and hands it to the atomic writer in large
// pieces, so writing a line costs a copy into memory rather than a library call per piece.
#include <string>
#include <string_view>

#include "platform/atomic_file.h"

namespace lathwick::transform {

class OutputBuffer {
 public:
  // Pass outputs are rewritten on every run, so they skip the disk flush; the rename still
  // means a failed run never leaves a half-written file in place.
  explicit OutputBuffer(const std::string& path) : writer_(path, Durability::Scratch) {
    buf_.reserve(kBlock + 4096);
  }

  void append(std::string_view bytes) {
    buf_.append(bytes);
    if (buf_.size() >= kBlock) flush();
  }
  void appendLine(std::string_view line) {
    buf_.append(line);
    buf_.append("\r\n", 2);
    if (buf_.size() >= kBlock) flush();
  }
  // Writes what is left and renames the temporary file over the target; throws AppError.
  void commit() {
    flush();
    writer_.commit();
  }

 private:
  static constexpr size_t kBlock = 1 << 17;
  void flush() {
    writer_.write(buf_);
    buf_.clear();
  }
  AtomicFileWriter writer_;
  std::string buf_;
};

}  // namespace lathwick::transform

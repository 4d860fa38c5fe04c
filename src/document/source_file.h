#pragma once
// A document file read a piece at a time: a large program or rich text is never held whole by
// the code that reads it, only by whatever the pieces go into.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>

namespace lathwick {

class SourceFile {
 public:
  explicit SourceFile(const std::string& path);  // throws AppError when it cannot be opened
  ~SourceFile();
  SourceFile(const SourceFile&) = delete;
  SourceFile& operator=(const SourceFile&) = delete;

  // The size when the file was opened (a guide for buffers, not a promise).
  std::uint64_t size() const { return size_; }
  // Up to `capacity` bytes; 0 at the end. Throws AppError when the file cannot be read.
  std::size_t read(char* into, std::size_t capacity);

 private:
  std::FILE* file_ = nullptr;
  std::uint64_t size_ = 0;
};

}  // namespace lathwick

#pragma once
// The bytes of a document file being loaded, mapped into memory rather than copied: a large
// colorized program is read once, straight from the system's file cache. Where mapping is not
// possible the file is read whole instead.
#include <string>
#include <string_view>

namespace lathwick {

class SourceFile {
 public:
  explicit SourceFile(const std::string& path);  // throws AppError when it cannot be read
  ~SourceFile();
  SourceFile(const SourceFile&) = delete;
  SourceFile& operator=(const SourceFile&) = delete;

  std::string_view bytes() const { return bytes_; }

 private:
  std::string_view bytes_;
  void* mapping_ = nullptr;
  std::size_t mappedSize_ = 0;
  std::string copy_;
};

}  // namespace lathwick

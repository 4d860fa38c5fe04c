#pragma once
// Builds a long string from many pieces without re-allocating on every piece: the caller's
// string is used as a buffer that grows in large steps of blanks, and pieces are written into
// it in place. Cleanup cuts the buffer back to the text actually written.
#include <cstdint>
#include <functional>
#include <string>

namespace lathwick {

inline constexpr const char* kMissingCleanupMessage = "Cleanup method must be executed.";

class clsMidConcat {
 public:
  // Called with kMissingCleanupMessage when the object is destroyed before any Cleanup; the
  // editor shows it as a critical message, the default reporter writes it to stderr.
  using Reporter = std::function<void(const std::string&)>;
  explicit clsMidConcat(Reporter reporter = {});
  ~clsMidConcat();
  clsMidConcat(const clsMidConcat&) = delete;
  clsMidConcat& operator=(const clsMidConcat&) = delete;

  void Concat(std::string& buffer, const std::string& piece);
  void Cleanup(std::string& buffer);

  std::int32_t BufferLen() const { return bufferLen_; }
  void BufferLen(std::int32_t step) { bufferLen_ = step; }

 private:
  std::int32_t bufferLen_ = 50000;
  std::int32_t used_ = 0;
  bool cleanedUp_ = false;
  Reporter reporter_;
};

}  // namespace lathwick

#include "document/source_file.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

SourceFile::SourceFile(const std::string& path) {
  const std::string native = nativePath(path);
  file_ = std::fopen(native.c_str(), "rb");
  if (!file_) throw makeError(errno == ENOENT ? err::kFileNotFound : err::kPermissionDenied);
  std::setvbuf(file_, nullptr, _IONBF, 0);  // the callers read in large pieces of their own
  std::error_code ec;
  const auto bytes = std::filesystem::file_size(native, ec);
  size_ = ec ? 0 : static_cast<std::uint64_t>(bytes);
}

SourceFile::~SourceFile() {
  if (file_) std::fclose(file_);
}

std::size_t SourceFile::read(char* into, std::size_t capacity) {
  const std::size_t got = std::fread(into, 1, capacity, file_);
  if (got < capacity && std::ferror(file_)) throw makeError(err::kPermissionDenied);
  return got;
}

}  // namespace lathwick

#include "document/rtf_source_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

SourceFile::SourceFile(const std::string& path) {
  const std::string native = nativePath(path);
  const int fd = ::open(native.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) throw makeError(errno == ENOENT ? err::kFileNotFound : err::kPermissionDenied);
  struct stat st {};
  if (::fstat(fd, &st) == 0 && S_ISREG(st.st_mode) && st.st_size > 0) {
    void* p = ::mmap(nullptr, static_cast<std::size_t>(st.st_size), PROT_READ, MAP_PRIVATE, fd, 0);
    if (p != MAP_FAILED) {
      mapping_ = p;
      mappedSize_ = static_cast<std::size_t>(st.st_size);
      ::madvise(p, mappedSize_, MADV_SEQUENTIAL);
      bytes_ = std::string_view(static_cast<const char*>(p), mappedSize_);
    }
  }
  ::close(fd);
  if (mapping_) return;
  auto whole = readWholeFile(path);
  if (!whole) throw makeError(err::kPermissionDenied);
  copy_ = std::move(*whole);
  bytes_ = copy_;
}

SourceFile::~SourceFile() {
  if (mapping_) ::munmap(mapping_, mappedSize_);
}

}  // namespace lathwick

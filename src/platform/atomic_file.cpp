#include "platform/atomic_file.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

namespace {
AppError errorFromErrno(int e) {
  switch (e) {
    case ENOSPC: return makeError(err::kDiskFull);
    case EACCES:
    case EPERM:
    case EROFS: return makeError(err::kPermissionDenied);
    case ENOENT:
    case ENOTDIR: return makeError(err::kPathNotFound);
    default: return makeError(err::kPathFileAccessError);
  }
}
}  // namespace

AtomicFileWriter::AtomicFileWriter(const std::string& path, Durability durability)
    : target_(nativePath(path)), durability_(durability) {
  std::vector<char> name(target_.begin(), target_.end());
  const std::string suffix = ".lwtmp-XXXXXX";
  name.insert(name.end(), suffix.begin(), suffix.end());
  name.push_back('\0');
  const int fd = ::mkstemp(name.data());
  if (fd < 0) throw errorFromErrno(errno);
  temp_ = name.data();
  // Keep the permissions of a file being replaced; new files get the usual 0666 & ~umask.
  struct stat st {};
  if (::stat(target_.c_str(), &st) == 0) {
    ::fchmod(fd, st.st_mode & 07777);
  } else {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::fchmod(fd, 0666 & ~mask);
  }
  file_ = ::fdopen(fd, "wb");
  if (!file_) {
    ::close(fd);
    ::unlink(temp_.c_str());
    throw errorFromErrno(errno);
  }
  std::setvbuf(file_, nullptr, _IOFBF, 1 << 16);
}

AtomicFileWriter::~AtomicFileWriter() {
  if (file_) {
    std::fclose(file_);
    ::unlink(temp_.c_str());
  }
}

void AtomicFileWriter::write(std::string_view bytes) {
  if (!file_ || failed_) return;
  if (!bytes.empty() && std::fwrite(bytes.data(), 1, bytes.size(), file_) != bytes.size()) failed_ = true;
}

void AtomicFileWriter::writeLine(std::string_view line) {
  write(line);
  write("\r\n");
}

void AtomicFileWriter::commit() {
  if (!file_) return;
  int e = 0;
  if (failed_ || std::fflush(file_) != 0) e = errno ? errno : EIO;
  if (!e && durability_ == Durability::Durable && ::fsync(::fileno(file_)) != 0) e = errno;
  std::fclose(file_);
  file_ = nullptr;
  if (!e && ::rename(temp_.c_str(), target_.c_str()) != 0) e = errno;
  if (e) {
    ::unlink(temp_.c_str());
    throw errorFromErrno(e);
  }
}

void writeFileAtomically(const std::string& path, std::string_view bytes, Durability durability) {
  AtomicFileWriter w(path, durability);
  w.write(bytes);
  w.commit();
}

}  // namespace lathwick

#include "document/open_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/app_folder.h"

namespace lathwick {

namespace {
AppError openError(int e) {
  switch (e) {
    case ENOENT: return makeError(err::kFileNotFound);
    case ENOTDIR: return makeError(err::kPathNotFound);
    case EACCES:
    case EPERM:
    case EROFS: return makeError(err::kPermissionDenied);
    case EISDIR: return makeError(err::kPathFileAccessError);
    default: return makeError(err::kPathFileAccessError);
  }
}
}  // namespace

OpenedFile::~OpenedFile() {
  if (!file_) return;
  std::fclose(file_);
  if (!temp_.empty()) ::unlink(temp_.c_str());  // an output file never closed is discarded
}

void OpenedFile::close() {
  if (!file_) return;
  const bool flushed = std::fflush(file_) == 0;
  std::fclose(file_);
  file_ = nullptr;
  if (temp_.empty()) return;
  const std::string temp = std::move(temp_);
  temp_.clear();
  if (!flushed || ::rename(temp.c_str(), target_.c_str()) != 0) {
    const int e = errno;
    ::unlink(temp.c_str());
    throw openError(e);
  }
}

std::unique_ptr<OpenedFile> openInMode(const std::string& name, FileMode mode, int recordLength) {
  std::unique_ptr<OpenedFile> f(new OpenedFile);
  f->mode_ = mode;
  f->recordLength_ = recordLength;
  f->target_ = nativePath(name);
  const char* how = "rb";
  std::string path = f->target_;
  switch (mode) {
    case FileMode::Input: how = "rb"; break;
    case FileMode::Append: how = "ab"; break;
    case FileMode::Random:
    case FileMode::Binary: how = isRegularFile(path) ? "r+b" : "w+b"; break;
    case FileMode::Output: {
      std::vector<char> tmpl(path.begin(), path.end());
      for (char c : std::string(".lwtmp-XXXXXX")) tmpl.push_back(c);
      tmpl.push_back('\0');
      const int fd = ::mkstemp(tmpl.data());
      if (fd < 0) throw openError(errno);
      f->temp_ = tmpl.data();
      f->file_ = ::fdopen(fd, "wb");
      if (!f->file_) {
        ::close(fd);
        throw openError(errno);
      }
      return f;
    }
  }
  f->file_ = std::fopen(path.c_str(), how);
  if (!f->file_) throw openError(errno);
  return f;
}

std::unique_ptr<OpenedFile> OpenFile(const std::string& name, int mode, int recordLength, bool ask,
                                     const OpenFilePrompts& prompts) {
  if (likePattern(name, "*;-?*")) throw makeError(err::kBadFileName);
  if (ask) {
    const bool exists = FileExists(name);
    const auto confirm = [&](const std::string& text, const std::string& caption) {
      return !prompts.okCancel || prompts.okCancel(text, caption);
    };
    if (mode == static_cast<int>(FileMode::Output) && exists) {
      if (!confirm("Replace contents of " + name + "?", "Replace File?")) return nullptr;
    } else if (!exists) {
      if (!confirm("The file " + name + " does not exist. Do you want to create it?", "Create File?"))
        return nullptr;
    }
  }
  if (mode < 1 || mode > 5) return nullptr;
  return openInMode(name, static_cast<FileMode>(mode), recordLength);
}

}  // namespace lathwick

#include "platform/file_stamp.h"

#include <sys/stat.h>

#include "platform/file_system.h"

namespace lathwick {

FileStamp fileStampOf(const std::string& path) {
  struct stat st {};
  FileStamp stamp;
  if (::stat(nativePath(path).c_str(), &st) != 0 || !S_ISREG(st.st_mode)) return stamp;
  stamp.exists = true;
  stamp.modifiedNs = static_cast<std::int64_t>(st.st_mtim.tv_sec) * 1'000'000'000 + st.st_mtim.tv_nsec;
  stamp.size = static_cast<std::int64_t>(st.st_size);
  stamp.device = static_cast<std::uint64_t>(st.st_dev);
  stamp.inode = static_cast<std::uint64_t>(st.st_ino);
  return stamp;
}

}  // namespace lathwick

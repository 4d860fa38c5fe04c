#pragma once
// What a file on disk looks like from outside: there or not, when it was last written, how long
// it is and which file it is. Two stamps that differ mean somebody wrote (or replaced) the file
// in between.
#include <cstdint>
#include <string>

namespace lathwick {

struct FileStamp {
  bool exists = false;
  std::int64_t modifiedNs = 0;  // nanoseconds since 1970
  std::int64_t size = 0;
  std::uint64_t device = 0, inode = 0;  // a file replaced by a rename is another file
  bool operator==(const FileStamp&) const = default;
};

// Follows links; a path that is not a readable regular file does not exist.
FileStamp fileStampOf(const std::string& path);

}  // namespace lathwick

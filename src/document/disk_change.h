#pragma once
// A document's file changed or deleted by another program while the document is open (a CAM
// system posting the program again): how to tell, and what the user is told.
#include <string>

#include "platform/file_stamp.h"

namespace lathwick {

enum class DiskChange { None, Changed, Deleted };

// `remembered` is the file as the editor last read, wrote or asked about it.
DiskChange judgeDiskChange(const FileStamp& remembered, const FileStamp& now);

// The question for a changed file, naming it; a document with changes of its own says they
// would be replaced (Undo brings them back).
std::string reloadQuestion(const std::string& path, bool unsavedChanges);
// Said once for a file that is gone; the document stays open, marked changed.
std::string deletedNotice(const std::string& path);
inline constexpr const char* kDiskChangeCaption = "File Changed";
inline constexpr const char* kDiskDeletedCaption = "File Deleted";

}  // namespace lathwick

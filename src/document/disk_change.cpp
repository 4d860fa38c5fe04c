#include "document/disk_change.h"

namespace lathwick {

DiskChange judgeDiskChange(const FileStamp& remembered, const FileStamp& now) {
  if (!now.exists) return remembered.exists ? DiskChange::Deleted : DiskChange::None;
  return now == remembered ? DiskChange::None : DiskChange::Changed;
}

std::string reloadQuestion(const std::string& path, bool unsavedChanges) {
  std::string text = "The file " + path + " has been changed by another program.\r\n\r\n";
  if (unsavedChanges)
    text += "This document also has changes that are not saved. Reloading replaces them with the file's "
            "text (Undo brings them back).\r\n\r\n";
  return text + "Reload the file?";
}

std::string deletedNotice(const std::string& path) {
  return "The file " + path + " has been deleted or moved by another program.\r\n\r\n"
         "Its text stays open here and counts as changed: save it to write the file again.";
}

}  // namespace lathwick

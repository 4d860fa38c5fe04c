#include "document/file_errors.h"

namespace lathwick {

namespace {
struct FileErrorRow {
  int number;
  const char* text;
};

// 57 is the device I/O error number, and it is the one that carries "The disk is full.";
// 61 (disk full) is deliberately absent and shows its own description.
constexpr FileErrorRow kFileErrors[] = {
    {52, "That filename is illegal."},
    {54, "Can't open your file for that type of access."},
    {55, "That file is already open."},
    {57, "The disk is full."},
    {62,
     "This file has a nonstandard end-of-file marker,"
     "or an attempt was made to read beyond "
     "the end-of-file marker."},
    {64, "That filename is illegal."},
    {68, "That device appears to be unavailable."},
    {71, "The disk is not ready."},
    {76, "That path doesn't exist."},
};
}  // namespace

std::string FileErrorText(int number, const std::string& description) {
  for (const auto& row : kFileErrors)
    if (row.number == number) return row.text;
  return description;
}

}  // namespace lathwick

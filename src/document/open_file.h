#pragma once
// Opens a data file for one of the five access modes after the checks and questions the
// program asks first: a name of the form "*;-?*" is refused, and with `ask` the user confirms
// replacing an existing file (output) or creating a missing one.
#include <cstdio>
#include <functional>
#include <memory>
#include <string>

namespace lathwick {

enum class FileMode { Output = 1, Input = 2, Append = 3, Random = 4, Binary = 5 };

// An open file. Output goes to a temporary file that replaces the target only on close(), so
// an interrupted write never truncates the existing file.
class OpenedFile {
 public:
  ~OpenedFile();
  OpenedFile(const OpenedFile&) = delete;
  OpenedFile& operator=(const OpenedFile&) = delete;

  std::FILE* handle() const { return file_; }
  FileMode mode() const { return mode_; }
  int recordLength() const { return recordLength_; }
  void close();  // throws AppError when an output file cannot be put in place

 private:
  friend std::unique_ptr<OpenedFile> openInMode(const std::string&, FileMode, int);
  OpenedFile() = default;
  std::FILE* file_ = nullptr;
  FileMode mode_ = FileMode::Input;
  int recordLength_ = 0;
  std::string target_, temp_;
};

// The questions OpenFile may ask: OK returns true, Cancel false.
struct OpenFilePrompts {
  std::function<bool(const std::string& message, const std::string& caption)> okCancel;
};

// Returns the open file, or nullptr when the user declined or the mode is not 1 to 5.
// Throws AppError 64 for a name matching "*;-?*", and the open's own error when it fails.
std::unique_ptr<OpenedFile> OpenFile(const std::string& name, int mode, int recordLength, bool ask,
                                     const OpenFilePrompts& prompts);

}  // namespace lathwick

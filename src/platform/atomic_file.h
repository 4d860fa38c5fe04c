#pragma once
// Writes a file through a temporary file in the same folder and renames it over the target on
// commit(), so a crash or an error never leaves a truncated or half-written file behind.
#include <cstdio>
#include <string>
#include <string_view>

namespace lathwick {

class AtomicFileWriter {
 public:
  explicit AtomicFileWriter(const std::string& path);  // throws AppError when it cannot create
  ~AtomicFileWriter();                                  // without commit() the target is untouched
  AtomicFileWriter(const AtomicFileWriter&) = delete;
  AtomicFileWriter& operator=(const AtomicFileWriter&) = delete;

  void write(std::string_view bytes);
  void writeLine(std::string_view line);  // the line followed by CR LF
  void commit();                          // throws AppError on a write, flush or rename failure
  const std::string& path() const { return target_; }

 private:
  std::string target_;
  std::string temp_;
  std::FILE* file_ = nullptr;
  bool failed_ = false;
};

// Whole-file convenience: writes bytes atomically; throws AppError on failure.
void writeFileAtomically(const std::string& path, std::string_view bytes);

}  // namespace lathwick

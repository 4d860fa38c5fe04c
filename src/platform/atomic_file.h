#pragma once
// Writes a file through a temporary file in the same folder and renames it over the target on
// commit(), so a crash or an error never leaves a truncated or half-written file behind.
#include <cstdio>
#include <string>
#include <string_view>

namespace lathwick {

// Durable writes are flushed to the disk before the rename, so that even a power cut leaves the
// old or the new file; scratch work files (rebuilt on every pass) skip that wait.
enum class Durability { Durable, Scratch };

class AtomicFileWriter {
 public:
  // Throws AppError when it cannot create the temporary file.
  explicit AtomicFileWriter(const std::string& path, Durability durability = Durability::Durable);
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
  Durability durability_;
};

// Whole-file convenience: writes bytes atomically; throws AppError on failure.
void writeFileAtomically(const std::string& path, std::string_view bytes,
                         Durability durability = Durability::Durable);

}  // namespace lathwick

#pragma once
// A program being opened is copied to the work file, and the window shows what the copy holds.
// The copy is made on a helper thread while the window loads the same bytes from the program
// itself, so the program is read about once and the writing is off the window's thread. Only a
// program without any CR is copied first (it is read once, its twin written as it is read): the
// window must see its CR LF twin, which only the copy has.
#include <string>
#include <thread>

#include "document/line_convention.h"

namespace lathwick {

class WorkCopy {
 public:
  // Starts the copy of `program` to `workFile`; `rich` when it is loaded as rich text (copied
  // byte for byte). Throws AppError when the program cannot be read, or a twin not written.
  WorkCopy(std::string program, std::string workFile, bool rich);
  ~WorkCopy();  // waits for the copy
  WorkCopy(const WorkCopy&) = delete;
  WorkCopy& operator=(const WorkCopy&) = delete;

  // The file to load into the window: the program, or its twin.
  const std::string& loadFrom() const { return loadFrom_; }
  LineEnds lineEnds() const { return lineEnds_; }
  // Waits for the copy; throws AppError 75 when it failed.
  void finish();

 private:
  std::string loadFrom_;
  LineEnds lineEnds_ = LineEnds::CrLf;
  bool copied_ = true;
  std::thread copier_;
};

}  // namespace lathwick

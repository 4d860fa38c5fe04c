#include "document/work_copy.h"

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

WorkCopy::WorkCopy(std::string program, std::string workFile, bool rich) {
  if (!rich) {
    if (const auto ends = writeTwinUnlessCr(program, workFile)) {
      lineEnds_ = *ends;  // the twin is made (for a file without breaks, the same bytes)
      loadFrom_ = std::move(workFile);
      return;
    }
  }
  loadFrom_ = program;
  copier_ = std::thread([this, from = std::move(program), to = std::move(workFile)] {
    copied_ = copyFile(from, to, Durability::Scratch);
  });
}

WorkCopy::~WorkCopy() {
  if (copier_.joinable()) copier_.join();
}

void WorkCopy::finish() {
  if (copier_.joinable()) copier_.join();
  if (!copied_) throw makeError(err::kPathFileAccessError);
}

}  // namespace lathwick

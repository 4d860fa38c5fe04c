#include "document/work_copy.h"

#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {

WorkCopy::WorkCopy(std::string program, std::string workFile, bool rich) {
  if (!rich) lineEnds_ = lineEndsOfFile(program);
  if (lineEnds_ == LineEnds::Lf) {
    copyAsCrLfTwin(program, workFile);
    loadFrom_ = std::move(workFile);
    return;
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

#include "shell/string_accumulator.h"

#include <cstdio>

namespace lathwick {

clsMidConcat::clsMidConcat(Reporter reporter) : reporter_(std::move(reporter)) {}

clsMidConcat::~clsMidConcat() {
  if (cleanedUp_) return;
  if (reporter_) reporter_(kMissingCleanupMessage);
  else std::fprintf(stderr, "%s\n", kMissingCleanupMessage);
}

void clsMidConcat::Concat(std::string& buffer, const std::string& piece) {
  const auto length = static_cast<std::int32_t>(piece.size());
  // Grows also when the piece would exactly fill the buffer (and for an empty piece on an
  // empty buffer): the comparison is "greater than or equal".
  if (used_ + length >= static_cast<std::int32_t>(buffer.size()))
    buffer.append(static_cast<size_t>(length > bufferLen_ ? length : bufferLen_), ' ');
  buffer.replace(static_cast<size_t>(used_), piece.size(), piece);
  used_ += length;
}

void clsMidConcat::Cleanup(std::string& buffer) {
  buffer.resize(static_cast<size_t>(used_));
  cleanedUp_ = true;
  used_ = 0;
}

}  // namespace lathwick

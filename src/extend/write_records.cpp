#include "extend/write_records.h"

#include <charconv>

#include "platform/errors.h"

namespace lathwick::extend {
namespace {
AppError pastEnd() { return AppError(kInputPastEnd, "Input past end of file"); }
AppError badFormat() { return AppError(kInvalidFileFormat, "Invalid file format"); }
bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isBreak(char c) { return c == '\r' || c == '\n'; }
}  // namespace

RecordReader::RecordReader(std::string bytes) : bytes_(std::move(bytes)) {
  for (const char c : bytes_) {
    const auto u = static_cast<unsigned char>(c);
    if (u < 32 && c != '\t' && !isBreak(c)) throw badFormat();
  }
}

void RecordReader::skipBlanks() {
  while (pos_ < bytes_.size() && isBlank(bytes_[pos_])) ++pos_;
}

void RecordReader::endField() {
  skipBlanks();
  if (pos_ >= bytes_.size()) return;
  const char c = bytes_[pos_];
  if (c == ',') {
    ++pos_;
  } else if (c == '\r') {
    ++pos_;
    if (pos_ < bytes_.size() && bytes_[pos_] == '\n') ++pos_;
  } else if (c == '\n') {
    ++pos_;
  } else {
    throw badFormat();  // text after a closing quote: a quote inside a field, or a broken file
  }
}

std::string RecordReader::quoted() {
  skipBlanks();
  if (pos_ >= bytes_.size()) throw pastEnd();
  if (bytes_[pos_] != '"') throw badFormat();
  const std::size_t close = bytes_.find('"', pos_ + 1);
  if (close == std::string::npos) throw pastEnd();  // unbalanced quote: the field never ends
  std::string field = bytes_.substr(pos_ + 1, close - pos_ - 1);
  pos_ = close + 1;
  endField();
  return field;
}

std::int16_t RecordReader::integer() {
  skipBlanks();
  if (pos_ >= bytes_.size()) throw pastEnd();
  std::size_t end = pos_;
  while (end < bytes_.size() && bytes_[end] != ',' && !isBreak(bytes_[end])) ++end;
  std::size_t last = end;
  while (last > pos_ && isBlank(bytes_[last - 1])) --last;
  const char* first = bytes_.data() + pos_;
  if (*first == '+') ++first;
  long value = 0;
  const auto [ptr, ec] = std::from_chars(first, bytes_.data() + last, value);
  if (first == bytes_.data() + last || ptr != bytes_.data() + last) throw makeError(err::kTypeMismatch);
  if (ec != std::errc() || value < -32768 || value > 32767) throw makeError(err::kOverflow);
  pos_ = end;
  endField();
  return static_cast<std::int16_t>(value);
}

bool RecordReader::atEnd() const {
  for (std::size_t i = pos_; i < bytes_.size(); ++i)
    if (!isBlank(bytes_[i]) && !isBreak(bytes_[i])) return false;
  return true;
}

void RecordReader::expectEnd() const {
  if (!atEnd()) throw badFormat();
}

std::string quotedRecord(std::initializer_list<std::string_view> fields) {
  std::string record;
  for (const std::string_view field : fields) {
    if (!record.empty()) record += ',';
    record += '"';
    record += field;
    record += '"';
  }
  return record + "\r\n";
}

std::string numberRecord(std::initializer_list<long> numbers) {
  std::string record;
  for (const long n : numbers) {
    if (!record.empty()) record += ',';
    record += std::to_string(n);
  }
  return record + "\r\n";
}

}  // namespace lathwick::extend

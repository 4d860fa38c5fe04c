#pragma once
// The comma-separated records of the small list files (the send-to list, the easy-text
// categories): every text field in double quotes, numbers bare, fields separated by commas,
// each record ending in CR LF. A quoted field runs to the next double quote, so it may hold
// commas and line breaks but never a double quote itself.
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace lathwick::extend {

// Error numbers the reader raises (as AppError), with the runtime's descriptions.
inline constexpr int kInputPastEnd = 62;       // "Input past end of file"
inline constexpr int kInvalidFileFormat = 321;  // "Invalid file format"

class RecordReader {
 public:
  // Refuses input that is not text (control bytes other than tab, CR and LF).
  explicit RecordReader(std::string bytes);

  std::string quoted();          // the next field, which must be in double quotes
  std::int16_t integer();        // the next field, a bare 16-bit whole number
  // True when only blanks and line breaks are left.
  bool atEnd() const;
  // Throws unless atEnd(): records beyond the count mean the file is not what it says.
  void expectEnd() const;

 private:
  void skipBlanks();
  void endField();  // the comma or line break after a field (or the end of the input)
  std::string bytes_;
  std::size_t pos_ = 0;
};

// One record: the texts in double quotes, separated by commas, CR LF at the end.
std::string quotedRecord(std::initializer_list<std::string_view> fields);
// One record of bare numbers.
std::string numberRecord(std::initializer_list<long> numbers);

}  // namespace lathwick::extend

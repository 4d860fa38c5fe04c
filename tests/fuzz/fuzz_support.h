#pragma once
// What the fuzz targets share: the check that turns a broken promise into a finding, a scratch
// folder for the passes that work through files, and a reader of the targets' input layout.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace lathwick::fuzz {

// Under libFuzzer a failed check aborts (the fuzzer keeps the input); in the replay test it
// throws, so the test names the file and goes on with the next one.
[[noreturn]] void fail(const char* what, const char* file, int line);

#define FUZZ_CHECK(condition) \
  ((condition) ? void() : ::lathwick::fuzz::fail(#condition, __FILE__, __LINE__))

// A folder of this process for work files; made once, reused by every input.
const std::string& scratchFolder();
std::string scratchFile(const char* name);
void writeFile(const std::string& path, std::string_view bytes);
std::string readFile(const std::string& path);

// Inputs of the targets that take settings start with one line of tab-separated fields; the
// rest of the input is the program. Missing fields read as "".
class FieldReader {
 public:
  FieldReader(const std::uint8_t* data, std::size_t size);
  std::string next();
  std::string_view body() const { return body_; }

 private:
  std::string_view fields_, body_;
};

}  // namespace lathwick::fuzz

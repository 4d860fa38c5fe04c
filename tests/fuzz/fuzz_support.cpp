#include "fuzz_support.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>


namespace lathwick::fuzz {

void fail(const char* what, const char* file, int line) {
  const std::string message = std::string(file) + ":" + std::to_string(line) + ": check failed: " + what;
#ifdef LATHWICK_FUZZ_REPLAY
  throw std::logic_error(message);
#else
  std::fprintf(stderr, "%s\n", message.c_str());
  std::abort();
#endif
}

const std::string& scratchFolder() {
  static const std::string folder = [] {
    // Memory-backed when the system has it: the passes write a few files per input.
    const std::filesystem::path base = std::filesystem::exists("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path();
    const auto path = base / ("lathwick-fuzz-" + std::to_string(::getpid()));
    std::filesystem::create_directories(path);
    return path.string();
  }();
  // Registered once the name exists, so the folder goes before the name does.
  static const bool removedAtExit = std::atexit([] {
    std::error_code ec;
    std::filesystem::remove_all(scratchFolder(), ec);
  }) == 0;
  (void)removedAtExit;
  return folder;
}

std::string scratchFile(const char* name) { return scratchFolder() + "/" + name; }

void writeFile(const std::string& path, std::string_view bytes) {
  std::FILE* f = std::fopen(path.c_str(), "wb");
  FUZZ_CHECK(f != nullptr);
  if (!bytes.empty()) std::fwrite(bytes.data(), 1, bytes.size(), f);
  std::fclose(f);
}

std::string readFile(const std::string& path) {
  std::string out;
  std::FILE* f = std::fopen(path.c_str(), "rb");
  if (!f) return out;
  char buf[65536];
  for (size_t n; (n = std::fread(buf, 1, sizeof buf, f)) > 0;) out.append(buf, n);
  std::fclose(f);
  return out;
}

FieldReader::FieldReader(const std::uint8_t* data, std::size_t size) {
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const size_t end = all.find('\n');
  fields_ = all.substr(0, end);
  body_ = end == std::string_view::npos ? std::string_view() : all.substr(end + 1);
}

std::string FieldReader::next() {
  const size_t tab = fields_.find('\t');
  std::string field(fields_.substr(0, tab));
  fields_ = tab == std::string_view::npos ? std::string_view() : fields_.substr(tab + 1);
  return field;
}

}  // namespace lathwick::fuzz

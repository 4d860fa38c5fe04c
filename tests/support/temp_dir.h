#pragma once
// A fresh folder under the system's temporary folder, removed with everything in it.
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

namespace lathwick::test {

class TempDir {
 public:
  TempDir() {
    std::random_device rd;
    path_ = std::filesystem::temp_directory_path() / ("lathwick-test-" + std::to_string(rd()) + std::to_string(rd()));
    std::filesystem::create_directories(path_);
  }
  ~TempDir() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::string str() const { return path_.string(); }
  // The folder with a trailing separator, the form the program keeps folders in.
  std::string folder() const { return path_.string() + "/"; }
  std::string file(const std::string& name) const { return (path_ / name).string(); }

  std::string write(const std::string& name, const std::string& bytes) const {
    const auto p = path_ / name;
    std::filesystem::create_directories(p.parent_path());
    std::ofstream(p, std::ios::binary) << bytes;
    return p.string();
  }
  std::string read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

 private:
  std::filesystem::path path_;
};

// Reads a file whole, as bytes.
inline std::string readBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

}  // namespace lathwick::test

#include "file_args.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <random>

#include "platform/atomic_file.h"
#include "platform/file_system.h"

namespace fs = std::filesystem;

namespace lathwick::cli {

namespace {

// A scratch file removed when the run ends, whatever happens.
class ScratchFile {
 public:
  explicit ScratchFile(const fs::path& folder, const std::string& stem) {
    std::random_device rd;
    path_ = (folder / (stem + ".lathwick-" + std::to_string(rd()) + std::to_string(rd()))).string();
  }
  ~ScratchFile() {
    std::error_code ec;
    fs::remove(path_, ec);
  }
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

fs::path tempFolder() {
  std::error_code ec;
  fs::path folder = fs::temp_directory_path(ec);
  return ec ? fs::path(".") : folder;
}

int fromStandardInput(const FileJob& job, const std::function<int(const FileJob&)>& pass) {
  ScratchFile input(tempFolder(), "stdin");
  std::cin >> std::noskipws;
  const std::string bytes((std::istreambuf_iterator<char>(std::cin)), std::istreambuf_iterator<char>());
  writeFileAtomically(input.path(), bytes, Durability::Scratch);
  FileJob j = job;
  j.in = input.path();
  return pass(j);
}

int toStandardOutput(const FileJob& job, const std::function<int(const FileJob&)>& pass) {
  ScratchFile output(tempFolder(), "stdout");
  FileJob j = job;
  j.out = output.path();
  j.countStream = stderr;
  const int status = pass(j);
  if (status != kExitOk) return status;
  const auto bytes = readWholeFile(output.path());
  if (!bytes) throw std::runtime_error("Unable to read the output " + output.path());
  std::fwrite(bytes->data(), 1, bytes->size(), stdout);
  std::fflush(stdout);
  return status;
}

int fileToFile(const std::string& in, const std::string& out, const std::function<int(const FileJob&)>& pass) {
  FileJob job{in, out, in, stdout, ""};
  if (in == "-" && out == "-")
    return fromStandardInput(job, [&](const FileJob& j) { return toStandardOutput(j, pass); });
  if (in == "-") return fromStandardInput(job, pass);
  if (out == "-") return toStandardOutput(job, pass);
  return pass(job);
}

// Rewrites one file in place: the pass writes beside it, then the old file becomes the backup
// (when a suffix is given) and the new one takes its name, with the old one's permissions.
int inPlace(const std::string& file, const std::string& backupSuffix, const std::function<int(const FileJob&)>& pass) {
  const fs::path target(file);
  std::error_code ec;
  if (!fs::is_regular_file(target, ec)) {
    std::fprintf(stderr, "%s: File not found\n", file.c_str());
    return kExitRefused;
  }
  ScratchFile output(target.parent_path().empty() ? fs::path(".") : target.parent_path(), target.filename().string());
  const int status = pass(FileJob{file, output.path(), file, stdout, file + ": "});
  if (status != kExitOk) return status;
  fs::permissions(output.path(), fs::status(target, ec).permissions(), ec);
  const bool backedUp = !backupSuffix.empty();
  if (backedUp) fs::rename(target, file + backupSuffix, ec);
  if (!ec) {
    fs::rename(output.path(), target, ec);
    std::error_code undo;
    if (ec && backedUp) fs::rename(file + backupSuffix, target, undo);  // the file keeps its name
  }
  if (ec) {
    std::fprintf(stderr, "%s: %s\n", file.c_str(), ec.message().c_str());
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace

ParsedArgs parseFileCommand(const std::vector<std::string>& args, std::vector<OptionSpec> specs,
                            const std::string& positionalNames) {
  specs.push_back({"--in-place", false, false});
  specs.push_back({"--backup-suffix", true, false});
  ParsedArgs p = ParsedArgs::parse(args, specs, -1, positionalNames);
  const auto& files = p.positionals();
  if (!p.flag("--in-place")) {
    if (files.size() != 2) throw UsageError("expected " + positionalNames);
    if (p.value("--backup-suffix")) throw UsageError("option --backup-suffix needs --in-place");
    return p;
  }
  if (files.empty()) throw UsageError("expected one or more FILEs with --in-place");
  if (std::find(files.begin(), files.end(), "-") != files.end())
    throw UsageError("option --in-place needs files, not standard input");
  return p;
}

int forEachFile(const ParsedArgs& args, const std::function<int(const FileJob&)>& pass) {
  const auto& files = args.positionals();
  if (!args.flag("--in-place")) return fileToFile(files[0], files[1], pass);
  const std::string suffix = args.valueOr("--backup-suffix", kDefaultBackupSuffix);
  int worst = kExitOk;
  for (const auto& file : files) worst = std::max(worst, inPlace(file, suffix, pass));
  return worst;
}

}  // namespace lathwick::cli

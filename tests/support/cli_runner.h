#pragma once
// Runs the built lathwick-cli with arguments and captures its exit status, stdout and stderr.
#include <sys/wait.h>

#include <cstdio>
#include <ostream>
#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace lathwick::test {

struct CliResult {
  int exitCode = -1;
  std::string out;
  std::string err;
  bool operator==(const CliResult&) const = default;
  friend void PrintTo(const CliResult& r, std::ostream* os) {
    *os << "exit " << r.exitCode << ", out \"" << r.out << "\", err \"" << r.err << "\"";
  }
};

inline std::string shellQuote(const std::string& s) {
  std::string q = "'";
  for (char c : s) q += (c == '\'') ? std::string("'\\''") : std::string(1, c);
  return q + "'";
}

// stdinText, when given, is fed to the tool's standard input.
inline CliResult runCli(const std::vector<std::string>& args, const std::string& stdinText = {}) {
  TempDir io;
  std::string cmd = shellQuote(LATHWICK_CLI_PATH);
  for (const auto& a : args) cmd += " " + shellQuote(a);
  const std::string in = io.write("stdin", stdinText);
  cmd += " <" + shellQuote(in) + " >" + shellQuote(io.file("stdout")) + " 2>" + shellQuote(io.file("stderr"));
  const int status = std::system(cmd.c_str());
  CliResult r;
  r.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  r.out = io.read("stdout");
  r.err = io.read("stderr");
  return r;
}

// The shared corpus of real programs and RTF files, or "" when it is absent (a user's clone).
inline std::string corpusDir(const std::string& sub) {
  const std::filesystem::path p = std::filesystem::path(LATHWICK_CORPUS_DIR) / sub;
  std::error_code ec;
  return std::filesystem::is_directory(p, ec) ? p.string() : std::string();
}

}  // namespace lathwick::test

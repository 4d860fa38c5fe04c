#pragma once
// The files of a file-to-file subcommand: IN OUT as before, "-" for standard input (IN) or
// standard output (OUT), or --in-place with any number of files, each rewritten where it is
// with its old text kept under --backup-suffix (default ".bak"; empty keeps no backup).
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "options.h"

namespace lathwick::cli {

inline constexpr const char* kDefaultBackupSuffix = ".bak";

struct FileJob {
  std::string in, out;            // the paths the pass reads and writes
  std::string name;               // IN as the user named it, for messages
  std::FILE* countStream = stdout;  // the count line goes to stderr when OUT is standard output
  std::string countPrefix;        // "FILE: " with --in-place, so each count says whose it is
};

// Parses a file-to-file subcommand's arguments: `specs` plus --in-place and --backup-suffix,
// then the files. Without --in-place the positionals must be exactly IN and OUT (else the usage
// error "expected <positionalNames>"); with it, one or more files and no "-".
ParsedArgs parseFileCommand(const std::vector<std::string>& args, std::vector<OptionSpec> specs,
                            const std::string& positionalNames);

// Runs `pass` once per job and gives the worst exit status. A file that is refused is named
// and left as it was; the run goes on with the next one.
int forEachFile(const ParsedArgs& args, const std::function<int(const FileJob&)>& pass);

}  // namespace lathwick::cli

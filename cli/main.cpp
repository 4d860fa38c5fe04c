// lathwick-cli: the batch tool over the editor's core.
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "commands.h"
#include "options.h"

namespace {

using namespace lathwick::cli;

struct Subcommand {
  const char* name;
  int (*run)(const Args&);
  const char* synopsis;
};

// One row per subcommand, in the order the usage text lists them.
const Subcommand kSubcommands[] = {
    {"colorize", cmdColorize, "colorize  --view modes|codes IN OUT"},
    {"replace", cmdReplace,
     "replace   --find T --replace R [--match-case] [--whole-word] [--exclude-comments] [--lines A-B] IN OUT"},
    {"highlight", cmdHighlight,
     "highlight --find T [--match-case] [--whole-word] [--exclude-comments] [--lines A-B] IN OUT"},
    {"operate", cmdOperate,
     "operate   [--address XYZ] [--operator '*'] [--value 1] [--format ##0.0###] [--exclude-comments] [--lines A-B] IN OUT"},
    {"renumber", cmdRenumber,
     "renumber  [--start 100] [--increment 1] [--char N] [--skip %] [--method 0|1|2] [--keep-references] [--lines A-B] IN OUT"},
    {"add-spaces", cmdAddSpaces, "add-spaces IN OUT"},
    {"remove-spaces", cmdRemoveSpaces, "remove-spaces IN OUT"},
    {"junk-filter", cmdJunkFilter, "junk-filter IN OUT"},
    {"scheme", cmdScheme, "scheme list|header|dump|new NAME|copy N NAME|set N [STYLE OPTIONS]|delete N"},
    {"print", cmdPrint, "print --plain|--rich [--lines A-B] [--view modes|codes] IN OUT.pdf"},
    {"rtf-text", cmdRtfText, "rtf-text FILE"},
    {"run", cmdRun, "run SCRIPT.vbs [ARGS...]"},
    {"macro", cmdMacro, "macro SCRIPT.vbs [--call PROC] IN OUT"},
    {"sendto", cmdSendTo, "sendto [--file F] list | add TITLE PROGRAM [PARAMETERS] | remove TITLE | move TITLE up|down"},
    {"snippets", cmdSnippets,
     "snippets [--folder D] list [CATEGORY] | show CATEGORY NAME | add CATEGORY NAME FILE | delete CATEGORY NAME"},
    {"toolpath", cmdToolpath, "toolpath IN"},
    {"bounds", cmdBounds, "bounds IN"},
    {"verify", cmdVerify, "verify [--data FILE] [--scheme N] [--comment TEXT] A B"},
};

void printUsage(std::FILE* out) {
  std::fputs(
      "Usage: lathwick-cli SUBCOMMAND [OPTIONS] ...\n"
      "The batch tool of the Lathwick G-code editor: the editor's own passes, file to file.\n\n"
      "Subcommands:\n",
      out);
  for (const auto& s : kSubcommands) std::fprintf(out, "  %s\n", s.synopsis);
  std::fputs(
      "\nOptions for subcommands that use a scheme:\n"
      "  --data FILE     scheme data file (default: the bundled Lathwick.dat)\n"
      "  --scheme N      1-based record number (default 1)\n"
      "  --comment TEXT  comment-start text instead of the scheme's\n"
      "  --lines A-B     operation range, 1-based inclusive (default: all lines)\n\n"
      "Files of the passes (colorize ... junk-filter):\n"
      "  IN OUT          \"-\" as IN reads standard input, as OUT writes standard output\n"
      "  --in-place FILE...      rewrites each FILE, keeping its old text as FILE.bak\n"
      "  --backup-suffix SUFFIX  the backup's suffix with --in-place (\"\" keeps none)\n"
      "An option left out takes the default its dialog shows.\n\n"
      "Exit status: 0 done, 1 input refused (message on stderr), 2 usage error.\n",
      out);
}

}  // namespace

int main(int argc, char** argv) {
  std::vector<std::string> args(argv + 1, argv + argc);
  if (args.empty()) {
    printUsage(stderr);
    return kExitUsage;
  }
  const std::string name = args.front();
  if (name == "--version") {
    std::printf("lathwick-cli %s\n", LATHWICK_VERSION_TEXT);
    return kExitOk;
  }
  if (name == "--help" || name == "-h" || name == "help") {
    printUsage(stdout);
    return kExitOk;
  }
  for (const auto& s : kSubcommands) {
    if (name != s.name) continue;
    try {
      return s.run(Args(args.begin() + 1, args.end()));
    } catch (const UsageError& e) {
      std::fprintf(stderr, "lathwick-cli %s: %s\nUsage: lathwick-cli %s\n", s.name, e.what(), s.synopsis);
      return kExitUsage;
    } catch (const std::exception& e) {
      std::fprintf(stderr, "lathwick-cli %s: %s\n", s.name, e.what());
      return kExitRefused;
    }
  }
  std::fprintf(stderr, "lathwick-cli: unknown subcommand '%s'\n\n", name.c_str());
  printUsage(stderr);
  return kExitUsage;
}

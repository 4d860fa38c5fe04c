#pragma once
// The subcommands of lathwick-cli. Each takes the arguments after its name and returns the
// exit status; usage errors are thrown as UsageError and reported by main.
#include <string>
#include <vector>

namespace lathwick::cli {

using Args = std::vector<std::string>;

int cmdColorize(const Args& args);
int cmdReplace(const Args& args);
int cmdHighlight(const Args& args);
int cmdOperate(const Args& args);
int cmdRenumber(const Args& args);
int cmdAddSpaces(const Args& args);
int cmdRemoveSpaces(const Args& args);
int cmdJunkFilter(const Args& args);
int cmdScheme(const Args& args);
int cmdRtfText(const Args& args);
int cmdRun(const Args& args);
int cmdMacro(const Args& args);
int cmdSendTo(const Args& args);
int cmdSnippets(const Args& args);
int cmdPrint(const Args& args);

// scheme new|copy|set|delete and the options they take.
class ParsedArgs;
struct OptionSpec;
std::vector<OptionSpec> schemeEditOptions();
int editScheme(const ParsedArgs& parsed);
int cmdToolpath(const Args& args);
int cmdBounds(const Args& args);
int cmdVerify(const Args& args);

// For subcommands whose engine is not built yet: says so on stderr and exits 1.
int notAvailable(const char* name);

}  // namespace lathwick::cli

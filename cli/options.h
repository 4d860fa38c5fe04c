#pragma once
// Command-line parsing for lathwick-cli: each subcommand declares the options it takes, and
// the parser turns argv into values or a usage error naming the bad or missing option.
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace lathwick::cli {

inline constexpr int kExitOk = 0;
inline constexpr int kExitRefused = 1;
inline constexpr int kExitUsage = 2;

struct OptionSpec {
  const char* name;   // "--find"
  bool takesValue;    // false for flags such as "--match-case"
  bool required;
};

// A usage error: the message names the option; the tool prints it and exits with kExitUsage.
struct UsageError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

class ParsedArgs {
 public:
  bool flag(const std::string& name) const { return flags_.count(name) != 0; }
  std::optional<std::string> value(const std::string& name) const;
  std::string valueOr(const std::string& name, const std::string& fallback) const;
  const std::vector<std::string>& positionals() const { return positionals_; }

  // Parses args (after the subcommand) against the specs; `positionalCount` < 0 accepts any
  // number. Throws UsageError.
  static ParsedArgs parse(const std::vector<std::string>& args, const std::vector<OptionSpec>& specs,
                          int positionalCount, const std::string& positionalNames);

 private:
  std::map<std::string, std::string> values_;
  std::map<std::string, bool> flags_;
  std::vector<std::string> positionals_;
};

// The options every scheme-using subcommand accepts.
std::vector<OptionSpec> withSchemeOptions(std::vector<OptionSpec> specs);
// "A-B" (1-based, inclusive) from --lines; throws UsageError when malformed.
std::pair<long, long> parseLineRange(const std::string& text);
// A whole number option; throws UsageError naming the option when it is not one.
long parseInteger(const std::string& option, const std::string& text);

}  // namespace lathwick::cli

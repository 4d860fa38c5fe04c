#include "options.h"

#include <cerrno>
#include <cstdlib>

namespace lathwick::cli {

std::optional<std::string> ParsedArgs::value(const std::string& name) const {
  const auto it = values_.find(name);
  if (it == values_.end()) return std::nullopt;
  return it->second;
}

std::string ParsedArgs::valueOr(const std::string& name, const std::string& fallback) const {
  return value(name).value_or(fallback);
}

ParsedArgs ParsedArgs::parse(const std::vector<std::string>& args, const std::vector<OptionSpec>& specs,
                             int positionalCount, const std::string& positionalNames) {
  ParsedArgs out;
  bool optionsEnded = false;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (!optionsEnded && a == "--") {
      optionsEnded = true;
      continue;
    }
    if (optionsEnded || a.size() < 2 || a.compare(0, 2, "--") != 0) {
      out.positionals_.push_back(a);
      continue;
    }
    std::string name = a, inlineValue;
    bool hasInline = false;
    if (const auto eq = a.find('='); eq != std::string::npos) {
      name = a.substr(0, eq);
      inlineValue = a.substr(eq + 1);
      hasInline = true;
    }
    const OptionSpec* declared = nullptr;
    for (const auto& s : specs)
      if (name == s.name) declared = &s;
    if (!declared) throw UsageError("unknown option " + name);
    if (!declared->takesValue) {
      if (hasInline) throw UsageError("option " + name + " takes no value");
      out.flags_[name] = true;
      continue;
    }
    if (hasInline) {
      out.values_[name] = inlineValue;
    } else {
      if (i + 1 >= args.size()) throw UsageError("option " + name + " needs a value");
      out.values_[name] = args[++i];
    }
  }
  for (const auto& s : specs)
    if (s.required && !out.values_.count(s.name) && !out.flags_.count(s.name))
      throw UsageError("missing option " + std::string(s.name));
  if (positionalCount >= 0 && static_cast<int>(out.positionals_.size()) != positionalCount)
    throw UsageError("expected " + positionalNames);
  return out;
}

std::vector<OptionSpec> withSchemeOptions(std::vector<OptionSpec> specs) {
  specs.push_back({"--data", true, false});
  specs.push_back({"--scheme", true, false});
  specs.push_back({"--comment", true, false});
  return specs;
}

long parseInteger(const std::string& option, const std::string& text) {
  errno = 0;
  char* end = nullptr;
  const long v = std::strtol(text.c_str(), &end, 10);
  if (text.empty() || *end != '\0' || errno == ERANGE)
    throw UsageError("option " + option + " needs a whole number, not '" + text + "'");
  return v;
}

std::pair<long, long> parseLineRange(const std::string& text) {
  const auto dash = text.find('-');
  if (dash == std::string::npos) throw UsageError("option --lines needs A-B, not '" + text + "'");
  const long a = parseInteger("--lines", text.substr(0, dash));
  const long b = parseInteger("--lines", text.substr(dash + 1));
  if (a < 1 || b < a) throw UsageError("option --lines needs 1 <= A <= B, not '" + text + "'");
  return {a, b};
}

}  // namespace lathwick::cli

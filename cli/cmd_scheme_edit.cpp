// scheme new|copy|set|delete: the scheme editor's record operations over the scheme data file.
#include <cstdio>
#include <optional>
#include <string>

#include "commands.h"
#include "format/scheme_data_file.h"
#include "format/scheme_edits.h"
#include "options.h"

namespace lathwick::cli {

namespace {

// "RRGGBB" as the record keeps colours: red in the lowest byte.
std::int32_t colourOf(const std::string& option, const std::string& text) {
  if (text.size() != 6 || text.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
    throw UsageError("option " + option + " needs a colour as RRGGBB, not '" + text + "'");
  const long value = std::stol(text, nullptr, 16);
  return static_cast<std::int32_t>(((value >> 16) & 0xFF) | (value & 0xFF00) | ((value & 0xFF) << 16));
}

std::optional<bool> switchOf(const ParsedArgs& p, const std::string& name) {
  if (p.flag("--" + name) && p.flag("--no-" + name)) throw UsageError("give --" + name + " or --no-" + name + ", not both");
  if (p.flag("--" + name)) return true;
  if (p.flag("--no-" + name)) return false;
  return std::nullopt;
}

StyleChange styleChangeOf(const ParsedArgs& p) {
  StyleChange c;
  if (const auto v = p.value("--colour")) c.colour = colourOf("--colour", *v);
  c.fontName = p.value("--font");
  if (const auto v = p.value("--size")) c.size = static_cast<int>(parseInteger("--size", *v));
  c.bold = switchOf(p, "bold");
  c.italic = switchOf(p, "italic");
  c.underline = switchOf(p, "underline");
  c.strikeout = switchOf(p, "strikeout");
  c.marker = p.value("--marker");
  return c;
}

bool any(const StyleChange& c) {
  return c.colour || c.fontName || c.size || c.bold || c.italic || c.underline || c.strikeout || c.marker;
}

void setStyle(const ParsedArgs& p, SchemeRecord& record) {
  const StyleChange change = styleChangeOf(p);
  const auto style = p.value("--style");
  if (!style) {
    if (any(change)) throw UsageError("option --style SET.INDEX is needed to change a style");
    return;
  }
  const std::size_t dot = style->find('.');
  if (dot == std::string::npos) throw UsageError("option --style needs SET.INDEX, not '" + *style + "'");
  const long set = parseInteger("--style", style->substr(0, dot));
  const long index = parseInteger("--style", style->substr(dot + 1));
  if (set < 0 || set >= kSetCount || index < 0 || index >= kStyleCount)
    throw UsageError("option --style needs a set 0 or 1 and a style 0 to 13, not '" + *style + "'");
  changeStyle(record, static_cast<int>(set), static_cast<int>(index), change);
}

void setScheme(const ParsedArgs& p, SchemeRecord& record) {
  setStyle(p, record);
  if (const auto v = p.value("--background")) changeBackground(record, colourOf("--background", *v));
  if (const auto v = p.value("--indent")) {
    const long steps = parseInteger("--indent", *v);
    if (steps < 0 || steps >= kIndentStepChoices) throw UsageError("option --indent needs 0 to 20 steps");
    changeIndent(record, static_cast<int>(steps));
  }
}

const std::vector<OptionSpec> kEditOptions = {
    {"--style", true, false},      {"--colour", true, false},       {"--font", true, false},
    {"--size", true, false},       {"--bold", false, false},        {"--no-bold", false, false},
    {"--italic", false, false},    {"--no-italic", false, false},   {"--underline", false, false},
    {"--no-underline", false, false}, {"--strikeout", false, false}, {"--no-strikeout", false, false},
    {"--marker", true, false},     {"--background", true, false},   {"--indent", true, false}};

}  // namespace

std::vector<OptionSpec> schemeEditOptions() { return kEditOptions; }

int editScheme(const ParsedArgs& p) {
  const auto& args = p.positionals();
  const std::string& action = args.front();
  const std::string dataFile = p.valueOr("--data", bundledDataFilePath());
  const std::size_t wanted = action == "copy" ? 3 : 2;
  if (args.size() != wanted)
    throw UsageError("scheme " + action + " takes " + std::to_string(wanted - 1) + " argument(s)");
  if (action == "new") {
    const SchemeRecord shown = loadScheme(dataFile, parseInteger("--scheme", p.valueOr("--scheme", "1")));
    const long number = schemeRecordCount(dataFile) + 1;
    const long added = appendScheme(dataFile, copiedScheme(newSchemeFrom(shown, number), args[1]));
    std::printf("%ld\n", added);
  } else if (action == "copy") {
    const long n = parseInteger("N", args[1]);
    std::printf("%ld\n", appendScheme(dataFile, copiedScheme(loadScheme(dataFile, n), args[2])));
  } else if (action == "delete") {
    const long n = parseInteger("N", args[1]);
    if (n < 1 || n > schemeRecordCount(dataFile)) throw DataFileProblem(62);
    removeSchemeRecord(dataFile, removalWorkFile(dataFile), n);
  } else {
    const long n = parseInteger("N", args[1]);
    SchemeRecord record = loadScheme(dataFile, n);
    setScheme(p, record);
    writeSchemeRecord(dataFile, n, record);
  }
  return kExitOk;
}

}  // namespace lathwick::cli

#include "extend/vbscript/console_host.h"

#include "extend/vbscript/convert.h"
#include "extend/vbscript/member_table.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
struct Console {
  std::vector<std::string> arguments;
  ConsoleStreams streams;
};

std::optional<std::string> readLine(std::FILE* in) {
  std::string line;
  int c;
  bool any = false;
  while ((c = std::fgetc(in)) != EOF) {
    any = true;
    if (c == '\n') break;
    line += static_cast<char>(c);
  }
  if (!any) return std::nullopt;
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

// Text of a printed value: as CStr gives it, and "Null" for Null.
std::string printable(const Variant& v) {
  if (v.isNull()) return "Null";
  if (v.isObject() || v.isArray()) raiseTypeMismatch();
  return plainText(v);
}

Variant write(Console& c, const HostArgs& a, const char* end) {
  const std::string text = (a.empty() ? std::string() : printable(a[0])) + end;
  std::fwrite(text.data(), 1, text.size(), c.streams.out);
  std::fflush(c.streams.out);
  return {};
}

constexpr MemberRow<Console> kConsoleMembers[] = {
    {"Arguments", MemberKind::Get, 0, 0,
     [](Console& c, HostArgs&) {
       std::vector<Variant> v;
       for (const auto& a : c.arguments) v.push_back(Variant::str(a));
       return Variant::array(ArrayData::ofValues(std::move(v)));
     }},
    {"Write", MemberKind::Method, 0, 1, [](Console& c, HostArgs& a) { return write(c, a, ""); }},
    {"WriteLine", MemberKind::Method, 0, 1, [](Console& c, HostArgs& a) { return write(c, a, "\n"); }},
    {"ReadLine", MemberKind::Method, 0, 0,
     [](Console& c, HostArgs&) { return Variant::str(readLine(c.streams.in).value_or(std::string())); }},
};

// The button a console "presses": the first of the set (OK, Abort, Yes, Retry).
int firstButton(int buttons) {
  switch (buttons & 7) {
    case 2: return 3;
    case 3:
    case 4: return 6;
    case 5: return 4;
    default: return 1;
  }
}
}  // namespace

void installConsoleHost(Engine& engine, std::vector<std::string> arguments, ConsoleStreams streams) {
  addTableObject(engine, "Console", "Console", kConsoleMembers, Console{std::move(arguments), streams});
  UiCallbacks ui;
  ui.msgBox = [streams](const std::string& prompt, int buttons, const std::string&) {
    std::fwrite(prompt.data(), 1, prompt.size(), streams.out);
    std::fputc('\n', streams.out);
    std::fflush(streams.out);
    return firstButton(buttons);
  };
  ui.inputBox = [streams](const std::string& prompt, const std::string&, const std::string&) {
    std::fwrite(prompt.data(), 1, prompt.size(), streams.out);
    std::fputc('\n', streams.out);
    std::fflush(streams.out);
    return readLine(streams.in);
  };
  engine.setUi(std::move(ui));
}

std::string formatErrorRecord(const ErrorRecord& e) {
  std::string s = e.sourceName;
  if (e.line > 0) s += ":" + std::to_string(e.line) + ":" + std::to_string(e.column);
  if (!s.empty()) s += ": ";
  s += e.source + " " + std::to_string(e.number) + ": " + e.message() + "\n";
  if (e.line > 0) s += "    " + e.lineText + "\n";
  return s;
}

}  // namespace lathwick::vbs

#include "extend/vbscript/console_host.h"

#include "extend/vbscript/convert.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

namespace {
class ConsoleObject : public HostObject {
 public:
  ConsoleObject(std::vector<std::string> args, ConsoleStreams s) : args_(std::move(args)), s_(s) {}
  std::string typeName() const override { return "Console"; }

  int findMember(std::string_view name) const override {
    for (int i = 0; i < kCount; ++i)
      if (equalsIgnoreCase(name, kNames[i])) return i;
    return -1;
  }

  Variant hostInvoke(int member, InvokeKind kind, std::vector<Variant>& args) override {
    if (kind == InvokeKind::Let || kind == InvokeKind::Set) throw ScriptError(501, errorText(501), kRuntimeSource);
    switch (member) {
      case kArguments: {
        if (!args.empty()) throw ScriptError(450, errorText(450), kRuntimeSource);
        std::vector<Variant> v;
        for (const auto& a : args_) v.push_back(Variant::str(a));
        return Variant::array(ArrayData::ofValues(std::move(v)));
      }
      case kWrite:
      case kWriteLine: {
        if (args.size() > 1) throw ScriptError(450, errorText(450), kRuntimeSource);
        std::string text = args.empty() ? std::string() : printable(args[0]);
        if (member == kWriteLine) text += '\n';
        std::fwrite(text.data(), 1, text.size(), s_.out);
        std::fflush(s_.out);
        return {};
      }
      case kReadLine: {
        if (!args.empty()) throw ScriptError(450, errorText(450), kRuntimeSource);
        auto line = readLine(s_.in);
        return Variant::str(line.value_or(std::string()));
      }
      default: throw ScriptError(438, errorText(438), kRuntimeSource);
    }
  }

  static std::optional<std::string> readLine(std::FILE* in) {
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
  static std::string printable(const Variant& v) {
    if (v.isNull()) return "Null";
    if (v.isObject() || v.isArray()) throw ScriptError(13, errorText(13), kRuntimeSource);
    return plainText(v);
  }

 private:
  enum { kArguments, kWrite, kWriteLine, kReadLine, kCount };
  static constexpr const char* kNames[kCount] = {"Arguments", "Write", "WriteLine", "ReadLine"};
  std::vector<std::string> args_;
  ConsoleStreams s_;
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
  engine.addObject("Console", makeObject<ConsoleObject>(std::move(arguments), streams), true);
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
    return ConsoleObject::readLine(streams.in);
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

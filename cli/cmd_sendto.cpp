// sendto list|add|remove|move: the send-to list file, edited with the dialog's own checks.
#include <cstdio>
#include <string>

#include "commands.h"
#include "extend/send_to_list.h"
#include "options.h"
#include "platform/file_system.h"

namespace lathwick::cli {
namespace {

const char* const kActions = "list, add TITLE PROGRAM [PARAMETERS], remove TITLE or move TITLE up|down";

// The program's messages hold CR LF; a terminal wants a plain line feed.
int refuse(const std::string& message) {
  std::string text;
  for (std::size_t i = 0; i < message.size(); ++i)
    if (!(message[i] == '\r' && i + 1 < message.size() && message[i + 1] == '\n')) text += message[i];
  std::fprintf(stderr, "%s\n", text.c_str());
  return kExitRefused;
}

int result(const std::optional<std::string>& message) { return message ? refuse(*message) : kExitOk; }

int positionOrRefuse(const extend::SendToList& list, const std::string& title, int& position) {
  position = list.positionOf(title);
  return position < 0 ? refuse("No entry of the send-to list has the title \"" + title + "\".") : kExitOk;
}

}  // namespace

int cmdSendTo(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, {{"--file", true, false}}, -1, kActions);
  const auto& words = p.positionals();
  if (words.empty()) throw UsageError(std::string("expected ") + kActions);
  const std::string& action = words[0];
  const auto expect = [&](std::size_t low, std::size_t high) {
    if (words.size() < low || words.size() > high) throw UsageError(std::string("expected ") + kActions);
  };
  if (action == "list") expect(1, 1);
  else if (action == "add") expect(3, 4);
  else if (action == "remove") expect(2, 2);
  else if (action == "move") {
    expect(3, 3);
    if (words[2] != "up" && words[2] != "down") throw UsageError("move takes up or down, not '" + words[2] + "'");
  } else throw UsageError("unknown action '" + action + "': expected " + kActions);

  extend::SendToList list(p.valueOr("--file", executableFolder() + "/" + extend::kSendToFileName));
  if (auto failed = list.read()) return refuse(*failed);
  int position = -1;
  if (action == "list") {
    for (int i = 0; i < list.count(); ++i) {
      const extend::SendToEntry& e = list.at(i);
      std::printf("%s\t%s\t%s\n", e.title.c_str(), e.program.c_str(), e.parameters.c_str());
    }
    return kExitOk;
  }
  if (action == "add") return result(list.add({words[1], words[2], words.size() > 3 ? words[3] : ""}));
  if (const int refused = positionOrRefuse(list, words[1], position)) return refused;
  if (action == "remove") return result(list.remove(position));
  if (!list.move(position, words[2] == "up" ? -1 : 1)) return kExitOk;  // already at that end
  return result(list.write());
}

}  // namespace lathwick::cli

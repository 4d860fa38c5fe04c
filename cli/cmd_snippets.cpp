// snippets list|show|add|delete: the easy-text category files, read and written as the dialog does.
#include <cstdio>
#include <string>

#include "commands.h"
#include "extend/easy_text.h"
#include "options.h"
#include "platform/bytes.h"
#include "platform/file_system.h"

namespace lathwick::cli {
namespace {

const char* const kActions = "list [CATEGORY], show CATEGORY NAME, add CATEGORY NAME FILE or delete CATEGORY NAME";

int refuse(const std::string& message) {
  std::string text;
  for (std::size_t i = 0; i < message.size(); ++i)
    if (!(message[i] == '\r' && i + 1 < message.size() && message[i + 1] == '\n')) text += message[i];
  std::fprintf(stderr, "%s\n", text.c_str());
  return kExitRefused;
}

// The category as listed; "Mill" finds "Mill.dis", and case does not matter when only one fits.
std::string findCategory(const std::string& folder, const std::string& wanted) {
  const auto listed = extend::listCategories(folder);
  for (const std::string& withExt : {wanted, wanted + ".dis"}) {
    for (const std::string& name : listed)
      if (name == withExt) return name;
    for (const std::string& name : listed)
      if (equalsIgnoreCase(name, withExt)) return name;
  }
  return "";
}

int snippetOrRefuse(const extend::CategoryList& list, const std::string& name, int& position) {
  position = list.positionOf(name);
  return position < 0 ? refuse("No snippet named \"" + name + "\" in " + list.category() + ".") : kExitOk;
}

int addSnippet(extend::CategoryList& list, const std::string& name, const std::string& file) {
  const auto text = readWholeFile(file);
  if (!text) return refuse(file + ": File not found");
  int position = list.positionOf(name);
  if (position < 0) position = list.append(name);
  const auto failed = list.store(position, *text);
  return failed ? refuse(*failed) : kExitOk;
}

}  // namespace

int cmdSnippets(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, {{"--folder", true, false}}, -1, kActions);
  const auto& words = p.positionals();
  const std::size_t n = words.size();
  const std::string action = n ? words[0] : "";
  const bool fits = (action == "list" && n <= 2) || ((action == "show" || action == "delete") && n == 3) ||
                    (action == "add" && n == 4);
  if (!fits) throw UsageError(std::string("expected ") + kActions);
  const std::string folder = p.valueOr("--folder", executableFolder());
  if (action == "list" && n == 1) {
    for (const std::string& name : extend::listCategories(folder)) std::printf("%s\n", name.c_str());
    return kExitOk;
  }
  std::string category = findCategory(folder, words[1]);
  if (category.empty()) {
    if (action != "add") return refuse("No category " + words[1] + " in " + folder + ".");
    category = endsWithIgnoreCase(words[1], ".dis") ? words[1] : words[1] + ".dis";  // a new category
  }
  extend::CategoryList list(folder);
  if (const auto failed = list.load(category); failed && isRegularFile(list.path())) return refuse(*failed);
  int position = -1;
  if (action == "list") {
    for (const std::string& name : list.names()) std::printf("%s\n", name.c_str());
    return kExitOk;
  }
  if (action == "add") return addSnippet(list, words[2], words[3]);
  if (const int refused = snippetOrRefuse(list, words[2], position)) return refused;
  if (action == "show") {
    const std::string& text = list.text(position);
    std::fwrite(text.data(), 1, text.size(), stdout);
    return kExitOk;
  }
  const auto failed = list.remove(position);
  return failed ? refuse(*failed) : kExitOk;
}

}  // namespace lathwick::cli

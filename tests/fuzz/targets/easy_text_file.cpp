// An easy-text category file of any bytes: it reads or is refused with the category's read
// message; what reads writes back to bytes that read as the same snippets, double quotes in
// names and texts included, and a snippet's text stored through the list reads back the same.
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include "extend/easy_text.h"
#include "platform/errors.h"

namespace lathwick::fuzz {

namespace {
constexpr const char* kCategory = "Fuzz.dis";
}  // namespace

int easyTextFile(const std::uint8_t* data, std::size_t size) {
  const std::string path = scratchFile(kCategory);
  writeFile(path, std::string_view(reinterpret_cast<const char*>(data), size));
  std::vector<extend::Snippet> snippets;
  try {
    snippets = extend::readCategory(path);
  } catch (const AppError&) {
    // The reason, then the category's read message.
    extend::CategoryList list(scratchFolder());
    const auto message = list.load(kCategory);
    const std::string tail = extend::categoryReadFailed(kCategory);
    FUZZ_CHECK(message && message->size() > tail.size() && message->ends_with("\r\n" + tail));
    FUZZ_CHECK(list.count() == 0);
    return 0;
  }
  const std::string bytes = extend::categoryBytes(snippets);
  writeFile(path, bytes);
  FUZZ_CHECK(extend::readCategory(path) == snippets);
  FUZZ_CHECK(extend::categoryBytes(extend::readCategory(path)) == bytes);

  extend::CategoryList list(scratchFolder());
  FUZZ_CHECK(!list.load(kCategory));
  FUZZ_CHECK(list.count() == static_cast<int>(snippets.size()));
  if (snippets.empty()) return 0;
  // A text as the dialog stores it: with a double quote and CR LF line ends.
  const std::string text = "(\"" + snippets.front().name + "\")\r\nG00 X0\r\n";
  FUZZ_CHECK(!list.store(0, text));
  extend::CategoryList reread(scratchFolder());
  FUZZ_CHECK(!reread.load(kCategory));
  FUZZ_CHECK(reread.count() == list.count());
  FUZZ_CHECK(reread.text(0) == text);
  return 0;
}

}  // namespace lathwick::fuzz

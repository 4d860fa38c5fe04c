// A send-to list file of any bytes: it reads or is refused with the list's read message; what
// reads writes back to bytes that read as the same list (and write back the same again), and
// every entry gives a command line with the document's file name as its last word.
#include "../fuzz_support.h"
#include "../fuzz_targets.h"

#include "extend/send_to_list.h"
#include "platform/errors.h"

namespace lathwick::fuzz {

namespace {
constexpr const char* kDocument = "/parts/cell 2/O1000.nc";

void checkCommands(const extend::SendToFile& file) {
  for (const extend::SendToEntry& entry : file.entries) {
    const auto command = extend::buildSendCommand(entry, kDocument);
    if (!command) continue;  // a quote left open in the parameters
    FUZZ_CHECK(!command->arguments.empty() && command->arguments.back() == kDocument);
    FUZZ_CHECK(command->workingFolder == "/parts/cell 2/");
  }
}
}  // namespace

int sendToFile(const std::uint8_t* data, std::size_t size) {
  const std::string path = scratchFile(extend::kSendToFileName);
  writeFile(path, std::string_view(reinterpret_cast<const char*>(data), size));
  extend::SendToFile file;
  try {
    file = extend::readSendToFile(path);
  } catch (const AppError&) {
    extend::SendToList list(path);
    FUZZ_CHECK(list.read() == std::string(extend::kSendToReadFailed));
    FUZZ_CHECK(list.count() == 0);
    return 0;
  }
  checkCommands(file);
  const std::string bytes = extend::sendToFileBytes(file);
  writeFile(path, bytes);
  const extend::SendToFile again = extend::readSendToFile(path);
  FUZZ_CHECK(again.entries == file.entries);
  FUZZ_CHECK(again.second == file.second);
  FUZZ_CHECK(extend::sendToFileBytes(again) == bytes);
  extend::SendToList list(path);
  FUZZ_CHECK(!list.read());
  FUZZ_CHECK(list.count() == static_cast<int>(file.entries.size()));
  return 0;
}

}  // namespace lathwick::fuzz

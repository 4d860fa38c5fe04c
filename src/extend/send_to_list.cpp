#include "extend/send_to_list.h"

#include <algorithm>
#include <utility>

#include "extend/shell_words.h"
#include "extend/write_records.h"
#include "platform/atomic_file.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/app_folder.h"

namespace lathwick::extend {

SendToFile readSendToFile(const std::string& path) {
  SendToFile file;
  if (!isRegularFile(path) && !isDirectory(path)) return file;  // no list yet
  const auto bytes = readWholeFile(path);
  if (!bytes) throw makeError(err::kPermissionDenied);
  RecordReader reader(*bytes);
  const std::int16_t count = reader.integer();
  file.second = reader.integer();
  if (count < 0) throw AppError(kInvalidFileFormat, "Invalid file format");
  for (int i = 0; i < count; ++i) {
    SendToEntry entry;
    entry.title = reader.quoted();
    entry.program = reader.quoted();
    entry.parameters = reader.quoted();
    file.entries.push_back(std::move(entry));
  }
  reader.expectEnd();
  return file;
}

std::string sendToFileBytes(const SendToFile& file) {
  std::string bytes = numberRecord({static_cast<long>(file.entries.size()), file.second});
  for (const SendToEntry& e : file.entries) bytes += quotedRecord({e.title, e.program, e.parameters});
  return bytes;
}

void writeSendToFile(const std::string& path, const SendToFile& file) {
  if (file.entries.size() > 32767) throw makeError(err::kOverflow);
  writeFileAtomically(path, sendToFileBytes(file));
}

std::optional<std::string> SendToList::read() {
  try {
    SendToFile file = readSendToFile(DatName);
    entries_ = std::move(file.entries);
    second_ = file.second;
    order_.resize(entries_.size());
    for (std::size_t i = 0; i < order_.size(); ++i) order_[i] = static_cast<int>(i);
    unreadable_ = false;
    return std::nullopt;
  } catch (const std::exception&) {
    unreadable_ = isRegularFile(DatName);
    return std::string(kSendToReadFailed);
  }
}

std::vector<std::string> SendToList::titles() const {
  std::vector<std::string> out;
  for (int p = 0; p < count(); ++p) out.push_back(at(p).title);
  return out;
}

bool SendToList::titleInUse(const std::string& title, int exceptPosition) const {
  for (int p = 0; p < count(); ++p)
    if (p != exceptPosition && at(p).title == title) return true;
  return false;
}

int SendToList::positionOf(const std::string& title) const {
  for (int p = 0; p < count(); ++p)
    if (at(p).title == title) return p;
  return -1;
}

std::optional<std::string> checkSendToEntry(const SendToEntry& entry, bool titleTaken) {
  if (trimBlanks(entry.title).empty() || trimBlanks(entry.program).empty()) return std::string(kTitleAndPathRequired);
  if (!FileExists(entry.program)) return std::string(kProgramMissing);
  if (titleTaken) return std::string(kTitleInUse);
  // A double quote would end the field in the list file and break every entry after it.
  for (const std::string* field : {&entry.title, &entry.program, &entry.parameters})
    if (field->find('"') != std::string::npos) return std::string(kNoDoubleQuotes);
  return std::nullopt;
}

std::optional<std::string> SendToList::writeAndReadBack(std::vector<SendToEntry> entries) {
  try {
    // A file that could not be read is kept beside the new one rather than written over.
    if (unreadable_ && isRegularFile(DatName)) copyFile(DatName, DatName + ".bak");
    writeSendToFile(DatName, SendToFile{std::move(entries), second_});
  } catch (const std::exception&) {
    return std::string(kSendToWriteFailed);
  }
  return read();
}

std::optional<std::string> SendToList::write() {
  std::vector<SendToEntry> shown;
  for (int p = 0; p < count(); ++p) shown.push_back(at(p));
  return writeAndReadBack(std::move(shown));
}

std::optional<std::string> SendToList::add(const SendToEntry& entry) {
  if (auto refused = checkSendToEntry(entry, titleInUse(entry.title))) return refused;
  std::vector<SendToEntry> shown;
  for (int p = 0; p < count(); ++p) shown.push_back(at(p));
  shown.push_back(entry);
  return writeAndReadBack(std::move(shown));
}

std::optional<std::string> SendToList::save(int position, const SendToEntry& entry) {
  if (position < 0 || position >= count()) return std::nullopt;
  if (auto refused = checkSendToEntry(entry, titleInUse(entry.title, position))) return refused;
  std::vector<SendToEntry> shown;
  for (int p = 0; p < count(); ++p) shown.push_back(p == position ? entry : at(p));
  return writeAndReadBack(std::move(shown));
}

std::optional<std::string> SendToList::remove(int position) {
  if (position < 0 || position >= count()) return std::nullopt;
  std::vector<SendToEntry> shown;
  for (int p = 0; p < count(); ++p)
    if (p != position) shown.push_back(at(p));
  return writeAndReadBack(std::move(shown));
}

bool SendToList::move(int position, int direction) {
  const int target = position + direction;
  if (position < 0 || position >= count() || target < 0 || target >= count()) return false;
  std::swap(order_[static_cast<std::size_t>(position)], order_[static_cast<std::size_t>(target)]);
  return true;
}

std::optional<SendCommand> buildSendCommand(const SendToEntry& entry, const std::string& fileName) {
  auto words = splitShellWords(entry.parameters);
  if (!words) return std::nullopt;
  SendCommand command{trimBlanks(entry.program), std::move(*words), ""};
  command.arguments.push_back(fileName);
  const auto slash = std::find_if(fileName.rbegin(), fileName.rend(), isPathSeparator);
  if (slash != fileName.rend()) command.workingFolder = std::string(fileName.begin(), slash.base());
  return command;
}

std::string sendFailedMessage(const std::string& description) { return description + "\r\n" + kUnableToShell; }

}  // namespace lathwick::extend

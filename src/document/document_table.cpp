#include "document/document_table.h"

#include <stdexcept>

#include "document/paths.h"
#include "platform/bytes.h"

namespace lathwick {

int DocumentTable::findFreeSlot() {
  for (int i = 1; i <= upperBound(); ++i) {
    if (records_[i].freeSlot) {
      records_[i] = DocumentRecord{};
      records_[i].freeSlot = false;
      return i;
    }
  }
  DocumentRecord fresh;
  fresh.freeSlot = false;
  records_.push_back(fresh);
  return upperBound();
}

void DocumentTable::release(int index) { record(index).freeSlot = true; }

DocumentRecord& DocumentTable::record(int index) {
  if (!valid(index)) throw std::out_of_range("document index " + std::to_string(index));
  return records_[index];
}

const DocumentRecord& DocumentTable::record(int index) const {
  if (!valid(index)) throw std::out_of_range("document index " + std::to_string(index));
  return records_[index];
}

std::vector<int> DocumentTable::openIndexes() const {
  std::vector<int> open;
  for (int i = 1; i <= upperBound(); ++i)
    if (!records_[i].freeSlot) open.push_back(i);
  return open;
}

std::string untitledName(int index) { return "Untitled " + std::to_string(index); }

bool isRichTextName(const std::string& name) { return endsWithIgnoreCase(name, ".RTF"); }

std::string captionAfterLoad(const std::string& name) { return ShortenPath(name, 25); }

std::string captionAfterSave(const std::string& name) { return asciiUpper(ShortenPath(name, 25)); }

std::string emptyFileMessage(const std::string& name) { return "The file [" + name + "] is empty."; }

bool saveNeedsName(const std::string& fileName) { return fileName.find("Untitled") != std::string::npos; }

std::string fixChosenSaveName(std::string name) {
  if (auto at = name.find(":.\\"); at != std::string::npos) name.erase(at + 1, 1);
  return name;
}

std::string closeQueryMessage(const std::string& windowCaption) {
  return "The text in [" + windowCaption + "] has changed.\r\nDo you want to save the changes?";
}

CloseDecision decideClose(QueryAnswer answer, const std::string& windowCaption) {
  CloseDecision d;
  switch (answer) {
    case QueryAnswer::Cancel:
      d.cancel = true;
      break;
    case QueryAnswer::No:
      break;
    case QueryAnswer::Yes:
      d.save = windowCaption.rfind("Untitled", 0) == 0 ? CloseDecision::Save::AskForName
                                                       : CloseDecision::Save::UnderRecordName;
      break;
  }
  return d;
}

}  // namespace lathwick

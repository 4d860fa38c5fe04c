#include "extend/easy_text.h"

#include <algorithm>
#include <filesystem>

#include "extend/write_records.h"
#include "platform/atomic_file.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/app_folder.h"

namespace lathwick::extend {

void AddRemoveComment(std::string& text, bool toStored) {
  const char from = toStored ? '"' : kStoredQuote;
  const char to = toStored ? kStoredQuote : '"';
  std::replace(text.begin(), text.end(), from, to);
}

std::vector<Snippet> readCategory(const std::string& path) {
  const auto bytes = readWholeFile(path);
  if (!bytes) throw makeError(isRegularFile(path) ? err::kPermissionDenied : err::kFileNotFound);
  std::vector<Snippet> snippets;
  if (bytes->empty()) return snippets;
  RecordReader reader(*bytes);
  const std::int16_t count = reader.integer();
  if (count < 0) throw AppError(kInvalidFileFormat, "Invalid file format");
  for (int i = 0; i < count; ++i) {
    Snippet s{reader.quoted(), reader.quoted()};
    AddRemoveComment(s.name, false);
    AddRemoveComment(s.text, false);
    snippets.push_back(std::move(s));
  }
  reader.expectEnd();
  return snippets;
}

std::string categoryBytes(const std::vector<Snippet>& snippets) {
  std::string bytes = numberRecord({static_cast<long>(snippets.size())});
  for (Snippet s : snippets) {
    AddRemoveComment(s.name, true);
    AddRemoveComment(s.text, true);
    bytes += quotedRecord({s.name, s.text});
  }
  return bytes;
}

void writeCategory(const std::string& path, const std::vector<Snippet>& snippets) {
  if (snippets.size() > 32767) throw makeError(err::kOverflow);
  writeFileAtomically(path, categoryBytes(snippets));
}

std::vector<std::string> listCategories(const std::string& folder) {
  namespace fs = std::filesystem;
  std::vector<std::string> names;
  std::error_code ec;
  for (const auto& entry : fs::directory_iterator(nativePath(folder.empty() ? "." : folder), ec)) {
    const std::string name = entry.path().filename().string();
    if (name.size() > 4 && name[0] != '.' && endsWithIgnoreCase(name, ".dis") && entry.is_regular_file(ec))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    const std::string ua = asciiUpper(a), ub = asciiUpper(b);
    return ua != ub ? ua < ub : a < b;
  });
  return names;
}

std::string categoryReadFailed(const std::string& category) { return "Unable to read easy text file " + category + "."; }
std::string categoryWriteFailed(const std::string& category) { return "Unable to save easy text file " + category + "."; }

CategoryList::CategoryList(const std::string& datLocation) : folder_(datLocation) {
  if (!folder_.empty() && !isPathSeparator(folder_.back())) folder_ += kNativeSeparator;
}

std::optional<std::string> CategoryList::load(const std::string& category) {
  category_ = category;
  snippets_.clear();
  order_.clear();
  unreadable_ = false;
  try {
    snippets_ = readCategory(path());
  } catch (const std::exception& e) {
    unreadable_ = isRegularFile(path());
    return std::string(e.what()) + "\r\n" + categoryReadFailed(category);
  }
  for (std::size_t i = 0; i < snippets_.size(); ++i) order_.push_back(static_cast<int>(i));
  return std::nullopt;
}

int CategoryList::positionOf(const std::string& name) const {
  for (int p = 0; p < count(); ++p)
    if (this->name(p) == name) return p;
  return -1;
}

std::vector<std::string> CategoryList::names() const {
  std::vector<std::string> out;
  for (int p = 0; p < count(); ++p) out.push_back(name(p));
  return out;
}

int CategoryList::append(const std::string& name) {
  snippets_.push_back(Snippet{name, ""});
  order_.push_back(static_cast<int>(snippets_.size() - 1));
  return count() - 1;
}

std::optional<std::string> CategoryList::write() {
  std::vector<Snippet> shown;
  for (int p = 0; p < count(); ++p) shown.push_back(snippets_.at(index(p)));
  try {
    // A file that could not be read is kept beside the new one rather than written over.
    if (unreadable_ && isRegularFile(path())) copyFile(path(), path() + ".bak");
    writeCategory(path(), shown);
    unreadable_ = false;
  } catch (const std::exception& e) {
    return std::string(e.what()) + "\r\n" + categoryWriteFailed(category_);
  }
  return std::nullopt;
}

std::optional<std::string> CategoryList::store(int position, const std::string& text) {
  if (position < 0 || position >= count()) return std::nullopt;
  snippets_.at(index(position)).text = text;
  return write();
}

std::optional<std::string> CategoryList::remove(int position) {
  if (position < 0 || position >= count()) return std::nullopt;
  order_.erase(order_.begin() + position);
  return write();
}

}  // namespace lathwick::extend

#pragma once
// The easy-text library: named text snippets kept in category files ("*.dis") in one folder.
// A category file holds the number of snippets, then one record per snippet: its name and its
// text, each in double quotes; a text may span lines. A double quote cannot stand inside a
// field, so it is stored as the character 127 and turned back when the text is shown.
#include <optional>
#include <string>
#include <vector>

namespace lathwick::extend {

inline constexpr char kStoredQuote = '\x7f';
inline constexpr const char* kCategoryPattern = "*.dis";

// Turns every double quote into the stored character (toStored) or back, in place.
void AddRemoveComment(std::string& text, bool toStored);

struct Snippet {
  std::string name;
  std::string text;  // as shown: double quotes restored
  bool operator==(const Snippet&) const = default;
};

// Both throw AppError; a file of length 0 is an empty category. The write goes through a
// temporary file.
std::vector<Snippet> readCategory(const std::string& path);
void writeCategory(const std::string& path, const std::vector<Snippet>& snippets);
std::string categoryBytes(const std::vector<Snippet>& snippets);

// The category files of `folder` ("*.dis", any case), sorted by name, names as listed.
std::vector<std::string> listCategories(const std::string& folder);

// "Unable to read easy text file Mill.dis." and its writing sibling.
std::string categoryReadFailed(const std::string& category);
std::string categoryWriteFailed(const std::string& category);

// One category as the dialog holds it: names and texts by a fixed index, and the list of
// snippets in the order shown, each carrying its index. Deleting takes a snippet off the list;
// the next write leaves it out of the file.
class CategoryList {
 public:
  // `DatLocation` gets a trailing separator when it has none.
  explicit CategoryList(const std::string& datLocation);

  const std::string& DatLocation() const { return folder_; }
  const std::string& category() const { return category_; }
  std::string path() const { return folder_ + category_; }

  // Loads a category file; the read message on failure (the list is then empty).
  std::optional<std::string> load(const std::string& category);
  int count() const { return static_cast<int>(order_.size()); }
  const std::string& name(int position) const { return snippets_.at(index(position)).name; }
  const std::string& text(int position) const { return snippets_.at(index(position)).text; }
  int positionOf(const std::string& name) const;  // -1 when not listed
  std::vector<std::string> names() const;

  // A new snippet with an empty text at the end of the list (not written yet); its position.
  int append(const std::string& name);
  // Stores the text of the snippet at `position` and rewrites the file; the message on failure.
  std::optional<std::string> store(int position, const std::string& text);
  // Takes the snippet off the list and rewrites the file.
  std::optional<std::string> remove(int position);

 private:
  std::size_t index(int position) const { return static_cast<std::size_t>(order_.at(static_cast<std::size_t>(position))); }
  std::optional<std::string> write();
  std::string folder_;
  std::string category_;
  std::vector<Snippet> snippets_;
  std::vector<int> order_;
  bool unreadable_ = false;  // the file is there but could not be read
};

}  // namespace lathwick::extend

#pragma once
// The table of open documents: one record per document window, indexed from 1 (0 is never
// used); a window finds its record through the index kept in its tag. Also the small decisions
// of loading, saving and closing that do not need a window: names, captions and the close query.
#include <cstdint>
#include <string>
#include <vector>

#include "document/line_convention.h"

namespace lathwick {

struct DocumentRecord {
  bool freeSlot = true;   // the slot may be reused
  bool changed = false;
  std::int16_t scheme = 0;
  std::string fileName;
  LineEnds lineEnds = LineEnds::CrLf;  // as loaded; the window always holds CR LF
};

class DocumentTable {
 public:
  // The first free index from 1 up (its free flag cleared); with none free the table grows by
  // one and the new upper bound is returned.
  int findFreeSlot();
  // The window of `index` has gone: its slot may be reused.
  void release(int index);

  int upperBound() const { return static_cast<int>(records_.size()) - 1; }
  bool valid(int index) const { return index >= 1 && index <= upperBound(); }
  DocumentRecord& record(int index);              // throws std::out_of_range outside 1..upper
  const DocumentRecord& record(int index) const;
  std::vector<int> openIndexes() const;           // records in use, in index order

 private:
  std::vector<DocumentRecord> records_{DocumentRecord{}};  // index 0: never used
};

// "Untitled " + n: the file name and caption of a new document.
std::string untitledName(int index);

// Names ending in ".RTF" (any case) are rich text; "x.rtf.nc" is plain.
bool isRichTextName(const std::string& name);

// A window's caption: the path shortened to 25 characters; upper-cased after a save (not after
// a load: the difference is the program's own).
std::string captionAfterLoad(const std::string& name);
std::string captionAfterSave(const std::string& name);

// "The file [" + name + "] is empty." (caption "File Error !").
std::string emptyFileMessage(const std::string& name);
inline constexpr const char* kEmptyFileCaption = "File Error !";

// Save goes through Save As while the name still contains "Untitled" (case-sensitive).
bool saveNeedsName(const std::string& fileName);

// A name chosen as "C:.\x.nc" loses the "." after ":".
std::string fixChosenSaveName(std::string name);

inline constexpr const char* kFileNotSaved = "File not saved.";
// The Save As Plain Text dialog, which Save shows for a document that has no name yet.
inline constexpr const char* kPlainTitle = "Save As Plain Text File";
inline constexpr const char* kPlainFilter = "Text (*.*)|*.*|Text (*.TXT)|*.TXT";

// The close query ---------------------------------------------------------------------------
std::string closeQueryMessage(const std::string& windowCaption);

enum class QueryAnswer { Yes, No, Cancel };

struct CloseDecision {
  enum class Save { None, UnderRecordName, AskForName };
  bool cancel = false;  // keep the window open
  Save save = Save::None;
};

// Unchanged documents close without a question; this says whether to ask.
inline bool closeNeedsQuery(const DocumentRecord& record) { return record.changed; }

// What the answer means. Yes saves under the record's name, or asks for a name when the caption
// starts with "Untitled"; a cancelled name dialog still closes the window unsaved (deliberate).
CloseDecision decideClose(QueryAnswer answer, const std::string& windowCaption);

inline constexpr const char* kUntitledSaveName = "untitled.txt";

}  // namespace lathwick

#pragma once
// The scheme data file: records of kSchemeRecordSize bytes, numbered from 1, no header. Every
// failure to open or read it comes back as a DataFileProblem, whose text is the one the user sees.
#include <string>
#include <vector>

#include "format/scheme_record.h"
#include "platform/errors.h"

namespace lathwick {

inline constexpr const char* kDataFileProblemTitle = "Problem with data file.";
inline constexpr const char* kDataFileProblemMessage =
    "There is a problem with data file in the installed directory.\n"
    "If the problem persists you will have to restore an older version. ";

// The data-file message with the number of the underlying runtime error.
class DataFileProblem : public AppError {
 public:
  explicit DataFileProblem(int number = err::kPathFileAccessError) : AppError(number, kDataFileProblemMessage) {}
};

struct SchemeListEntry {
  std::string name;  // trimmed
  long record = 0;   // 1-based record number
};

struct SchemeList {
  std::vector<SchemeListEntry> entries;
  int selected = -1;              // index into entries; -1 when the list is empty
  bool dataFileProblem = false;   // reading stopped early: show kDataFileProblemMessage
};

// Whole records in the file (a shorter remainder is ignored); throws DataFileProblem when the
// file cannot be read.
long schemeRecordCount(const std::string& dataFile);

// Reads every record's name. Selects the entry whose position is rememberedRecord, or the first
// one when that is out of range. A failing record stops the load; what was read is kept.
SchemeList loadSchemeList(const std::string& dataFile, long rememberedRecord);

// Record n (1-based). Throws DataFileProblem when n is not a whole record of the file or the
// record cannot be a scheme.
SchemeRecord readSchemeRecord(const std::string& dataFile, long n);

// Writes the record as record n (1 to count + 1), rewriting the file through a temporary file.
// A data file marked read-only is left alone (DataFileProblem), as is one that cannot be read.
void writeSchemeRecord(const std::string& dataFile, long n, const SchemeRecord& record);

// Record n with its fragments rebuilt, ready to be the current scheme.
SchemeRecord loadScheme(const std::string& dataFile, long n);

// The comment-start text of record n (set 0, style 10 marker, blanks trimmed), "(" when the data
// file cannot give it.
std::string commentStartText(const std::string& dataFile, long n);

// The bundled data file of the batch tool: "Lathwick.dat" beside the running executable, or in
// the installed data folder when the executable has none beside it.
std::string bundledDataFilePath();

// Copies every record except n into tempFile and gives it the data file's name. Nothing changes
// when either file cannot be opened (DataFileProblem is thrown).
void removeSchemeRecord(const std::string& dataFile, const std::string& tempFile, long n);

}  // namespace lathwick

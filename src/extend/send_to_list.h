#pragma once
// The send-to list: the external programs to which the current document's file is handed, kept
// in "SendTo.dat" of the application folder. The file's first record holds the entry count and
// a second number that the list carries along unchanged; then one record per entry: title,
// program path and parameters, each in double quotes.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lathwick::extend {

inline constexpr const char* kSendToFileName = "SendTo.dat";

// The program's own messages (trailing blanks and spelling as the program shows them).
inline constexpr const char* kSendToReadFailed = "Unable to read SendTo dat file. ";
inline constexpr const char* kSendToWriteFailed = "Unable to save SendTo list. ";
inline constexpr const char* kTitleAndPathRequired = "The title and full path ar required.\r\nPlease enter information.";
inline constexpr const char* kProgramMissing = "Specified program does not exist.\r\nPlease check path and file name.";
inline constexpr const char* kTitleInUse = "Title is already in use.";
inline constexpr const char* kNoDoubleQuotes =
    "Double quotes cannot be kept in the send-to list.\r\nUse single quotes to group words of the parameters.";
inline constexpr const char* kUnableToShell = "Unable to shell this file.\r\nPlease check path and parameters in send-to list.";

struct SendToEntry {
  std::string title;
  std::string program;     // full path of the external program
  std::string parameters;  // passed before the file name
  bool operator==(const SendToEntry&) const = default;
};

struct SendToFile {
  std::vector<SendToEntry> entries;  // in file order
  std::int16_t second = 0;           // read and written back unchanged
};

// Both throw AppError. A missing file is an empty list; the write goes through a temporary file.
SendToFile readSendToFile(const std::string& path);
void writeSendToFile(const std::string& path, const SendToFile& file);
std::string sendToFileBytes(const SendToFile& file);

// The list as the editing dialog holds it: the entries in the order they were read (an entry's
// index never changes while the dialog is open) and the order in which the list shows them,
// which moves take effect in and which the next write puts into the file.
class SendToList {
 public:
  explicit SendToList(std::string datName) : DatName(std::move(datName)) {}

  const std::string DatName;

  // Reads the file; on failure the read message, and the list keeps what it had.
  std::optional<std::string> read();
  int count() const { return static_cast<int>(order_.size()); }
  const SendToEntry& at(int position) const { return entries_.at(static_cast<std::size_t>(order_.at(static_cast<std::size_t>(position)))); }
  int itemData(int position) const { return order_.at(static_cast<std::size_t>(position)); }
  std::string ShellProgram(int index) const { return entries_.at(static_cast<std::size_t>(index)).program; }
  std::string ShellParameters(int index) const { return entries_.at(static_cast<std::size_t>(index)).parameters; }
  std::vector<std::string> titles() const;  // in list order
  bool titleInUse(const std::string& title, int exceptPosition = -1) const;
  int positionOf(const std::string& title) const;  // -1 when no entry has that title

  // Each checks as the dialog does, then writes the list and reads it back. The result is the
  // message to show, or nothing when it was done.
  std::optional<std::string> add(const SendToEntry& entry);
  std::optional<std::string> save(int position, const SendToEntry& entry);
  std::optional<std::string> remove(int position);
  // Moves one place up (-1) or down (+1) in the shown order; false at the end of the list.
  bool move(int position, int direction);
  // Writes the list in its shown order (after moves alone).
  std::optional<std::string> write();

 private:
  std::optional<std::string> writeAndReadBack(std::vector<SendToEntry> entries);
  std::vector<SendToEntry> entries_;
  std::vector<int> order_;
  std::int16_t second_ = 0;
  bool unreadable_ = false;  // the file is there but could not be read
};

// The dialog's checks of an entry about to be added or saved, in the dialog's order.
std::optional<std::string> checkSendToEntry(const SendToEntry& entry, bool titleTaken);

// What starting a program for a document needs: the program and its words, the file name last.
struct SendCommand {
  std::string program;
  std::vector<std::string> arguments;
  std::string workingFolder;  // the document's folder
};
// Nothing when the parameters leave a quote open.
std::optional<SendCommand> buildSendCommand(const SendToEntry& entry, const std::string& fileName);
// The failure message: the error's description, then the program's two lines.
std::string sendFailedMessage(const std::string& description);

}  // namespace lathwick::extend

#pragma once
// The changes the scheme editor makes to schemes, shared with the batch tool: a style's look,
// the background, the indent, and the records it adds, copies, renames and removes. Every
// change rebuilds the record's fragments, so the record is always ready to colour with.
#include <optional>
#include <string>
#include <vector>

#include "format/scheme_record.h"

namespace lathwick {

inline constexpr const char* kCautionTitle = "Caution!";
inline constexpr const char* kCautionMessage = "The background color matches one of the text colors.\n"
                                               "The text will be invisible.";
inline constexpr const char* kSettingsChangedMessage = "Some settings have changed.\n"
                                                       "Do you want to save them now ? ";
inline constexpr const char* kCommentQuestion = "What is the comment character?";
inline constexpr const char* kBlockSkipQuestion = "What is the block skip character?";
inline constexpr int kIndentStepChoices = 21;  // the indent box offers 0 to 20 steps

// A style's look as the font dialog gives it back; unset fields stay as they are.
struct StyleChange {
  std::optional<std::int32_t> colour;
  std::optional<std::string> fontName;
  std::optional<int> size;
  std::optional<bool> bold, italic, underline, strikeout;
  std::optional<std::string> marker;
};

// Applies the change to (set, style), derives the family keyword of a new font name from it
// and rebuilds the fragments. Sizes are held to 1 to 1638 points.
void changeStyle(SchemeRecord& record, int set, int style, const StyleChange& change);
void changeBackground(SchemeRecord& record, std::int32_t colour);
void changeIndent(SchemeRecord& record, int steps);  // held to the steps the indent box offers

// The family keyword for a font known only by its name: "fmodern" for fixed-pitch faces,
// "froman" for serif faces, "fswiss" for the rest.
std::string familyKeywordOfName(const std::string& fontName);

// The fixed styles (set 0, all but "Background") whose colour is the background colour: their
// text would be invisible. One entry per such style, in style order.
std::vector<int> invisibleStyles(const SchemeRecord& record);

// A new scheme as the editor's New makes it from the scheme on show, to become record `number`.
SchemeRecord newSchemeFrom(SchemeRecord shown, long number);
// A copy of a scheme under another name (cut to the 16 characters of the field).
SchemeRecord copiedScheme(SchemeRecord source, const std::string& name);

// Appends the record to the data file (through a temporary file) and returns its number.
long appendScheme(const std::string& dataFile, const SchemeRecord& record);

// The work file that removing a record copies the others into: "TEMP1.TXT" beside the data file.
std::string removalWorkFile(const std::string& dataFile);

}  // namespace lathwick

#include "format/scheme_edits.h"

#include <algorithm>

#include "document/standard_fonts.h"
#include "format/rich_text_builder.h"
#include "format/scheme_data_file.h"

namespace lathwick {

namespace {

constexpr int kLargestSize = 1638;  // the largest size whose half-points fit the rich text's numbers

}  // namespace

std::string familyKeywordOfName(const std::string& fontName) {
  switch (standardFamilyOf(fontName)) {
    case StandardFamily::Courier: return "fmodern";
    case StandardFamily::Times: return "froman";
    case StandardFamily::Helvetica: return "fswiss";
  }
  return "fnil";
}

void changeStyle(SchemeRecord& record, int set, int style, const StyleChange& change) {
  SchemeStyle& s = record.style(set, style);
  if (change.colour) s.colour = *change.colour & 0xFFFFFF;
  if (change.fontName) {
    s.fontName = change.fontName->substr(0, kFontNameWidth);
    s.family = familyKeywordOfName(s.fontName);
  }
  if (change.size) s.size = static_cast<std::int16_t>(std::clamp(*change.size, 1, kLargestSize));
  if (change.bold) s.bold = *change.bold;
  if (change.italic) s.italic = *change.italic;
  if (change.underline) s.underline = *change.underline;
  if (change.strikeout) s.strikeout = *change.strikeout;
  if (change.marker) s.marker = change.marker->substr(0, kMarkerWidth);
  buildSchemeFragments(record);
}

void changeBackground(SchemeRecord& record, std::int32_t colour) {
  record.backColour = colour & 0xFFFFFF;
  buildSchemeFragments(record);
}

void changeIndent(SchemeRecord& record, int steps) {
  record.style(0, kXPositions).indentSteps = static_cast<std::int16_t>(std::clamp(steps, 0, kIndentStepChoices - 1));
  buildSchemeFragments(record);
}

std::vector<int> invisibleStyles(const SchemeRecord& record) {
  std::vector<int> styles;
  for (int i = 0; i < kStyleCount; ++i)
    if (i != kBackgroundStyle && (record.style(0, i).colour & 0xFFFFFF) == (record.backColour & 0xFFFFFF))
      styles.push_back(i);
  return styles;
}

SchemeRecord newSchemeFrom(SchemeRecord shown, long number) {
  shown.name = prepareNewRecord(shown, number);
  buildSchemeFragments(shown);
  return shown;
}

SchemeRecord copiedScheme(SchemeRecord source, const std::string& name) {
  source.name = name.substr(0, kSchemeNameWidth);
  buildSchemeFragments(source);
  return source;
}

long appendScheme(const std::string& dataFile, const SchemeRecord& record) {
  const long number = schemeRecordCount(dataFile) + 1;
  writeSchemeRecord(dataFile, number, record);
  return number;
}

std::string removalWorkFile(const std::string& dataFile) {
  const std::size_t slash = dataFile.find_last_of("/\\");
  return (slash == std::string::npos ? std::string() : dataFile.substr(0, slash + 1)) + "TEMP1.TXT";
}

}  // namespace lathwick

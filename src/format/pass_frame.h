#pragma once
// What a pass that writes rich text needs from the current scheme, without knowing the record's
// layout: the header and trailer lines, the paragraph start of each line, the attribute strings,
// the highlight markers and the comment delimiters.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "format/scheme_record.h"

namespace lathwick {

struct CommentDelimiters {
  char open = '(';
  char close = ')';
  bool active = true;  // false when the comment text is empty: no comments are recognised

  // The delimiters as the passes look for them: empty texts when no comments are recognised.
  std::string openText() const { return active ? std::string(1, open) : std::string(); }
  std::string closeText() const { return active ? std::string(1, close) : std::string(); }
};

// The pair for a comment text: "(" gives "()", "[" "[]", a double quote two double quotes, "{"
// "{}", "~" "~~"; any other text its first character twice. Trimmed first.
CommentDelimiters commentDelimitersFor(std::string_view commentText);

struct PassFrame {
  std::string header;   // the header field without trailing blanks: write it as one line
  std::string trailer;  // "\par}" as stored, without trailing blanks: write it as one line
  long indentTwips = 0; // the scheme's paragraph indent
  // Attribute strings of every style, trailing blanks removed (index [set][style]).
  std::array<std::array<std::string, kStyleCount>, kSetCount> attributes;
  std::string highlightStart;  // set 1, style 13 trimmed, then one blank
  std::string highlightEnd;    // "\plain" + the attribute string of set 0, style 12
  std::string plainText;       // the attribute string of set 0, style 12, with its blank
  std::string blockSkipText;   // set 0, style 13 marker, trimmed
  CommentDelimiters comment;
  std::int32_t backColour = 0;

  // "\li<indent> " for the first line of the output, "\par\li<indent> " for every later one.
  std::string lineStart(bool firstLine) const;
};

// Builds the frame from a record whose fragments are built (buildSchemeFragments). The comment
// override, when given, replaces the comment text of set 0, style 10.
PassFrame makePassFrame(const SchemeRecord& record, const std::string* commentOverride = nullptr);

}  // namespace lathwick

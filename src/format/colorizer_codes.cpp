#include "format/colorizer_codes.h"

#include "platform/bytes.h"

namespace lathwick {

CodeStrings buildCodeStrings(const PassFrame& frame, ColorizeView view) {
  CodeStrings codes;
  for (int k = 1; k <= 13; ++k) codes[k] = trimBlanks(frame.attributes[0][k]) + " ";
  for (int k = 0; k < kStyleCount; ++k) codes[kFirstCodeStyle + k] = trimBlanks(frame.attributes[1][k]) + " ";
  codes[kEndOfWord] = view == ColorizeView::Codes ? "\\plain" + frame.plainText : std::string();
  codes[kXCode] = trimBlanks(frame.attributes[0][kXPositions]) + " ";
  return codes;
}

std::vector<MarkerEntry> buildMarkerList(const SchemeRecord& record) {
  std::vector<MarkerEntry> list;
  for (int j = 0; j < kStyleCount; ++j) {
    const std::string& marker = record.style(1, j).marker;
    if (isCodeMarker(marker)) list.push_back({trimBlanks(marker), j});
  }
  return list;
}

}  // namespace lathwick

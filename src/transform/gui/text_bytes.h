#pragma once
// The program's texts are bytes, one byte one character; widgets hold them as Latin-1 so that
// every byte survives the round trip.
#include <QString>
#include <string>
#include <string_view>

namespace lathwick::gui {

inline QString fromBytes(std::string_view bytes) {
  return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

// Characters beyond Latin-1 cannot be in a program file; they become "?".
inline std::string toBytes(const QString& text) { return text.toLatin1().toStdString(); }

}  // namespace lathwick::gui

#include "transform/gui/key_filters.h"

namespace lathwick::gui {

CharacterFilter::CharacterFilter(QString accepted, bool singlePoint, QObject* parent)
    : QValidator(parent), accepted_(std::move(accepted)), singlePoint_(singlePoint) {}

QValidator::State CharacterFilter::validate(QString& input, int&) const {
  for (const QChar c : input)
    if (!accepted_.contains(c)) return Invalid;
  if (singlePoint_ && input.count(QLatin1Char('.')) > 1) return Invalid;
  return Acceptable;
}

CharacterFilter* addressFilter(QObject* parent) {
  return new CharacterFilter(QStringLiteral("ABCDEFGHIJKLMNOPQRSTUVWXYZ"), false, parent);
}
CharacterFilter* formatFilter(QObject* parent) { return new CharacterFilter(QStringLiteral("0#."), true, parent); }
CharacterFilter* valueFilter(QObject* parent) {
  return new CharacterFilter(QStringLiteral("0123456789."), true, parent);
}
CharacterFilter* digitsFilter(QObject* parent) { return new CharacterFilter(QStringLiteral("0123456789"), false, parent); }

}  // namespace lathwick::gui

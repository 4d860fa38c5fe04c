#pragma once
// Key filters of the operate and renumber fields: a key whose character the field does not take
// is discarded. Editing keys (Backspace, Delete, arrows) and pasting obey the same rule, since
// the filter judges the text the edit would produce.
#include <QValidator>

namespace lathwick::gui {

class CharacterFilter : public QValidator {
 public:
  // `accepted`: every character the field takes; `singlePoint`: a second "." is refused.
  CharacterFilter(QString accepted, bool singlePoint, QObject* parent);
  State validate(QString& input, int& pos) const override;

 private:
  QString accepted_;
  bool singlePoint_;
};

// The address letters: capitals A to Z only.
CharacterFilter* addressFilter(QObject* parent);
// The output picture: "0", "#" and one ".".
CharacterFilter* formatFilter(QObject* parent);
// The operand: digits and one ".".
CharacterFilter* valueFilter(QObject* parent);
// Renumber's start and increment: digits only.
CharacterFilter* digitsFilter(QObject* parent);

}  // namespace lathwick::gui

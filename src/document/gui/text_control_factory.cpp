#include "document/gui/text_control_factory.h"

#include "document/gui/plain_text_control.h"

namespace lathwick::gui {

TextControl* makeTextControl(QWidget* parent) { return new PlainTextControl(parent); }

bool textControlSupportsRichText() { return false; }

}  // namespace lathwick::gui

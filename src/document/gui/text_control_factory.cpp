#include "document/gui/text_control_factory.h"

#include "document/gui/plain_text_control.h"
#include "document/gui/rich_text_control.h"

namespace lathwick::gui {

// The rich text control takes over as soon as it is part of the program.
#ifdef LATHWICK_HAS_RICH_TEXT_BOX
TextControl* makeTextControl(QWidget* parent) { return new RichTextControl(parent); }
bool textControlSupportsRichText() { return true; }
#else
TextControl* makeTextControl(QWidget* parent) { return new PlainTextControl(parent); }
bool textControlSupportsRichText() { return false; }
#endif

}  // namespace lathwick::gui

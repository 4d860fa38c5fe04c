#pragma once
// The one place that decides which text control a document window holds. A richer control plugs
// in here; the windows and commands follow from what it says it can do.
#include "document/gui/text_control.h"

namespace lathwick::gui {

// A new text control whose widget is a child of `parent` (which owns it).
TextControl* makeTextControl(QWidget* parent);

// Whether the controls made above load and save rich text (Save As RTF depends on it).
bool textControlSupportsRichText();

}  // namespace lathwick::gui

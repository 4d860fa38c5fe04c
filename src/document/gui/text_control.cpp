// The text control interface is all in its header; this file gives it a home for the meta-object code.
#include "document/gui/text_control.h"

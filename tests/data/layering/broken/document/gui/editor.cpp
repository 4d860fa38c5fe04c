#include "shell/gui/mdi_form.h"

#include "shell/startup.h"

#include <QWidget>
#include "shell/startup.h"

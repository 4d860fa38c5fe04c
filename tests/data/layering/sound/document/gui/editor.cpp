#include <QWidget>
#include "workspace/workspace.h"
#include "platform/bytes.h"

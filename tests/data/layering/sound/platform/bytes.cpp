#include <string>
#include "platform/bytes.h"

#include "transform/pass_result.h"

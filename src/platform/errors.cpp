#include "platform/errors.h"

namespace lathwick {

AppError makeError(int number) {
  const char* text = programErrorText(number);
  return AppError(number, text ? text : "Application-defined or object-defined error");
}

}  // namespace lathwick

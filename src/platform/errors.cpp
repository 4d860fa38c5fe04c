#include "platform/errors.h"

namespace lathwick {

AppError makeError(int number) {
  if (!isKnownError(number)) return AppError(number, "Application-defined or object-defined error");
  return AppError(number, errorText(number));
}

}  // namespace lathwick

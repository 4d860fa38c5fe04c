#include "platform/errors.h"

namespace lathwick {

AppError makeError(int number) {
  switch (number) {
    case err::kOverflow: return AppError(number, "Overflow");
    case err::kTypeMismatch: return AppError(number, "Type mismatch");
    case err::kBadFileName: return AppError(number, "Bad file name or number");
    case err::kFileNotFound: return AppError(number, "File not found");
    case err::kBadFileMode: return AppError(number, "Bad file mode");
    case err::kDiskFull: return AppError(number, "Disk full");
    case err::kBadFileNameOrNumber: return AppError(number, "Bad file name");
    case err::kPermissionDenied: return AppError(number, "Permission denied");
    case err::kPathFileAccess: return AppError(number, "Path/File access error");
    case err::kPathNotFound: return AppError(number, "Path not found");
    default: return AppError(number, "Application-defined or object-defined error");
  }
}

}  // namespace lathwick

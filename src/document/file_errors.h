#pragma once
// The messages shown, under the caption "File Error", for file errors by number.
#include <string>

namespace lathwick {

inline constexpr const char* kFileErrorCaption = "File Error";

// The table's text for the known numbers; any other number gives the error's own description.
std::string FileErrorText(int number, const std::string& description);

}  // namespace lathwick

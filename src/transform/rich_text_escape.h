#pragma once
// Rich text gives "\", "{" and "}" a meaning of their own; program text carrying them is written
// with a backslash in front of each.
#include <string>
#include <string_view>

namespace lathwick::transform {

// Appends `text` to `out` escaped.
void appendEscaped(std::string_view text, std::string& out);
std::string escapeRichText(std::string_view text);

}  // namespace lathwick::transform

#pragma once
// The program's own names that every layer may show or look for: the title every message box
// carries and the name of the scheme data file.
namespace lathwick {

inline constexpr const char* kAppTitle = "Lathwick";
inline constexpr const char* kDataFileName = "Lathwick.dat";

}  // namespace lathwick

// Writes the bundled scheme data file: lathwick_make_scheme_data OUT.dat
#include <cstdio>
#include <exception>

#include "format/bundled_schemes.h"
#include "format/scheme_data_file.h"
#include "platform/file_system.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: lathwick_make_scheme_data OUT\n");
    return 2;
  }
  try {
    const std::string out = argv[1];
    lathwick::removeFile(out);  // regenerate from scratch, never append to an old file
    long n = 0;
    for (const auto& scheme : lathwick::bundledSchemes()) lathwick::writeSchemeRecord(out, ++n, scheme);
  } catch (const std::exception& e) {
    std::fprintf(stderr, "lathwick_make_scheme_data: %s\n", e.what());
    return 1;
  }
  return 0;
}

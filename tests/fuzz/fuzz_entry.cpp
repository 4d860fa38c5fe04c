// libFuzzer's entry point for one target; LATHWICK_FUZZ_FUNCTION names it (set by tests.cmake).
#include "fuzz_targets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  return lathwick::fuzz::LATHWICK_FUZZ_FUNCTION(data, size);
}

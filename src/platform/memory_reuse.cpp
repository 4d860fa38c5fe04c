#include "platform/memory_reuse.h"

#include <cstdlib>  // defines __GLIBC__ where the C library is glibc

#if defined(__GLIBC__)
#include <malloc.h>
#endif

namespace lathwick {

void keepLargeBuffersForReuse() {
#if defined(__GLIBC__)
  // Every block from the heap rather than its own mapping (a mapping is returned when freed),
  // and up to 256 MB free at the top of the heap kept rather than trimmed: about the text,
  // styles and line index of the largest programs.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, 256 << 20);
#endif
}

}  // namespace lathwick

#pragma once
// The selection length as the program counts it. The text control may report a negative length
// for a very long selection; the true length is then rebuilt from the selection start.
namespace lathwick {

// ((start \ 65536) + 1) * 65536 + reported, for a negative reported length; otherwise as reported.
// A start of 70,000 with -1,000 reported gives 130,072.
inline long long correctedSelectionLength(long long start, long long reported) {
  if (reported >= 0) return reported;
  return (start / 65536 + 1) * 65536 + reported;
}

}  // namespace lathwick

#pragma once
// The key recorder: special keys the user presses, appended to the keyboard script in the
// keystroke notation of KeyPress, so that a recorded line replays the key.
#include <string>

namespace lathwick {

// Shift state bits as the key events give them.
inline constexpr int kShiftBit = 1, kCtrlBit = 2, kAltBit = 4;

// Prefix and key text of a key code (Windows virtual-key numbers) under a shift state, or empty
// when the key is not recorded (an unlisted key, or Ctrl+F1, which opens help).
std::string recordedKeyText(int keyCode, int shift);

// One line of the keyboard script: Key "TEXT".
std::string keyEntry(const std::string& keys);

// Appends the pending typed text (when any, then empties it) and the key's entry to the file.
// Nothing is written for a key that is not recorded. False when the file cannot be written.
bool recordKey(const std::string& keyboardScript, std::string& pendingText, int keyCode, int shift);

}  // namespace lathwick

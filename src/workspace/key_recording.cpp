#include "workspace/key_recording.h"

#include <fstream>

namespace lathwick {

namespace {

struct KeyText {
  int code;
  const char* text;
};

constexpr KeyText kKeyTexts[] = {
    {8, "{BKSP}"},  {9, "{TAB}"},    {13, "{ENTER}"}, {33, "{PGUP}"},  {34, "{PGDN}"},  {35, "{END}"},
    {36, "{HOME}"}, {37, "{LEFT}"},  {38, "{UP}"},    {39, "{RIGHT}"}, {40, "{DOWN}"},  {45, "{INS}"},
    {46, "{DEL}"},  {112, "{F1}"},   {113, "{F2}"},   {114, "{F3}"},   {115, "{F4}"},   {116, "{F5}"},
    {117, "{F6}"},  {118, "{F7}"},   {119, "{F8}"},   {120, "{F9}"},   {121, "{F10}"},  {122, "{F11}"},
    {123, "{F12}"}, {124, "{F13}"},  {125, "{F14}"},  {126, "{F15}"},  {127, "{F16}"},
};

}  // namespace

std::string recordedKeyText(int keyCode, int shift) {
  std::string prefix;
  if (shift & kShiftBit) prefix = "+";
  if (shift & kCtrlBit) prefix = "^" + prefix;
  if (shift & kAltBit) prefix = "%" + prefix;
  for (const KeyText& k : kKeyTexts) {
    if (k.code != keyCode) continue;
    if (keyCode == 112 && prefix == "^") return {};
    return prefix + k.text;
  }
  return {};
}

std::string keyEntry(const std::string& keys) { return "Key \"" + keys + "\"\r\n"; }

bool recordKey(const std::string& keyboardScript, std::string& pendingText, int keyCode, int shift) {
  const std::string keys = recordedKeyText(keyCode, shift);
  if (keys.empty()) return true;
  std::ofstream out(keyboardScript, std::ios::binary | std::ios::app);
  if (!out) return false;
  if (!pendingText.empty()) {
    out << keyEntry(pendingText);
    pendingText.clear();
  }
  out << keyEntry(keys);
  return static_cast<bool>(out);
}

}  // namespace lathwick

#pragma once
// Code pages as rich-text documents declare them (\ansicpgN, \fcharsetN, \cpgN, \mac, \pc,
// \pca), and the conversion of their bytes into the editor's one-byte Windows-1252 text.
namespace lathwick {

inline constexpr int kCodePageWindows1252 = 1252;
inline constexpr int kCodePageSymbol = 42;  // symbol fonts: bytes are glyph numbers, kept as they are

bool isDoubleByteCodePage(int codePage);
bool isLeadByte(int codePage, unsigned char b);
// The character of a byte in a code page; U+FFFD when the code page or the byte is unknown.
// Code page 0 means Windows-1252.
char32_t codePageToUnicode(int codePage, unsigned char b);
// The Windows-1252 byte of a character, or -1 when it has none.
int unicodeToWindows1252(char32_t c);
// The code page a font's \fcharset implies; 0 when it implies none (use the document's).
int codePageOfCharset(int charset);

}  // namespace lathwick

#pragma once
// Text is UTF-8 in memory. Lengths, cuts and pads count characters, never bytes.

#include <string>
#include <string_view>

namespace fenvale {

std::size_t length(std::string_view text);
/// The first `count` characters; the whole text when it is shorter.
std::string left(std::string_view text, std::size_t count);
std::string right(std::string_view text, std::size_t count);
/// From the 1-based place `start`, at most `count` characters; an empty text when `start` lies behind the end.
std::string mid(std::string_view text, std::size_t start, std::size_t count = std::string_view::npos);

std::string toUpper(std::string_view text);  ///< also of the accented letters of Latin-1
std::string toLower(std::string_view text);
bool equalsNoCase(std::string_view first, std::string_view second);

std::string trim(std::string_view text);       ///< blanks at both ends
std::string trimRight(std::string_view text);  ///< blanks at the end
std::string replaceAll(std::string text, std::string_view what, std::string_view with);
/// Every character of `letters` taken out.
std::string without(std::string_view text, std::string_view letters);
bool endsWithNoCase(std::string_view text, std::string_view ending);

/// One decoded character and the bytes it took; a byte that starts no valid sequence stands for itself (U+FFFD).
struct DecodedCharacter {
  char32_t code;
  std::size_t bytes;
};
DecodedCharacter decodeUtf8(std::string_view text, std::size_t place);
void appendUtf8(std::string& text, char32_t code);

/// Files for the outside are Windows-1252. A character without a place there becomes '?'.
std::string toWindows1252(std::string_view utf8);
std::string fromWindows1252(std::string_view bytes);
/// The Windows-1252 code of a character, or -1.
int windows1252Code(char32_t character);
/// The character of a Windows-1252 code; the five unused codes give the control character of that number.
char32_t windows1252Character(unsigned char code);

/// The system's line break.
inline constexpr std::string_view lineBreak = "\r\n";

}  // namespace fenvale

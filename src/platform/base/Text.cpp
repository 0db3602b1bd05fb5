#include "platform/base/Text.h"

#include <array>

namespace fenvale {
namespace {

constexpr char32_t replacement = 0xFFFD;

// The codes 128 to 159 of Windows-1252; the unused ones keep their number.
constexpr std::array<char32_t, 32> upperControls = {0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                                    0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};

std::size_t offsetOf(std::string_view text, std::size_t characters) {
  std::size_t place = 0;
  for (; characters > 0 && place < text.size(); --characters) place += decodeUtf8(text, place).bytes;
  return place;
}

char32_t upper(char32_t code) {
  if (code >= U'a' && code <= U'z') return code - 32;
  if (code >= 0xE0 && code <= 0xFE && code != 0xF7) return code - 32;
  return code;
}

char32_t lower(char32_t code) {
  if (code >= U'A' && code <= U'Z') return code + 32;
  if (code >= 0xC0 && code <= 0xDE && code != 0xD7) return code + 32;
  return code;
}

template <typename Change>
std::string changed(std::string_view text, Change change) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t place = 0; place < text.size();) {
    const auto [code, bytes] = decodeUtf8(text, place);
    appendUtf8(result, change(code));
    place += bytes;
  }
  return result;
}

}  // namespace

DecodedCharacter decodeUtf8(std::string_view text, std::size_t place) {
  const auto byte = [&](std::size_t index) { return static_cast<unsigned char>(text[index]); };
  const unsigned char lead = byte(place);
  if (lead < 0x80) return {lead, 1};
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || place + size > text.size()) return {replacement, 1};
  char32_t code = lead & (0xFFu >> (size + 1));
  for (std::size_t index = 1; index < size; ++index) {
    if ((byte(place + index) & 0xC0) != 0x80) return {replacement, 1};
    code = (code << 6) | (byte(place + index) & 0x3Fu);
  }
  if ((size == 3 && code < 0x800) || (size == 4 && (code < 0x10000 || code > 0x10FFFF)) ||
      (code >= 0xD800 && code <= 0xDFFF))
    return {replacement, 1};
  return {code, size};
}

void appendUtf8(std::string& text, char32_t code) {
  const auto put = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | (code >> 6));
    put(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    put(0xE0 | (code >> 12));
    put(0x80 | ((code >> 6) & 0x3F));
    put(0x80 | (code & 0x3F));
  } else {
    put(0xF0 | (code >> 18));
    put(0x80 | ((code >> 12) & 0x3F));
    put(0x80 | ((code >> 6) & 0x3F));
    put(0x80 | (code & 0x3F));
  }
}

std::size_t length(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t place = 0; place < text.size(); ++count) place += decodeUtf8(text, place).bytes;
  return count;
}

std::string left(std::string_view text, std::size_t count) {
  return std::string(text.substr(0, offsetOf(text, count)));
}

std::string right(std::string_view text, std::size_t count) {
  const std::size_t all = length(text);
  return count >= all ? std::string(text) : std::string(text.substr(offsetOf(text, all - count)));
}

std::string mid(std::string_view text, std::size_t start, std::size_t count) {
  const std::string_view rest = text.substr(offsetOf(text, start > 0 ? start - 1 : 0));
  return count == std::string_view::npos ? std::string(rest) : left(rest, count);
}

std::string toUpper(std::string_view text) { return changed(text, upper); }
std::string toLower(std::string_view text) { return changed(text, lower); }
bool equalsNoCase(std::string_view first, std::string_view second) { return toLower(first) == toLower(second); }

std::string trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  return first == std::string_view::npos ? std::string() : trimRight(text.substr(first));
}

std::string trimRight(std::string_view text) { return std::string(text.substr(0, text.find_last_not_of(' ') + 1)); }

std::string replaceAll(std::string text, std::string_view what, std::string_view with) {
  if (what.empty()) return text;
  for (std::size_t place = 0; (place = text.find(what, place)) != std::string::npos; place += with.size())
    text.replace(place, what.size(), with);
  return text;
}

std::string without(std::string_view text, std::string_view letters) {
  std::string result;
  for (char letter : text)
    if (letters.find(letter) == std::string_view::npos) result += letter;
  return result;
}

bool endsWithNoCase(std::string_view text, std::string_view ending) {
  return text.size() >= ending.size() && equalsNoCase(text.substr(text.size() - ending.size()), ending);
}

int windows1252Code(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<int>(character);
  for (std::size_t index = 0; index < upperControls.size(); ++index)
    if (upperControls[index] == character) return static_cast<int>(0x80 + index);
  return -1;
}

char32_t windows1252Character(unsigned char code) {
  return code >= 0x80 && code < 0xA0 ? upperControls[code - 0x80u] : code;
}

std::string toWindows1252(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t place = 0; place < utf8.size();) {
    const auto [character, size] = decodeUtf8(utf8, place);
    const int code = windows1252Code(character);
    bytes += code < 0 ? '?' : static_cast<char>(static_cast<unsigned char>(code));
    place += size;
  }
  return bytes;
}

std::string fromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (char byte : bytes) appendUtf8(text, windows1252Character(static_cast<unsigned char>(byte)));
  return text;
}

}  // namespace fenvale

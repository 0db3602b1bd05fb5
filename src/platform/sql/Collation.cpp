#include "platform/sql/Collation.h"

#include <array>
#include <cstdint>

#include "platform/base/Text.h"

namespace fenvale {
namespace {

/// Of one character: the base letter's rank, then the accent's. The same pair for both cases of a letter, and for no
/// other letter.
struct Weight {
  std::uint32_t base = 0;
  std::uint8_t accent = 0;
};

constexpr std::uint32_t firstDigit = 0x1000;
constexpr std::uint32_t firstLetter = 0x2000;

constexpr char32_t lowerOf(char32_t code) {
  if (code >= U'A' && code <= U'Z') return code + 32;
  if (code >= 0xC0 && code <= 0xDE && code != 0xD7) return code + 32;
  return code;
}

constexpr Weight latinWeight(char32_t code) {
  constexpr std::string_view bases = "aaaaaaaceeeeiiiidnooooo/ouuuuyty";  // of 0xE0 to 0xFF
  const char32_t lower = lowerOf(code);
  if (lower >= U'0' && lower <= U'9') return {firstDigit + lower, 0};
  if (lower >= U'a' && lower <= U'z') return {firstLetter + lower, 0};
  if (lower == 0xDF) return {firstLetter + U's', 0xDF};
  if (lower >= 0xE0 && lower != 0xF7)
    return {firstLetter + static_cast<std::uint32_t>(bases[lower - 0xE0]), static_cast<std::uint8_t>(lower)};
  return {lower, 0};
}

constexpr auto latinWeights = [] {
  std::array<Weight, 256> table{};
  for (char32_t code = 0; code < 256; ++code) table[code] = latinWeight(code);
  return table;
}();

Weight weightOf(char32_t code) {
  if (code < 256) return latinWeights[code];
  if (code >= 0x2000 && code < 0x2C00) return {0x100 + (code - 0x2000), 0};  // dashes, quotes, currency and other signs
  return {0x10000 + code, 0};
}

/// Goes through a text character by character, past the signs that weigh only when all else is equal.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool next(Weight& weight) {
    while (place_ < text_.size()) {
      const char letter = text_[place_];
      if (letter == '\'' || letter == '-') {
        ++skipped_;
        ++place_;
        continue;
      }
      if (static_cast<unsigned char>(letter) < 0x80) {
        weight = latinWeights[static_cast<unsigned char>(letter)];
        ++place_;
      } else {
        const auto [code, bytes] = decodeUtf8(text_, place_);
        weight = weightOf(code);
        place_ += bytes;
      }
      return true;
    }
    return false;
  }
  std::size_t skipped() const { return skipped_; }

 private:
  std::string_view text_;
  std::size_t place_ = 0;
  std::size_t skipped_ = 0;
};

int compareCharacters(std::string_view first, std::string_view second) {
  std::size_t one = 0;
  std::size_t other = 0;
  while (one < first.size() && other < second.size()) {
    const auto left = decodeUtf8(first, one);
    const auto right = decodeUtf8(second, other);
    const char32_t leftCode = lowerOf(left.code);
    const char32_t rightCode = lowerOf(right.code);
    if (leftCode != rightCode) return leftCode < rightCode ? -1 : 1;
    one += left.bytes;
    other += right.bytes;
  }
  return one < first.size() ? 1 : other < second.size() ? -1 : 0;
}

}  // namespace

int compareTexts(std::string_view first, std::string_view second) {
  Reader one(first);
  Reader other(second);
  int accents = 0;
  for (;;) {
    Weight left;
    Weight right;
    const bool more = one.next(left);
    const bool otherMore = other.next(right);
    if (!more || !otherMore) {
      if (more != otherMore) return more ? 1 : -1;
      break;
    }
    if (left.base != right.base) return left.base < right.base ? -1 : 1;
    if (accents == 0 && left.accent != right.accent) accents = left.accent < right.accent ? -1 : 1;
  }
  if (accents != 0) return accents;
  if (one.skipped() != other.skipped()) return one.skipped() < other.skipped() ? -1 : 1;
  return one.skipped() > 0 ? compareCharacters(first, second) : 0;
}

}  // namespace fenvale

#include "platform/sql/Collation.h"

#include <array>
#include <cstdint>
#include <string>

#include "platform/base/Text.h"

namespace fenvale {
namespace {

/// How much a character weighs in each of the levels; `ignored` ones count only when all else is equal.
struct Weight {
  std::uint32_t base = 0;
  std::uint8_t accent = 0;
  bool ignored = false;
};

constexpr std::uint32_t digits = 0x1000;   // signs lie below,
constexpr std::uint32_t letters = 0x2000;  // letters above

constexpr Weight letter(char base, std::uint8_t accent = 0) {
  return {letters + static_cast<std::uint32_t>(base), accent, false};
}

constexpr Weight asciiWeight(char32_t code) {
  if (code == U'\'' || code == U'-') return {0, 0, true};
  if (code >= U'0' && code <= U'9') return {digits + code};
  if (code >= U'A' && code <= U'Z') return letter(static_cast<char>(code + 32));
  if (code >= U'a' && code <= U'z') return letter(static_cast<char>(code));
  return {code};
}

constexpr std::array<Weight, 128> asciiWeights = [] {
  std::array<Weight, 128> table;
  for (char32_t code = 0; code < table.size(); ++code) table[code] = asciiWeight(code);
  return table;
}();

Weight weightOf(char32_t code) {
  // The letters below 0xE0 to 0xFF; '*' is the division sign.
  constexpr std::string_view bases = "aaaaaaaceeeeiiiidnooooo*ouuuuyty";
  if (code < asciiWeights.size()) return asciiWeights[code];
  if (code >= 0xC0 && code <= 0xDE && code != 0xD7) code += 32;
  if (code >= 0xE0 && code <= 0xFF && code != 0xF7)
    return letter(bases[code - 0xE0], static_cast<std::uint8_t>(code - 0xDF));
  return {(code <= 0xFF ? 0 : letters * 2) + code};
}

/// Walks the characters that count.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  bool next(Weight& weight) {
    while (place_ < text_.size()) {
      const auto byte = static_cast<unsigned char>(text_[place_]);
      if (byte < asciiWeights.size()) {
        ++place_;
        weight = asciiWeights[byte];
      } else {
        const auto [code, bytes] = decodeUtf8(text_, place_);
        place_ += bytes;
        weight = weightOf(code);
      }
      if (!weight.ignored) return true;
    }
    return false;
  }

 private:
  std::string_view text_;
  std::size_t place_ = 0;
};

int order(std::uint32_t first, std::uint32_t second) { return first < second ? -1 : first > second ? 1 : 0; }

}  // namespace

int compareTexts(std::string_view first, std::string_view second) {
  if (first == second) return 0;
  Reader left(first), right(second);
  Weight one, other;
  int accents = 0;
  for (;;) {
    const bool more = left.next(one);
    if (const bool otherMore = right.next(other); !more || !otherMore) {
      if (more != otherMore) return more ? 1 : -1;
      break;
    }
    if (one.base != other.base) return order(one.base, other.base);
    if (accents == 0) accents = order(one.accent, other.accent);
  }
  if (accents != 0) return accents;
  const int rest = toLower(first).compare(toLower(second));
  return rest < 0 ? -1 : rest > 0 ? 1 : 0;
}

}  // namespace fenvale

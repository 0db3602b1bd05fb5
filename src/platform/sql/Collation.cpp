#include "platform/sql/Collation.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/base/Text.h"

namespace fenvale {
namespace {

struct Weight {
  std::uint32_t base;
  std::uint8_t accent;
};

Weight weightOf(char32_t code) {
  static constexpr std::string_view bases = "aaaaaaaceeeeiiiidnooooo*ouuuuyts";  // 0xE0 to 0xFF
  if (code >= U'A' && code <= U'Z') code += 32;
  if (code >= 0xC0 && code <= 0xDE && code != 0xD7) code += 32;
  if (code >= U'a' && code <= U'z') return {0x2000 + code * 4, 0};
  if (code >= U'0' && code <= U'9') return {0x1000 + code, 0};
  if (code >= 0xE0 && code <= 0xFF && code != 0xF7)
    return {0x2000 + static_cast<std::uint32_t>(bases[code - 0xE0]) * 4, static_cast<std::uint8_t>(code - 0xDF)};
  return {code < 0x80 ? code : code + 0x10000, 0};
}

}  // namespace

int compareTexts(std::string_view first, std::string_view second) {
  const auto weights = [](std::string_view text) {
    std::vector<Weight> result;
    for (std::size_t place = 0; place < text.size();) {
      const auto [code, bytes] = decodeUtf8(text, place);
      place += bytes;
      if (code != U'\'' && code != U'-') result.push_back(weightOf(code));
    }
    return result;
  };
  const auto one = weights(first), other = weights(second);
  for (std::size_t index = 0; index < one.size() && index < other.size(); ++index)
    if (one[index].base != other[index].base) return one[index].base < other[index].base ? -1 : 1;
  if (one.size() != other.size()) return one.size() < other.size() ? -1 : 1;
  for (std::size_t index = 0; index < one.size(); ++index)
    if (one[index].accent != other[index].accent) return one[index].accent < other[index].accent ? -1 : 1;
  return toLower(first).compare(toLower(second));
}

}  // namespace fenvale

#include "platform/sql/dialect/Literals.h"

#include <array>

#include "platform/base/Text.h"
#include "platform/sql/dialect/Lexer.h"

namespace fenvale::sql {
namespace {

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// Reads digits of which there are between `least` and `most`.
bool readNumber(std::string_view text, std::size_t& place, std::size_t least, std::size_t most, int& number) {
  std::size_t count = 0;
  number = 0;
  for (; place < text.size() && isDigit(text[place]) && count < most; ++place, ++count)
    number = number * 10 + (text[place] - '0');
  return count >= least;
}

bool readSign(std::string_view text, std::size_t& place, char sign) {
  if (place >= text.size() || text[place] != sign) return false;
  ++place;
  return true;
}

std::optional<Date> day(int year, int month, int dayOfMonth) {
  const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(dayOfMonth))};
  if (!date.ok()) return std::nullopt;
  return Date(date);
}

}  // namespace

std::optional<Date> readLiteralDate(std::string_view text) {
  std::size_t place = 0;
  int month = 0;
  int dayOfMonth = 0;
  int year = 0;
  if (!readNumber(text, place, 1, 2, month) || !readSign(text, place, '/') ||
      !readNumber(text, place, 1, 2, dayOfMonth) || !readSign(text, place, '/') ||
      !readNumber(text, place, 4, 4, year) || place != text.size())
    return std::nullopt;
  return day(year, month, dayOfMonth);
}

std::optional<DateTime> readStoredDate(std::string_view text) {
  std::size_t place = 0;
  std::array<int, 6> parts{};
  if (!readNumber(text, place, 4, 4, parts[0]) || !readSign(text, place, '-') ||
      !readNumber(text, place, 2, 2, parts[1]) || !readSign(text, place, '-') ||
      !readNumber(text, place, 2, 2, parts[2]))
    return std::nullopt;
  const auto date = day(parts[0], parts[1], parts[2]);
  if (!date || place == text.size()) return date ? std::optional<DateTime>(*date) : std::nullopt;
  if (!readSign(text, place, ' ') || !readNumber(text, place, 2, 2, parts[3]) || !readSign(text, place, ':') ||
      !readNumber(text, place, 2, 2, parts[4]) || !readSign(text, place, ':') ||
      !readNumber(text, place, 2, 2, parts[5]) || place != text.size())
    return std::nullopt;
  return DateTime(*date) + std::chrono::hours(parts[3]) + std::chrono::minutes(parts[4]) +
         std::chrono::seconds(parts[5]);
}

std::string writeStoredDate(DateTime moment) {
  const Date date = std::chrono::floor<std::chrono::days>(moment);
  return formatMoment(moment, moment == DateTime(date) ? "yyyy-mm-dd" : "yyyy-mm-dd hh:nn:ss");
}

bool isPlainNumber(std::string_view text) {
  std::size_t place = 0;
  std::size_t end = text.size();
  while (place < end && text[place] == ' ') ++place;
  while (end > place && text[end - 1] == ' ') --end;
  if (place < end && (text[place] == '-' || text[place] == '+')) ++place;
  bool digits = false;
  bool point = false;
  for (; place < end; ++place) {
    if (isDigit(text[place])) {
      digits = true;
    } else if (text[place] == '.' && !point) {
      point = true;
    } else {
      return false;
    }
  }
  return digits;
}

std::string quotedText(std::string_view text) { return "'" + replaceAll(std::string(text), "'", "''") + "'"; }

std::string quotedName(std::string_view name) {
  std::vector<Token> tokens;
  const bool plain = name.find_first_of("'\"[]# \t\r\n") == std::string_view::npos &&
                     name.find_first_not_of("0123456789") != std::string_view::npos;
  if (plain) {
    std::string text(name);
    bool whole = true;
    for (char letter : text)
      whole = whole && (static_cast<unsigned char>(letter) >= 0x80 || letter == '_' || letter == '$' ||
                        isDigit(letter) || (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z'));
    if (whole && !isDigit(text[0]) && text[0] != '_' && text[0] != '$' && static_cast<unsigned char>(text[0]) < 0x80) {
      readTokens(text, tokens);
      if (tokens.size() == 2 && tokens[0].kind == TokenKind::Name) return text;
    }
  }
  return "[" + std::string(name) + "]";
}

}  // namespace fenvale::sql

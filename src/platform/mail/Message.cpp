#include "platform/mail/Message.h"

#include <algorithm>
#include <array>
#include <chrono>

#include "platform/base/Date.h"
#include "platform/base/Text.h"

namespace fenvale {
namespace {

constexpr std::size_t lineWidth = 76;
/// Bytes of text that fit an encoded word of at most 75 characters, a multiple of three.
constexpr std::size_t wordBytes = 42;

std::string header(const std::string& name, const std::string& value) {
  return name + ": " + value + std::string(lineBreak);
}

std::string oneLine(std::string_view text) {
  std::string line(text);
  std::replace_if(
      line.begin(), line.end(), [](char letter) { return static_cast<unsigned char>(letter) < 32 || letter == 127; },
      ' ');
  return trim(line);
}

bool isPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char letter) { return letter >= ' ' && letter < 127; });
}

/// Every kind of line break becomes CR LF.
std::string withMailBreaks(std::string_view text) {
  std::string result;
  for (std::size_t place = 0; place < text.size(); ++place) {
    if (text[place] == '\r' || text[place] == '\n') {
      result += lineBreak;
      if (text.substr(place, 2) == lineBreak) ++place;
    } else {
      result += text[place];
    }
  }
  return result;
}

}  // namespace

std::string base64(std::string_view bytes) {
  constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t place = 0; place < bytes.size(); place += 3) {
    const std::size_t count = std::min<std::size_t>(3, bytes.size() - place);
    unsigned group = 0;
    for (std::size_t i = 0; i < 3; ++i)
      group = (group << 8) | (i < count ? static_cast<unsigned char>(bytes[place + i]) : 0u);
    for (std::size_t i = 0; i < 4; ++i) text += i <= count ? letters[(group >> (18 - 6 * i)) & 63u] : '=';
  }
  return text;
}

std::string encodedHeader(std::string_view text) {
  std::string line = oneLine(text);
  if (isPlain(line) && line.size() <= lineWidth - 10) return line;
  std::string result;
  std::string word;
  const auto flush = [&] {
    if (word.empty()) return;
    if (!result.empty()) result += std::string(lineBreak) + " ";
    result += "=?UTF-8?B?" + base64(word) + "?=";
    word.clear();
  };
  for (std::size_t place = 0; place < line.size();) {
    const std::size_t bytes = decodeUtf8(line, place).bytes;
    if (word.size() + bytes > wordBytes) flush();
    word += line.substr(place, bytes);
    place += bytes;
  }
  flush();
  return result;
}

std::string addressOnly(std::string_view text) {
  std::string address = oneLine(text);
  if (const std::size_t open = address.rfind('<'); open != std::string::npos) {
    address = address.substr(open + 1);
    address = address.substr(0, address.find('>'));
  }
  return without(address, "<> ");
}

MessageStamp stampOf(long long secondsUtc, std::string_view unique, std::string_view host) {
  constexpr std::array<const char*, 7> days{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array<const char*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const DateTime moment{std::chrono::seconds(secondsUtc)};
  const Date day = std::chrono::floor<std::chrono::days>(moment);
  const std::string name = days[std::chrono::weekday(day).c_encoding()];
  return {name + ", " + formatMoment(moment, "dd") + " " + months[monthOf(day) - 1] + " " +
              formatMoment(moment, "yyyy hh:nn:ss") + " +0000",
          std::to_string(secondsUtc) + "." + std::string(unique) + "@" + std::string(host)};
}

std::string composeMessage(const Mail& mail, const MessageStamp& stamp) {
  std::string message = header("Date", stamp.date) + header("From", "<" + addressOnly(mail.sender) + ">") +
                        header("To", "<" + addressOnly(mail.recipient) + ">") +
                        header("Subject", encodedHeader(mail.subject)) + header("Message-ID", "<" + stamp.id + ">") +
                        header("MIME-Version", "1.0") + header("Content-Type", "text/plain; charset=UTF-8") +
                        header("Content-Transfer-Encoding", "base64") + std::string(lineBreak);
  const std::string body = base64(withMailBreaks(mail.body));
  for (std::size_t place = 0; place < body.size(); place += lineWidth)
    message += body.substr(place, lineWidth) + std::string(lineBreak);
  return message;
}

}  // namespace fenvale

#include "platform/ui/Boxes.h"

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"

namespace fenvale {
namespace {

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// Digits up to a maximum; blanks around pasted ones are dropped.
std::optional<std::string> digitsUpTo(std::string_view typed, std::int32_t maximum) {
  const std::string clean = trim(typed);
  std::int64_t value = 0;
  for (char letter : clean) {
    if (!isDigit(letter)) return std::nullopt;
    value = value * 10 + (letter - '0');
    if (value > maximum) return std::nullopt;
  }
  return clean;
}

bool fits(char place, char letter) {
  if (place == 'A') return isDigit(letter) || (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
  return isDigit(letter);
}

}  // namespace

void TextControl::setText(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  changed(Aspect::content);
  raise(onChange);
}

void TextControl::setLocked(bool locked) {
  locked_ = locked;
  changed(Aspect::locked);
}

bool TextControl::userType(std::string_view typed) {
  if (!acceptsInput() || locked_) return false;
  const auto content = accept(typed);
  if (!content) {
    changed(Aspect::content);
    return false;
  }
  setText(maxLength_ > 0 ? left(*content, maxLength_) : *content);
  return true;
}

std::optional<std::string> TextControl::accept(std::string_view typed) const { return std::string(typed); }

TextBox::TextBox(Screen& owner, std::string name, std::size_t maxLength, Style style)
    : TextControl(owner, std::move(name)), style_(style) {
  setMaxLength(maxLength);
}

CodeBox::CodeBox(Screen& owner, std::string name, std::int32_t maximum)
    : TextControl(owner, std::move(name)), maximum_(maximum) {
  if (maximum == 255) setToolTip("0 a 255");
}

std::optional<std::string> CodeBox::accept(std::string_view typed) const { return digitsUpTo(typed, maximum_); }

NumberBox::NumberBox(Screen& owner, std::string name, std::int32_t maximum)
    : TextControl(owner, std::move(name)), maximum_(maximum) {}

std::int32_t NumberBox::value() const { return readInt32(text()); }
std::optional<std::string> NumberBox::accept(std::string_view typed) const { return digitsUpTo(typed, maximum_); }

MaskBox::MaskBox(Screen& owner, std::string name, std::string mask)
    : TextControl(owner, std::move(name)), mask_(std::move(mask)) {}

std::optional<std::string> MaskBox::accept(std::string_view typed) const { return applyMask(mask_, typed); }

std::string applyMask(std::string_view mask, std::string_view typed) {
  std::string result;
  std::string punctuation;
  std::size_t next = 0;
  for (char place : mask) {
    if (place != '0' && place != '9' && place != 'A') {
      punctuation += place;
      continue;
    }
    while (next < typed.size() && !fits(place, typed[next])) ++next;
    if (next == typed.size()) break;
    const char letter = typed[next++];
    result += punctuation;
    punctuation.clear();
    result += letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
  }
  return result;
}

LookupBox::LookupBox(Screen& owner, std::string name) : TextControl(owner, std::move(name)) {
  setToolTip("Espaço localiza · Insert cadastra · Delete limpa");
}

void MoneyBox::setValue(Currency value) {
  if (value == value_) return;
  value_ = value;
  changed(Aspect::content);
  raise(onChange);
}

std::string MoneyBox::text() const { return formatNumber(value_); }

void MoneyBox::setLocked(bool locked) {
  locked_ = locked;
  changed(Aspect::locked);
}

bool MoneyBox::userType(std::string_view typed) {
  if (!acceptsInput() || locked_) return false;
  try {
    setValue(Currency::fromBrazilian(typed));
    return true;
  } catch (const Error&) {  // what is no amount is refused at the box, which shows its value again
    changed(Aspect::content);
    return false;
  }
}

void DatePicker::setValue(Date value) {
  if (value == value_) return;
  value_ = value;
  changed(Aspect::content);
  raise(onChange);
}

bool DatePicker::userType(std::string_view typed) {
  if (!acceptsInput()) return false;
  const auto date = readDate(typed);
  if (!date) {
    changed(Aspect::content);
    return false;
  }
  setValue(*date);
  return true;
}

}  // namespace fenvale

#pragma once
// The boxes a clerk types into. Each takes only what its field can hold.

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "platform/base/Currency.h"
#include "platform/ui/Control.h"

namespace fenvale {

/// What all boxes with a text share. The rules read and write text(); a person's typing passes through accept().
class TextControl : public Control {
 public:
  using Control::Control;

  const std::string& text() const { return text_; }
  /// As given, without a check: the rules may show what no person could type.
  void setText(std::string text);
  bool empty() const { return text_.empty(); }
  /// At most this many characters by typing; 0 is no limit.
  std::size_t maxLength() const { return maxLength_; }
  void setMaxLength(std::size_t characters) { maxLength_ = characters; }
  /// Shown and copied, but not typed into.
  bool locked() const { return locked_; }
  void setLocked(bool locked);

  std::function<void()> onChange;

  /// The whole new content as typed or pasted. False when the box refused it and keeps what it had.
  bool userType(std::string_view typed);
  void reset(Date) override { setText({}); }

 protected:
  /// What the box makes of typed content, or nothing when it refuses it.
  virtual std::optional<std::string> accept(std::string_view typed) const;

 private:
  std::string text_;
  std::size_t maxLength_ = 0;
  bool locked_ = false;
};

class TextBox final : public TextControl {
 public:
  enum class Style { plain, password, multiLine };
  /// `maxLength` in characters, 0 without limit.
  TextBox(Screen& owner, std::string name, std::size_t maxLength = 0, Style style = Style::plain);
  ControlKind kind() const override { return ControlKind::textBox; }
  Style style() const { return style_; }

 private:
  Style style_;
};

/// Digits only: a code from 0 to `maximum`.
class CodeBox final : public TextControl {
 public:
  CodeBox(Screen& owner, std::string name, std::int32_t maximum = std::numeric_limits<std::int32_t>::max());
  ControlKind kind() const override { return ControlKind::codeBox; }
  std::int32_t maximum() const { return maximum_; }

 protected:
  std::optional<std::string> accept(std::string_view typed) const override;

 private:
  std::int32_t maximum_;
};

/// A whole number from `minimum` to `maximum`. An empty box counts as 0.
class NumberBox final : public TextControl {
 public:
  NumberBox(Screen& owner, std::string name, std::int32_t maximum = std::numeric_limits<std::int32_t>::max());
  ControlKind kind() const override { return ControlKind::numberBox; }
  std::int32_t value() const;
  void setValue(std::int32_t value) { setText(std::to_string(value)); }
  std::int32_t maximum() const { return maximum_; }

 protected:
  std::optional<std::string> accept(std::string_view typed) const override;

 private:
  std::int32_t maximum_;
};

/// Text under a mask: '0' a digit, '9' a digit or nothing, 'A' a capital or digit, all else stands for itself.
/// An empty box is an empty text, never the mask's punctuation.
class MaskBox final : public TextControl {
 public:
  MaskBox(Screen& owner, std::string name, std::string mask);
  ControlKind kind() const override { return ControlKind::maskBox; }
  const std::string& mask() const { return mask_; }

 protected:
  std::optional<std::string> accept(std::string_view typed) const override;

 private:
  std::string mask_;
};

namespace masks {
inline constexpr const char* cpf = "000.000.000-00";
inline constexpr const char* cnpj = "AA.AAA.AAA/AAAA-00";
inline constexpr const char* cep = "00000-000";
inline constexpr const char* telefone = "(00) 0000-00009";
/// Each state has a form of its own, and some firms have the word ISENTO.
inline constexpr const char* ie = "AAAAAAAAAAAAAA";
}  // namespace masks

/// `typed` put under `mask`: the characters that fit, with the mask's own between them; what does not fit is dropped.
std::string applyMask(std::string_view mask, std::string_view typed);

/// A text that is picked, not typed: filled by a search through the keys Space, Insert and Delete and the buttons that
/// stand in the box's end.
class LookupBox final : public TextControl {
 public:
  LookupBox(Screen& owner, std::string name);
  ControlKind kind() const override { return ControlKind::lookupBox; }

 protected:
  std::optional<std::string> accept(std::string_view) const override { return std::nullopt; }
};

/// An amount, shown as 1.234,56.
class MoneyBox final : public Control {
 public:
  using Control::Control;
  ControlKind kind() const override { return ControlKind::moneyBox; }
  void reset(Date) override { setValue({}); }

  Currency value() const { return value_; }
  void setValue(Currency value);
  /// The value by "#,##0.00".
  std::string text() const;
  bool locked() const { return locked_; }
  void setLocked(bool locked);

  std::function<void()> onChange;

  /// Any usual form of an amount. False when it is none.
  bool userType(std::string_view typed);

 private:
  Currency value_;
  bool locked_ = false;
};

/// A day, shown as dd/mm/yyyy.
class DatePicker final : public Control {
 public:
  using Control::Control;
  ControlKind kind() const override { return ControlKind::datePicker; }
  void reset(Date today) override { setValue(today); }

  Date value() const { return value_; }
  void setValue(Date value);

  std::function<void()> onChange;

  bool userType(std::string_view typed);

 private:
  Date value_{};
};

}  // namespace fenvale

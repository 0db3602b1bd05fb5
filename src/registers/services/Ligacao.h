#pragma once
// What ties a column of a table, or of a list, to a place on a screen: it writes the place's value as an SQL literal
// and reads a list cell back into it.

#include <cstdint>
#include <functional>
#include <string>
#include <variant>

#include "platform/base/Date.h"

namespace fenvale {

class CheckBox;
class Control;
class DatePicker;
class MoneyBox;
class TextControl;

class Ligacao {
 public:
  /// Tied to nothing: the column is only shown.
  Ligacao() = default;
  // Implicit, so that a description names the control and nothing else. What is tied must outlive this.
  Ligacao(TextControl& caixa) : lugar_(&caixa) {}     // NOLINT(google-explicit-constructor)
  Ligacao(MoneyBox& caixa) : lugar_(&caixa) {}        // NOLINT(google-explicit-constructor)
  Ligacao(DatePicker& caixa) : lugar_(&caixa) {}      // NOLINT(google-explicit-constructor)
  Ligacao(CheckBox& caixa) : lugar_(&caixa) {}        // NOLINT(google-explicit-constructor)
  Ligacao(std::int32_t& lChave) : lugar_(&lChave) {}  // NOLINT(google-explicit-constructor)
  /// A value that a rule works out, written as a number: the key of a city.
  Ligacao(std::function<std::int32_t()> lValor) : lugar_(std::move(lValor)) {}  // NOLINT(google-explicit-constructor)

  /// The literal as it stands in a statement, quotes included. Codes and numbers are the text of their box, an empty
  /// one being 0; a tick is -1 or 0.
  std::string sLiteral() const;
  /// From a cell: money and dates as they are shown, a tick from "Sim". A picker always holds a day, so a cell without
  /// one gives it `dtHoje`. Error 13 when the text is no such value.
  void vCarregar(const std::string& sTexto, Date dtHoje) const;
  /// A text box with nothing in it. Blanks are something.
  bool bVazio() const;
  /// Nothing when no control is tied.
  Control* controle() const;

 private:
  std::variant<std::monostate, TextControl*, MoneyBox*, DatePicker*, CheckBox*, std::int32_t*,
               std::function<std::int32_t()>>
      lugar_;
};

}  // namespace fenvale

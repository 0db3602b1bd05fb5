#pragma once
// Late interest on an overdue title, by the two rates of the firm's settings: per day, and per period of 30 days.

#include "platform/base/Currency.h"
#include "platform/base/Date.h"

namespace fenvale {

class Contexto;

class Juros {
 public:
  explicit Juros(Contexto& contexto);
  static const char* sGetName() { return "Juros"; }

  /// The daily part for all the days late, and the monthly part on value and daily part for each period of 30 days,
  /// rounded to the nearest. Nothing compounds. A title that is not overdue keeps `fJuros`, and the user is told.
  /// Error 6 beyond 32,767 periods.
  Currency fCalcularJuros(Currency fValor, Date dtVencimento, Currency fJuros);

 private:
  double fCalcularJurosDia(Currency fValor, Date dtVencimento);
  double fCalcularJurosMes(Currency fJurosDia, Date dtVencimento, Currency fValor);
  // Read at every call; 0 while the firm's settings are empty.
  double fGetPercentualJurosDia();
  double fGetPercentualJurosMes();

  double dias(Date dtVencimento) const;
  double fGetPercentual(const char* sCampo);
  Contexto& contexto_;
};

}  // namespace fenvale

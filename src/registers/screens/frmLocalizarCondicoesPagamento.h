#pragma once
// The full search of the payment conditions. Its check box always filters: off, it lists those without entry.

#include "registers/screens/TelaBuscaCompleta.h"

namespace fenvale {

class frmLocalizarCondicoesPagamento final : public TelaBuscaCompleta {
 public:
  explicit frmLocalizarCondicoesPagamento(Contexto& contexto);

  CodeBox txtCodigoInf{*this, "txtCodigoInf", 255};
  NumberBox txtNumeroParcelas{*this, "txtNumeroParcelas", 32767};
  NumberBox txtIntervalo{*this, "txtIntervalo", 32767};
  CheckBox chkEntrada{*this, "chkEntrada", "Com &entrada"};
};

}  // namespace fenvale

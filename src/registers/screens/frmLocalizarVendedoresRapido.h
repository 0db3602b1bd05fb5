#pragma once
// The quick search of salespeople: as its description tells, with a second entry for a caller that has no callback.

#include "registers/screens/TelaBuscaRapida.h"
#include "registers/services/Vendedor.h"

namespace fenvale {

class frmLocalizarVendedoresRapido final : public TelaBuscaRapida, public TelaBuscaVendedores {
 public:
  explicit frmLocalizarVendedoresRapido(Contexto& contexto);

  void vLocalizarOBJ(Vendedor& vendedor, TextControl& caixa) override;
};

}  // namespace fenvale

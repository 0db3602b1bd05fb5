#pragma once
// The register of payment conditions: how many instalments, how many days between them, and whether the first is paid
// at once.

#include "registers/screens/TelaCadastro.h"

namespace fenvale {

class frmCadastroCondicoesPagamento final : public TelaCadastro {
 public:
  explicit frmCadastroCondicoesPagamento(Contexto& contexto);

  CodeBox txtCodigoInf{*this, "txtCodigoInf", 255};
  NumberBox txtNumeroParcelas{*this, "txtNumeroParcelas", 32767};
  NumberBox txtIntervalo{*this, "txtIntervalo", 32767};
  CheckBox chkEntrada{*this, "chkEntrada", "Com &entrada"};

 protected:
  /// No instalment at all is silently one.
  bool bVerificarDados() override;
  std::string sRecusa(const std::string& sFrase, const Error& falha) const override;
};

}  // namespace fenvale

#pragma once
// The search for users. The first one, the administrator, is never listed.

#include "store/screens/TelaBuscaLista.h"

namespace fenvale {

class frmLocalizarUsuarios final : public TelaBuscaLista {
 public:
  explicit frmLocalizarUsuarios(Contexto& contexto);

  /// Lists and shows itself modally. The key of the user that was picked, -1 when none was.
  std::int32_t lLocalizar();

 protected:
  std::string sConsulta(const std::string& sPrefixo) const override;
  std::string sCampoNome() const override { return "sNomeUsuario"; }
  Connection& conexao() const override;
  void vEscolher(std::int32_t lCodigo) override;

 private:
  std::int32_t lEscolhido_ = -1;
};

}  // namespace fenvale

#pragma once
// The list of banks, which are seed data: looked at, picked from, printed.

#include "registers/screens/TelaEscolha.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

class frmLocalizarBancos final : public TelaEscolha, public BuscaBanco {
 public:
  explicit frmLocalizarBancos(Contexto& contexto);

  TextBox txtNome{*this, "txtNome", 50};
  Button cmdEmitir{*this, "cmdEmitir", "Imprimir", "imprimir", Key::f5};

  void vLocalizarBanco(Screen& chamador, Banco& banco, TextControl& txtNomeDestino) override;
  std::string sConsulta() const override;

 protected:
  /// Opens with the whole list, whoever opens it.
  void onLoad() override;
  void vEscolher(std::int32_t lChave) override;

 private:
  Banco* banco_ = nullptr;
  TextControl* txtNomeDestino_ = nullptr;
};

}  // namespace fenvale

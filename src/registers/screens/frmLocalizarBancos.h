#pragma once
// The list of banks, which are seed data: looked at, picked from, printed.

#include "registers/screens/TelaEscolha.h"

namespace fenvale {

class Banco;

class frmLocalizarBancos final : public TelaEscolha {
 public:
  explicit frmLocalizarBancos(Contexto& contexto);

  TextBox txtNome{*this, "txtNome", 50};
  Button cmdEmitir{*this, "cmdEmitir", "Imprimir", "imprimir", Key::f5};

  /// Shows itself; a picked bank goes into `banco` and its name into the caller's box.
  void vLocalizarBanco(Screen& chamador, Banco& banco, TextControl& txtNomeDestino);
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

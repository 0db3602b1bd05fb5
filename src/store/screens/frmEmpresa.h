#pragma once
// The data of the company that is open: one row, replaced whole at each save.

#include "store/screens/TelaFirma.h"

namespace fenvale {

class frmEmpresa final : public TelaFirma {
 public:
  explicit frmEmpresa(Contexto& contexto);

  MaskBox txtCPF{*this, "txtCPF", masks::cpf};
  TextBox txtCaminhoFigura{*this, "txtCaminhoFigura"};
  TextBox txtFiguraPromissoria{*this, "txtFiguraPromissoria"};
  Button cmdLocalizarLogotipo{*this, "cmdLocalizarLogotipo", "", "lupa"};
  Button cmdLocalizarImagemPromissoria{*this, "cmdLocalizarImagemPromissoria", "", "lupa"};

 protected:
  void onLoad() override;
  void cmdSalvar_Click() override;

 private:
  void vLocalizarFigura(TextBox& destino);
  bool bVerificarDados();
};

}  // namespace fenvale

#pragma once
// Opens one of the known companies, and lets a row follow a file that was moved.

#include "platform/ui/Boxes.h"
#include "store/screens/TelaEmpresas.h"

namespace fenvale {

class frmEmpresaAbrir final : public TelaEmpresas {
 public:
  explicit frmEmpresaAbrir(Contexto& contexto);

  Label lblMensagem{*this, "lblMensagem", "Selecione a empresa que deseja abrir", Label::Style::help};
  /// The name of the company that is ticked.
  TextBox txtCampo{*this, "txtCampo"};
  Button cmdSalvar{*this, "cmdSalvar", "Abrir", "empresa", Key::f3};

 protected:
  void vClicarLinha(const std::shared_ptr<ListItem>& item) override;

 private:
  void lstLista_ItemCheck(const std::shared_ptr<ListItem>& item);
  void cmdSalvar_Click();
  void mnuEditarEmpresa_Click();
};

}  // namespace fenvale

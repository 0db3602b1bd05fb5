#pragma once
// Moves all customers of one salesperson to another. Invoices keep the salesperson that they have.

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "registers/services/CampoBusca.h"
#include "registers/services/Vendedor.h"
#include "shell/services/Tela.h"

namespace fenvale {

class frmTransferenciaVendedores final : public Tela {
 public:
  explicit frmTransferenciaVendedores(Contexto& contexto);

  LookupBox txtVendedorOrigem{*this, "txtVendedorOrigem"};
  LookupBox txtVendedorDestino{*this, "txtVendedorDestino"};
  Button cmdSalvar{*this, "cmdSalvar", "Transferir", "vendedores", Key::f3};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

  Vendedor origem;
  Vendedor destino;

 protected:
  bool onKeyDown(Key tecla) override;

 private:
  void cmdSalvar_Click();
  bool bTestarPreenchimento();
  void vTransferir();

  CampoBusca campoOrigem_;
  CampoBusca campoDestino_;
};

}  // namespace fenvale

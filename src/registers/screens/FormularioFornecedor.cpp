#include "registers/screens/FormularioFornecedor.h"

namespace fenvale {

FormularioFornecedor::FormularioFornecedor(Screen& tela, Contexto& contexto)
    : FormularioPessoa(tela, contexto, 255), banco(tela, contexto, txtAgencia) {}

std::vector<LayoutNode> FormularioFornecedor::linhas() {
  return {
      linhaNome(),
      linhaEndereco(),
      linhaContato(),
      linhaDocumentos({}, {campo("e-&Mail", txtEMail, 7)}),
      linha({campo("&Home Page", txtHomePage, 8), campo("Ob&servação", txtObs, cresce)}),
      linha({banco.campoPrincipal("&Banco", cresce), campo("A&gência", txtAgencia, 3), campo("Cont&a", txtConta, 4)})};
}

}  // namespace fenvale

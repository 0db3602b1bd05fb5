#pragma once
// The boxes of a customer, as the register fills them and the full search asks for them.

#include "registers/screens/FormularioPessoa.h"

namespace fenvale {

class FormularioCliente : public FormularioPessoa, public ReceptorVendedor {
 public:
  TextBox txtBairro{tela_, "txtBairro", 50};
  LookupBox txtVendedor{tela_, "txtVendedor"};
  TextBox txtRG{tela_, "txtRG", 255};
  TextBox txtPai{tela_, "txtPai", 50};
  TextBox txtMae{tela_, "txtMae", 50};
  TextBox txtEnderecoEntrega{tela_, "txtEnderecoEntrega", 100};
  TextBox txtBairroEntrega{tela_, "txtBairroEntrega", 50};
  MaskBox txtCEPEntrega{tela_, "txtCEPEntrega", masks::cep};
  TextBox txtEnderecoCobranca{tela_, "txtEnderecoCobranca", 100};
  TextBox txtBairroCobranca{tela_, "txtBairroCobranca", 50};
  MaskBox txtCEPCobranca{tela_, "txtCEPCobranca", masks::cep};

  CampoBusca vendedor;
  CampoCidade cidadeEntrega;
  CampoCidade cidadeCobranca;

  void vSetVendedor(std::int32_t lChave, const std::string& sTexto) override { vendedor.vSet(lChave, sTexto); }

 protected:
  FormularioCliente(Screen& tela, Contexto& contexto);

  /// The form in its four tabs. What only one of the two screens has goes behind name and CNPJ, and in rows of its own.
  std::vector<LayoutNode> abas(std::vector<LayoutNode> aposNome, std::vector<LayoutNode> aposCNPJ,
                               std::vector<LayoutNode> linhasFinais);
};

}  // namespace fenvale

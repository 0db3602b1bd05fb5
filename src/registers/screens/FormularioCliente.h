#pragma once
// The boxes of a customer, as the register fills them and the full search asks for them: the same names, limits, masks
// and look-ups, told once.

#include <vector>

#include "platform/ui/Boxes.h"
#include "platform/ui/Layout.h"
#include "registers/services/CampoBusca.h"
#include "registers/services/CampoCidade.h"
#include "shell/services/TelaComLista.h"

namespace fenvale {

class FormularioCliente : public ReceptorCategoria, public ReceptorVendedor {
  Screen& tela_;  // made before the boxes, which stand on it

 public:
  CodeBox txtCodigoInf{tela_, "txtCodigoInf"};
  LookupBox txtCategoria{tela_, "txtCategoria"};
  TextBox txtNome{tela_, "txtNome", 50};
  TextBox txtEndereco{tela_, "txtEndereco", 100};
  TextBox txtBairro{tela_, "txtBairro", 50};
  MaskBox txtCEP{tela_, "txtCEP", masks::cep};
  MaskBox txtTelefone{tela_, "txtTelefone", masks::telefone};
  MaskBox txtFax{tela_, "txtFax", masks::telefone};
  TextBox txtContato{tela_, "txtContato", 50};
  LookupBox txtVendedor{tela_, "txtVendedor"};
  TextBox txtRG{tela_, "txtRG", 20};
  MaskBox txtCPF{tela_, "txtCPF", masks::cpf};
  MaskBox txtIE{tela_, "txtIE", masks::ie};
  MaskBox txtCNPJ{tela_, "txtCNPJ", masks::cnpj};
  TextBox txtEMail{tela_, "txtEMail", 50};
  TextBox txtHomePage{tela_, "txtHomePage", 50};
  TextBox txtObs{tela_, "txtObs"};
  TextBox txtPai{tela_, "txtPai", 50};
  TextBox txtMae{tela_, "txtMae", 50};
  TextBox txtEnderecoEntrega{tela_, "txtEnderecoEntrega", 100};
  TextBox txtBairroEntrega{tela_, "txtBairroEntrega", 50};
  MaskBox txtCEPEntrega{tela_, "txtCEPEntrega", masks::cep};
  TextBox txtEnderecoCobranca{tela_, "txtEnderecoCobranca", 100};
  TextBox txtBairroCobranca{tela_, "txtBairroCobranca", 50};
  MaskBox txtCEPCobranca{tela_, "txtCEPCobranca", masks::cep};

  CampoBusca categoria;
  CampoBusca vendedor;
  CampoCidade cidade;
  CampoCidade cidadeEntrega;
  CampoCidade cidadeCobranca;

  void vSetCategoria(std::int32_t lChave, const std::string& sTexto) override { categoria.vSet(lChave, sTexto); }
  void vSetVendedor(std::int32_t lChave, const std::string& sTexto) override { vendedor.vSet(lChave, sTexto); }

 protected:
  FormularioCliente(Screen& tela, Contexto& contexto);

  /// The form in its four tabs. What only one of the two screens has goes behind name and CNPJ, and in rows of its own.
  std::vector<LayoutNode> abas(std::vector<LayoutNode> aposNome, std::vector<LayoutNode> aposCNPJ,
                               std::vector<LayoutNode> linhasFinais);
};

}  // namespace fenvale

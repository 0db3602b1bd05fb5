#pragma once
// The boxes that customers and suppliers share, as the registers fill them and the full searches ask for them: the same
// names, limits, masks and look-ups, told once. A form of one kind of person adds its own and puts them into the rows.

#include <string>
#include <vector>

#include "platform/ui/Boxes.h"
#include "platform/ui/Layout.h"
#include "registers/services/CampoBusca.h"
#include "registers/services/CampoCidade.h"
#include "shell/services/TelaComLista.h"

namespace fenvale {

class FormularioPessoa : public ReceptorCategoria {
 protected:
  Screen& tela_;  // made before the boxes, which stand on it

 public:
  CodeBox txtCodigoInf{tela_, "txtCodigoInf"};
  LookupBox txtCategoria{tela_, "txtCategoria"};
  TextBox txtNome{tela_, "txtNome", 50};
  TextBox txtEndereco;
  MaskBox txtCEP{tela_, "txtCEP", masks::cep};
  MaskBox txtTelefone{tela_, "txtTelefone", masks::telefone};
  MaskBox txtFax{tela_, "txtFax", masks::telefone};
  TextBox txtContato{tela_, "txtContato", 50};
  MaskBox txtCPF{tela_, "txtCPF", masks::cpf};
  MaskBox txtIE{tela_, "txtIE", masks::ie};
  MaskBox txtCNPJ{tela_, "txtCNPJ", masks::cnpj};
  TextBox txtEMail{tela_, "txtEMail", 50};
  TextBox txtHomePage{tela_, "txtHomePage", 50};
  TextBox txtObs{tela_, "txtObs"};

  CampoBusca categoria;
  CampoCidade cidade;

  void vSetCategoria(std::int32_t lChave, const std::string& sTexto) override { categoria.vSet(lChave, sTexto); }

 protected:
  /// The address takes as many characters as the table's column.
  FormularioPessoa(Screen& tela, Contexto& contexto, std::size_t comprimentoEndereco);

  static NomesCampoCidade nomesCidade(const std::string& sSufixo, const std::string& sBotao);

  // The common rows, with what only one kind of person or one screen has among them.
  LayoutNode linhaNome(std::vector<LayoutNode> depois = {});
  LayoutNode linhaEndereco(std::vector<LayoutNode> aposEndereco = {});
  LayoutNode linhaContato(std::vector<LayoutNode> depois = {});
  LayoutNode linhaDocumentos(std::vector<LayoutNode> antes = {}, std::vector<LayoutNode> depois = {});
};

}  // namespace fenvale

#pragma once
// The register of customers: fiscal data, parents, three addresses, and the way to the customer's titles.

#include "registers/screens/TelaCadastro.h"
#include "registers/services/CampoBusca.h"
#include "registers/services/CampoCidade.h"

namespace fenvale {

class frmCadastroClientes final : public TelaCadastro, public ReceptorCategoria, public ReceptorVendedor {
 public:
  explicit frmCadastroClientes(Contexto& contexto);

  CodeBox txtCodigoInf{*this, "txtCodigoInf"};
  LookupBox txtCategoria{*this, "txtCategoria"};
  Button cmdNovaCategoria{*this, "cmdNovaCategoria", "", "mais"};
  TextBox txtNome{*this, "txtNome", 50};
  MoneyBox txtLimiteCredito{*this, "txtLimiteCredito"};
  TextBox txtEndereco{*this, "txtEndereco", 100};
  TextBox txtBairro{*this, "txtBairro", 50};
  MaskBox txtCEP{*this, "txtCEP", masks::cep};
  MaskBox txtTelefone{*this, "txtTelefone", masks::telefone};
  MaskBox txtFax{*this, "txtFax", masks::telefone};
  TextBox txtContato{*this, "txtContato", 50};
  LookupBox txtVendedor{*this, "txtVendedor"};
  Button cmdNovoVendedor{*this, "cmdNovoVendedor", "", "mais"};
  TextBox txtRG{*this, "txtRG", 20};
  MaskBox txtCPF{*this, "txtCPF", masks::cpf};
  MaskBox txtIE{*this, "txtIE", masks::ie};
  MaskBox txtCNPJ{*this, "txtCNPJ", masks::cnpj};
  DatePicker dtNascimento{*this, "dtNascimento"};
  TextBox txtEMail{*this, "txtEMail", 50};
  TextBox txtHomePage{*this, "txtHomePage", 50};
  TextBox txtObs{*this, "txtObs"};
  TextBox txtPai{*this, "txtPai", 50};
  TextBox txtMae{*this, "txtMae", 50};
  TextBox txtEnderecoEntrega{*this, "txtEnderecoEntrega", 100};
  TextBox txtBairroEntrega{*this, "txtBairroEntrega", 50};
  MaskBox txtCEPEntrega{*this, "txtCEPEntrega", masks::cep};
  TextBox txtEnderecoCobranca{*this, "txtEnderecoCobranca", 100};
  TextBox txtBairroCobranca{*this, "txtBairroCobranca", 50};
  MaskBox txtCEPCobranca{*this, "txtCEPCobranca", masks::cep};

  CampoBusca categoria;
  CampoBusca vendedor;
  CampoCidade cidade;
  CampoCidade cidadeEntrega;
  CampoCidade cidadeCobranca;

  void vSetCategoria(std::int32_t lChave, const std::string& sTexto) override { categoria.vSet(lChave, sTexto); }
  void vSetVendedor(std::int32_t lChave, const std::string& sTexto) override { vendedor.vSet(lChave, sTexto); }

 protected:
  bool bVerificarDados() override;
  void vAposCarregar(const ListItem& item) override;

 private:
  void vMontarFormulario();
  /// False, told to the user, when another customer has the box's text.
  bool bVerificarRepetido(TextControl& caixa, const char* sCampo, const char* sMensagem);
};

}  // namespace fenvale

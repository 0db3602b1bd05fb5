#pragma once
// The firm's own data and business options, and the technical settings of the installation.

#include <string>
#include <vector>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "registers/services/CampoCidade.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"

namespace fenvale {

class Recordset;

class frmSistema final : public Tela {
 public:
  explicit frmSistema(Contexto& contexto);

  TextBox txtNome{*this, "txtNome", 150};
  TextBox txtEndereco{*this, "txtEndereco", 150};
  TextBox txtBairro{*this, "txtBairro", 150};
  MaskBox txtCEP{*this, "txtCEP", masks::cep};
  CampoCidade campoCidade;
  MaskBox txtCNPJ{*this, "txtCNPJ", masks::cnpj};
  MaskBox txtTelefone{*this, "txtTelefone", masks::telefone};
  MaskBox txtFax{*this, "txtFax", masks::telefone};
  TextBox txtEMail{*this, "txtEMail", 255};
  MoneyBox txtPercentualJurosDia{*this, "txtPercentualJurosDia"};
  MoneyBox txtPercentualJurosMes{*this, "txtPercentualJurosMes"};
  ComboBox cmbOpcaoReparcelamento{*this, "cmbOpcaoReparcelamento"};
  CheckBox chkMostrarContasPagarDia{*this, "chkMostrarContasPagarDia", "Todas as contas pagar do dia"};
  CheckBox chkMostrarContasReceberDia{*this, "chkMostrarContasReceberDia", "Todas as contas receber do dia"};
  CheckBox chkMostrarContasVencidasPagar{*this, "chkMostrarContasVencidasPagar", "Todas as contas vencidas a pagar"};
  CheckBox chkMostrarContasVencidasReceber{*this, "chkMostrarContasVencidasReceber",
                                           "Todas as contas vencidas a receber"};
  CheckBox chkExibirLoginUsuario{*this, "chkExibirLoginUsuario",
                                 "Exibir a tela de login de usuários ao iniciar o programa"};
  CheckBox chkImprimirEntrada{*this, "chkImprimirEntrada",
                              "Nas impressões de carnês e promissórias, sempre imprimir o cupom de entrada"};
  ComboBox cmbImpressoras{*this, "cmbImpressoras"};
  NumberBox txtTamanhoPagina{*this, "txtTamanhoPagina"};
  TextBox txtSMTP{*this, "txtSMTP", 150};
  TextBox txtEmailRemetente{*this, "txtEmailRemetente", 150};
  CheckBox chkAutenticacao{*this, "chkAutenticacao", "Este e-mail precisa de autenticação"};
  TextBox txtLogin{*this, "txtLogin", 255};
  TextBox txtSenha{*this, "txtSenha", 255, TextBox::Style::password};
  Label lblAberturaSistema;
  Label lblTamanhoPagina;
  Label lblReparcelamento;
  Label lblReparcelamento1;
  Label lblReparcelamento2;
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  void onLoad() override;
  bool onKeyDown(Key tecla) override;

 private:
  /// A field of a statement and its literal.
  struct Par {
    std::string sCampo;
    std::string sValor;
  };

  void vMontarLayout();
  void vMontarCombos();
  void vLerSistema();
  void vLerConfiguracoes();
  void chkAutenticacao_Click();
  void cmdSalvar_Click();
  bool bVerificarDados();
  bool bVerificarFirma();
  bool bVerificarCorreio();
  bool bVerificarOpcoes();
  std::vector<Par> camposSistema() const;
  std::vector<Par> camposConfiguracoes() const;
  void vExecutar(const std::string& sSQL) const;

  Funcoes funcoes_;
};

}  // namespace fenvale

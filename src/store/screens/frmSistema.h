#pragma once
// The firm's own data and business options, and the technical settings of the installation.

#include <string>

#include "shell/services/Funcoes.h"
#include "store/screens/TelaFirma.h"

namespace fenvale {

class frmSistema final : public TelaFirma {
 public:
  explicit frmSistema(Contexto& contexto);

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

 protected:
  void onLoad() override;
  void cmdSalvar_Click() override;

 private:
  void vMontarLayout();
  void vMontarCombos();
  void vLerSistema();
  void vLerConfiguracoes();
  void chkAutenticacao_Click();
  bool bVerificarDados();
  bool bVerificarFirma();
  bool bVerificarCorreio();
  bool bVerificarOpcoes();
  ValoresSQL valoresSistema() const;
  ValoresSQL valoresConfiguracoes() const;
  void vExecutar(const std::string& sSQL) const;

  Funcoes funcoes_;
};

}  // namespace fenvale

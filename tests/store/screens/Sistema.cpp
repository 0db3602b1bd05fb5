#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "access/services/Permissoes.h"
#include "platform/os/Process.h"
#include "store/screens/frmSistema.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "support/Caixas.h"
#include "support/Gestos.h"
#include "support/TelasDoPrograma.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DadosDoSistema : public TelasDoPrograma {
 protected:
  void abrir(const std::function<void(frmSistema&)>& agir) {
    EXPECT_EQ(std::nullopt, TelasDoPrograma::abrir<frmSistema>("frmSistema", agir));
  }
  static void preencher(frmSistema& t) {
    t.txtNome.userType("Loja Modelo");
    t.txtCNPJ.userType("11444777000161");
    t.txtSMTP.userType("smtp.exemplo.com.br");
    t.txtEmailRemetente.userType("loja@exemplo.com.br");
    t.cmbOpcaoReparcelamento.userChoose(1);
    t.cmbImpressoras.userChoose(1);
    t.campoCidade.txtCidade.userType("São Paulo");
    t.campoCidade.txtUF.userType("SP");
    t.campoCidade.txtUF.setFocus();
  }
  void salvar() {
    abrir([this](frmSistema& t) {
      preencher(t);
      host.expectBox(informacao("Operação concluída."));
      t.userKey(Key::f3);
    });
  }
  void usuario(const std::string& direitos) {
    programa.executarPrograma("INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha) VALUES ('Bia', 'BIA', 'x')");
    programa.executarPrograma("UPDATE Usuarios SET " + direitos);
    programa.permissoes().vSetPermissoes(1);
  }
  auto sistema(const std::string& campos) { return programa.linhasPrograma("SELECT " + campos + " FROM Sistema"); }
  auto configuracoes(const std::string& campos) {
    return programa.linhasPrograma("SELECT " + campos + " FROM Configuracoes");
  }
};

TEST_F(DadosDoSistema, StartsEmptyWithItsProposals) {
  abrir([](frmSistema& t) {
    EXPECT_EQ("Sistema", t.caption());
    EXPECT_EQ("100", t.txtTamanhoPagina.text());
    EXPECT_EQ("", t.txtSMTP.text() + t.txtEmailRemetente.text());
    EXPECT_FALSE(t.txtLogin.enabled());
    EXPECT_FALSE(t.txtSenha.enabled());
    ASSERT_EQ(2u, t.cmbOpcaoReparcelamento.items().size());
    EXPECT_EQ("Apagar todos os títulos", t.cmbOpcaoReparcelamento.items()[0].text);
    EXPECT_EQ("Reajustar os títulos", t.cmbOpcaoReparcelamento.items()[1].text);
    EXPECT_EQ(1, t.cmbOpcaoReparcelamento.items()[1].data);
    ASSERT_EQ(2u, t.cmbImpressoras.items().size());
    EXPECT_EQ("Arquivo PDF", t.cmbImpressoras.items()[1].text);
  });
}

TEST_F(DadosDoSistema, ANewRowIsWrittenWhole) {
  abrir([this](frmSistema& t) {
    preencher(t);
    t.txtEndereco.userType("Rua d'Oeste, 5");
    t.txtBairro.userType("Centro");
    t.txtCEP.userType("01000000");
    t.txtTelefone.userType("11987654321");
    t.txtFax.userType("1133334444");
    t.txtEMail.userType("a@b.c");
    t.txtPercentualJurosDia.userType("0,33");
    t.txtPercentualJurosMes.userType("2,5");
    t.chkMostrarContasPagarDia.userClick();
    t.chkMostrarContasVencidasReceber.userClick();
    t.chkExibirLoginUsuario.userClick();
    t.chkImprimirEntrada.userClick();
    t.txtTamanhoPagina.userType("50");
    t.chkAutenticacao.userClick();
    EXPECT_TRUE(t.txtLogin.enabled());
    EXPECT_TRUE(t.txtSenha.enabled());
    t.txtLogin.userType("loja");
    t.txtSenha.userType("d'agua");
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
    EXPECT_EQ(Screen::State::unloaded, t.state());
  });
  EXPECT_THAT(
      sistema("sNome, sEndereco, sBairro, sCEP, lCidade, sCNPJ, sTelefone, sFax, sEMail, fPercentualJurosDia, "
              "fPercentualJurosMes, btOpcaoReparcelamento, bitMostrarContasPagarDia, bitMostrarContasReceberDia, "
              "bitMostrarContasVencidasPagar, bitMostrarContasVencidasReceber"),
      ElementsAre(ElementsAre("Loja Modelo", "Rua d'Oeste, 5", "Centro", "01000-000", "2", "11.444.777/0001-61",
                              "(11) 9876-54321", "(11) 3333-4444", "a@b.c", "0.33", "2.5", "1", "-1", "0", "0", "-1")));
  EXPECT_THAT(configuracoes("sSMTP, sEmailRementente, sUID, sPWD, bitAutenticacao, lTamanhoPagina, "
                            "bitExibirLoginUsuarios, sNomeImpressora, bitImprimirEntrada"),
              ElementsAre(ElementsAre("smtp.exemplo.com.br", "loja@exemplo.com.br", "loja", "d'agua", "-1", "50", "-1",
                                      "Arquivo PDF", "-1")));
  EXPECT_EQ(50, programa.configuracoes().lGetTamanhoPagina()) << "the new page size is in use at once";
}

TEST_F(DadosDoSistema, StoredDataAreReadBack) {
  programa.executarPrograma(
      "INSERT INTO Sistema (sNome, sEndereco, sBairro, sCEP, lCidade, sCNPJ, sTelefone, sFax, sEMail, "
      "fPercentualJurosDia, fPercentualJurosMes, btOpcaoReparcelamento, bitMostrarContasPagarDia, "
      "bitMostrarContasReceberDia, bitMostrarContasVencidasPagar, bitMostrarContasVencidasReceber) VALUES ('Loja', "
      "'Rua A', 'Centro', '1', 1, '2', '3', '4', 'a@b.c', 0.5, 1234.5, 1, 0, -1, -1, 0)");
  programa.executarPrograma(
      "INSERT INTO Configuracoes (sSMTP, sEmailRementente, sUID, sPWD, bitAutenticacao, lTamanhoPagina, "
      "bitExibirLoginUsuarios, sNomeImpressora, bitImprimirEntrada) VALUES ('s', 'e@f.g', 'u', 'p', -1, 30, 0, 'Laser "
      "do "
      "balcão', -1)");
  abrir([](frmSistema& t) {
    EXPECT_EQ("Loja", t.txtNome.text());
    EXPECT_EQ("Londrina", t.campoCidade.txtCidade.text());
    EXPECT_EQ(1, t.campoCidade.lGetCodigo());
    EXPECT_EQ("0,50", t.txtPercentualJurosDia.text());
    EXPECT_EQ("1.234,50", t.txtPercentualJurosMes.text());
    EXPECT_EQ(1, t.cmbOpcaoReparcelamento.listIndex());
    EXPECT_FALSE(t.chkMostrarContasPagarDia.checked());
    EXPECT_TRUE(t.chkMostrarContasReceberDia.checked());
    EXPECT_TRUE(t.chkMostrarContasVencidasPagar.checked());
    EXPECT_FALSE(t.chkMostrarContasVencidasReceber.checked());
    EXPECT_EQ("s", t.txtSMTP.text());
    EXPECT_EQ("e@f.g", t.txtEmailRemetente.text());
    EXPECT_TRUE(t.chkAutenticacao.checked());
    EXPECT_TRUE(t.txtLogin.enabled());
    EXPECT_EQ("u", t.txtLogin.text());
    EXPECT_EQ("p", t.txtSenha.text());
    EXPECT_EQ("30", t.txtTamanhoPagina.text());
    EXPECT_FALSE(t.chkExibirLoginUsuario.checked());
    EXPECT_TRUE(t.chkImprimirEntrada.checked());
    EXPECT_EQ("Laser do balcão", t.cmbImpressoras.text());
  });
}

TEST_F(DadosDoSistema, AnExistingRowIsUpdated) {
  salvar();
  abrir([this](frmSistema& t) {
    t.txtNome.userType("Outra");
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
  });
  EXPECT_THAT(sistema("lCodigo, sNome, lCidade"), ElementsAre(ElementsAre("1", "Outra", "2")));
  EXPECT_EQ(1u, configuracoes("sSMTP").size());
}

TEST_F(DadosDoSistema, WithoutAuthenticationUserAndPasswordAreStoredEmpty) {
  abrir([this](frmSistema& t) {
    preencher(t);
    t.chkAutenticacao.userClick();
    t.txtLogin.userType("loja");
    t.txtSenha.userType("x");
    t.chkAutenticacao.userClick();
    EXPECT_FALSE(t.txtLogin.enabled());
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
  });
  EXPECT_THAT(configuracoes("sUID, sPWD, bitAutenticacao"), ElementsAre(ElementsAre("", "", "0")));
}

TEST_F(DadosDoSistema, ChecksComeInTheirOrder) {
  abrir([this](frmSistema& t) {
    const auto recusa = [&](const char* texto, const Control& foco) { salvarRecusado(host, t, aviso(texto), foco); };
    t.txtEMail.userType("a@");
    t.txtTamanhoPagina.userType("32500");
    t.chkAutenticacao.userClick();
    recusa("O nome deve ser informado.", t.txtNome);
    t.txtNome.userType("Loja");
    recusa("O CNPJ deve ser informado.", t.txtCNPJ);
    t.txtCNPJ.userType("11444777000162");
    salvarRecusado(host, t, pergunta("CNPJ inválido. Deseja continuar?"), t.txtCNPJ, BoxAnswer::no);
    host.expectBox(pergunta("CNPJ inválido. Deseja continuar?"), BoxAnswer::yes);
    recusa("O e-Mail informado é inválido.", t.txtEMail);
    t.txtCNPJ.userType("11444777000161");
    t.txtEMail.userType("");
    recusa("Informe o SMTP.", t.txtSMTP);
    t.txtSMTP.userType("smtp");
    recusa("Informe o email do remetente.", t.txtEmailRemetente);
    t.txtEmailRemetente.userType("abc");
    recusa("O email do remetente é inválido.", t.txtEmailRemetente);
    t.txtEmailRemetente.userType("a@b.c");
    recusa("Informe o login.", t.txtLogin);
    t.txtLogin.userType("u");
    recusa("Informe a senha.", t.txtSenha);
    t.txtSenha.userType("p");
    recusa("Tamanho da página muito grande.\r\nInforme um valor inferior a 32500.", t.txtTamanhoPagina);
    t.txtTamanhoPagina.userType("32499");
    recusa("Informe a opção de reparcelamento.", t.cmbOpcaoReparcelamento);
    t.cmbOpcaoReparcelamento.userChoose(0);
    recusa("Selecione a impressora padrão do sistema.", t.cmbImpressoras);
    t.cmbImpressoras.userChoose(0);
    recusa("Informe a cidade.", t.campoCidade.txtCidade);
    t.campoCidade.txtCidade.userType("Londrina");
    t.campoCidade.txtUF.userType("PR");
    t.campoCidade.txtUF.setFocus();
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
  });
  EXPECT_THAT(configuracoes("lTamanhoPagina"), ElementsAre(ElementsAre("32499")));
}

TEST_F(DadosDoSistema, AnEmptyPageSizeCountsAsZero) {
  abrir([this](frmSistema& t) {
    preencher(t);
    t.txtTamanhoPagina.userType("");
    host.expectBox(informacao("Operação concluída."));
    t.userKey(Key::f3);
  });
  EXPECT_THAT(configuracoes("lTamanhoPagina"), ElementsAre(ElementsAre("0")));
}

TEST_F(DadosDoSistema, ANewRowAsksForTheRightToSave) {
  usuario("bPoderAtualizar = -1, bPoderSalvar = 0");
  abrir([this](frmSistema& t) {
    preencher(t);
    host.expectBox(semPermissao());
    t.userKey(Key::f3);
  });
  EXPECT_THAT(sistema("sNome"), IsEmpty());
}

TEST_F(DadosDoSistema, AnExistingRowAsksForTheRightToUpdate) {
  salvar();
  usuario("bPoderAtualizar = 0, bPoderSalvar = -1");
  abrir([this](frmSistema& t) {
    t.txtNome.userType("Outra");
    host.expectBox(semPermissao());
    t.userKey(Key::f3);
  });
  EXPECT_THAT(sistema("sNome"), ElementsAre(ElementsAre("Loja Modelo")));
}

TEST_F(DadosDoSistema, TheCombosCompleteWhileTyping) {
  abrir([](frmSistema& t) {
    t.cmbOpcaoReparcelamento.userKeyPress("r");
    EXPECT_EQ("Reajustar os títulos", t.cmbOpcaoReparcelamento.text());
    t.cmbImpressoras.userKeyPress("a");
    EXPECT_EQ("Arquivo PDF", t.cmbImpressoras.text());
  });
}

TEST_F(DadosDoSistema, SettingsThatTheStoreRefusesAreLostAndTheNextStartAsksForALogin) {
  salvar();
  EXPECT_FALSE(programa.permissoes().bFazerLogin());
  host.expectScreen("frmSistema", [this](Screen& tela) {
    dynamic_cast<frmSistema&>(tela).txtSMTP.setText(std::string(300, 'x'));
    host.expectBox(relatoDeFalha(), BoxAnswer::no);
    tela.userKey(Key::f3);
  });
  EXPECT_EQ(exitFailure, ProgramaDeTeste::codigoDeSaida([&] { host.showModal(programa.telas().obter("frmSistema")); }));
  EXPECT_THAT(configuracoes("sSMTP"), IsEmpty());
  EXPECT_THAT(sistema("sNome"), ElementsAre(ElementsAre("Loja Modelo"))) << "the first of the two writes stays";
  EXPECT_TRUE(programa.permissoes().bFazerLogin());
}

}  // namespace
}  // namespace fenvale

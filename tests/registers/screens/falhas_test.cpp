// What registers and pickers do when something fails: what passes in silence, what is reported, under which name.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Cadastros.h"
#include "platform/base/Error.h"
#include "registers/screens/TelaBuscaRapida.h"
#include "registers/screens/TelaEscolha.h"

namespace fenvale {
namespace {

using testing::HasSubstr;

/// The steps in which a test lets something fail.
struct Passos {
  std::function<void()> aoLimpar, aoCarregar, aoExcluir;
  std::string sColunaDoNome = "sNome";
  std::string sOrdem = "ORDER BY lCodigoInf ";
};

class Cadastro final : public TelaCadastro {
 public:
  Cadastro(Contexto& contexto, const Passos& passos) : TelaCadastro(contexto, "frmCadastro"), passos_(passos) {
    vDescrever({
        .sLegenda = "Cadastro",
        .sTitulo = "Cadastro",
        .sTabela = "Vendedores",
        .codigo = &txtCodigoInf,
        .sCampoCodigo = "lCodigoInf",
        .campos = {{"lCodigoInf", txtCodigoInf}, {"sNome", txtNome}},
        .colunas = {{"Código", 1000, Align::right, "lCodigoInf", txtCodigoInf},
                    {"Nome", 7200, Align::left, passos.sColunaDoNome, txtNome}},
        .sSelecao = "SELECT lCodigo, lCodigoInf, sNome FROM Vendedores ",
        .sOrdem = passos.sOrdem,
    });
    vMontarTela({campo("Código", txtCodigoInf, 3), campo("Nome", txtNome, cresce)});
  }
  CodeBox txtCodigoInf{*this, "txtCodigoInf"};
  TextBox txtNome{*this, "txtNome", 50};

 private:
  static void vDar(const std::function<void()>& passo) {
    if (passo) passo();
  }
  void vAposNovo() override { vDar(passos_.aoLimpar); }
  void vAposCarregar(const ListItem&) override { vDar(passos_.aoCarregar); }
  void vExcluir() override { vDar(passos_.aoExcluir); }

  const Passos& passos_;
};

class Busca final : public TelaEscolha {
 public:
  Busca(Contexto& contexto, const std::function<void()>& aoPerguntar)
      : TelaEscolha(contexto, "frmBusca", "Localizar"), aoPerguntar_(aoPerguntar) {
    vSetColunas({{"Código", 1000, Align::right, "lCodigoInf"}});
    vMontarTela({}, {&cmdLocalizar});
  }
  std::string sConsulta() const override {
    if (aoPerguntar_) aoPerguntar_();
    return "SELECT lCodigo, lCodigoInf FROM Vendedores ORDER BY lCodigoInf ";
  }

 private:
  void vEscolher(std::int32_t) override {}

  const std::function<void()>& aoPerguntar_;
};

class Falhas : public Cadastros {
 protected:
  Falhas() {
    vendedores(3);
    programa.telas().registrar("frmCadastro", [this](Contexto& contexto) -> std::unique_ptr<Screen> {
      return std::make_unique<Cadastro>(contexto, passos);
    });
    programa.telas().registrar("frmBusca", [this](Contexto& contexto) -> std::unique_ptr<Screen> {
      return std::make_unique<Busca>(contexto, aoPerguntar);
    });
  }
  static std::function<void()> falhar(std::int32_t lNumero) {
    return [lNumero] { throw Error(lNumero, "Falhou."); };
  }
  /// The report is offered as often as that, and declined.
  void esperarRelato(int iVezes = 1) {
    for (int vez = 0; vez < iVezes; ++vez) host.expectBox(relatoDeFalha(), BoxAnswer::no);
  }
  void conferirRelato(const std::string& sTela, const std::string& sProcedimento) {
    EXPECT_THAT(relato(), HasSubstr("Formulário: " + sTela + "\r\nFunção: " + sProcedimento + "\r\n"));
  }

  Passos passos;
  std::function<void()> aoPerguntar;
};

TEST_F(Falhas, AnInvalidCallWhileTheFormIsClearedPassesInSilence) {
  auto& tela = abrirCadastro("frmCadastro");
  passos.aoLimpar = falhar(errors::invalidCall);
  tela.userKey(Key::f2);
  EXPECT_EQ(relato(), "");

  passos.aoLimpar = falhar(errors::typeMismatch);
  esperarRelato();
  tela.userKey(Key::f2);
  conferirRelato("frmCadastro", "cmdNovo_Click");
  EXPECT_EQ(tela.state(), Screen::State::loaded);
}

TEST_F(Falhas, AMissingObjectWhileARowIsLoadedPassesInSilence) {
  auto& tela = abrirCadastro("frmCadastro");
  passos.aoCarregar = falhar(errors::objectNotSet);
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(relato(), "");
  EXPECT_TRUE(tela.lstLista.item(0)->bold());

  passos.aoCarregar = falhar(errors::typeMismatch);
  esperarRelato();
  tela.lstLista.userClickRow(1);
  conferirRelato("frmCadastro", "lstLista_itemClick");
}

TEST_F(Falhas, ARemovalThatFailsOtherwiseThanByARefusalIsReportedAndTheFormStays) {
  auto& tela = abrirCadastro("frmCadastro");
  tela.lstLista.userClickRow(1);
  caixa(tela, "txtNome").setFocus();
  passos.aoExcluir = falhar(errors::unknownTable);
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  esperarRelato();
  tela.userKey(Key::f4);
  conferirRelato("frmCadastro", "cmdExcluir_Click");
  EXPECT_EQ(caixa(tela, "txtNome").text(), "Vendedor 002");
  EXPECT_EQ(tela.lGetCodigo(), 2);
  EXPECT_TRUE(caixa(tela, "txtNome").hasFocus());
  EXPECT_EQ(tela.lstLista.items().size(), 3u);
}

TEST_F(Falhas, ARowThatCannotBeReadIsReportedAtEveryTurnOfThePage) {
  passos.sColunaDoNome = "sApelido";
  tamanhoDaPagina(2);
  esperarRelato(2);
  auto& tela = abrirCadastro("frmCadastro");
  conferirRelato("frmCadastro", "bInserirLista");
  EXPECT_TRUE(tela.enabled());
  EXPECT_TRUE(programa.configuracoes().bGetMostrarNovaPagina());
}

TEST_F(Falhas, AQueryThatTheStoreRefusesIsReported) {
  passos.sOrdem = "ORDER BY sApelido ";
  esperarRelato();
  auto& tela = abrirCadastro("frmCadastro");
  conferirRelato("frmCadastro", "vMontarLista");
  EXPECT_TRUE(caixa(tela, "txtCodigoInf").hasFocus()) << "the opening goes on";
  EXPECT_EQ(caixa(tela, "txtCodigoInf").text(), "4");
}

TEST_F(Falhas, AnInvalidPropertyValueInAPickerPassesInSilence) {
  Screen& tela = abrir("frmBusca");
  aoPerguntar = falhar(errors::invalidPropertyValue);
  tela.userKey(Key::f6);
  EXPECT_EQ(relato(), "");
  EXPECT_TRUE(botao(tela, "cmdLocalizar").enabled());

  aoPerguntar = falhar(errors::typeMismatch);
  esperarRelato();
  tela.userKey(Key::f6);
  conferirRelato("frmBusca", "cmdLocalizar_Click");
  EXPECT_TRUE(botao(tela, "cmdLocalizar").enabled());
}

TEST_F(Falhas, APageOfAPickerThatCannotBeTurnedIsReported) {
  tamanhoDaPagina(2);
  auto& tela = dynamic_cast<TelaEscolha&>(abrir("frmBusca"));
  tela.userKey(Key::f6);
  aoPerguntar = falhar(errors::typeMismatch);
  esperarRelato();
  tela.scrPaginas.userMove(1);
  conferirRelato("frmBusca", "vMontarLista");
}

TEST_F(Falhas, APickersRowThatCannotBeReadIsReportedUnderItsOwnName) {
  DescricaoBuscaRapida descricao = buscaRapida("frmLocalizarVendedoresRapido");
  descricao.colunas.back().sCampo = "sApelido";
  tamanhoDaPagina(1);
  TelaBuscaRapida busca(programa, descricao);
  host.show(busca);
  esperarRelato();
  busca.userKey(Key::f6);
  conferirRelato("frmLocalizarVendedoresRapido", "vInserirList");
  busca.unload();
}

}  // namespace
}  // namespace fenvale

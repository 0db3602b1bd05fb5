#include "shell/screens/Lancador.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <filesystem>

#include "access/screens/frmCadastroUsuarios.h"
#include "access/screens/frmLogin.h"
#include "access/services/Permissoes.h"
#include "app/Registro.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "shell/screens/frmSplash.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "store/screens/frmMensagem.h"
#include "store/screens/frmSistema.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/Caixas.h"
#include "support/Rodada.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

constexpr const char* sAtualizado =
    "Banco de Dados atualizado.\r\nExecute o programa novamente para concluir a atualização.";
constexpr const char* sSemUsuarios =
    "Não há usuários cadastrados no sistema.\r\nVocê deve cadastrar um usuário que terá acesso a todas\r\n"
    "as funcionalidades do programa (ADMINISTRADOR).\r\nPara garantir a estabilidade do sistema,\r\n"
    "este usuário não poderá ser excluído mais tarde.";
constexpr const char* sInformeSistema =
    "Os dados do sistema ainda não foram cadastrados.\r\nPor favor informe esses dados.";

void cadastrarAdministrador(Screen& tela) {
  auto& usuarios = dynamic_cast<frmCadastroUsuarios&>(tela);
  usuarios.txtSenha.userType("segredo");
  usuarios.txtConfirma.userType("segredo");
  tela.userKey(Key::f3);
}

void entrar(Screen& tela) {
  auto& login = dynamic_cast<frmLogin&>(tela);
  login.cmbLogin.userChoose(0);
  login.txtSenha.userType("segredo");
  tela.userKey(Key::f3);
}

void preencherSistema(Screen& tela) {
  auto& sistema = dynamic_cast<frmSistema&>(tela);
  sistema.txtNome.userType("Loja Modelo");
  sistema.campoCidade.txtCidade.userType("Londrina");
  sistema.campoCidade.txtUF.userType("PR");
  sistema.txtCNPJ.userType("11444777000161");
  sistema.txtSMTP.userType("smtp.exemplo.com.br");
  sistema.txtEmailRemetente.userType("loja@exemplo.com.br");
  sistema.cmbOpcaoReparcelamento.userChoose(0);
  sistema.cmbImpressoras.userChoose(0);
  sistema.campoCidade.txtUF.setFocus();
  tela.userKey(Key::f3);
}

class Inicio : public testing::Test {
 protected:
  void SetUp() override { vInstalarEm(pasta); }

  /// A run up to the end of Main; the exit code when it ended before.
  std::optional<int> iniciar(Rodada& rodada, bool bPrimeira = true) {
    const auto codigo = ProgramaDeTeste::codigoDeSaida([&] { Lancador(rodada).Main(bPrimeira); });
    rodada.hostDeTeste().verify();
    return codigo;
  }

  /// The first run, which makes the store, and all that the first start asks for.
  void primeiroInicio() {
    {
      Rodada rodada(pasta, vRegistrarTelas);
      rodada.hostDeTeste().expectBox(informacao(sAtualizado));
      ASSERT_EQ(exitRestart, iniciar(rodada));
    }
    Rodada rodada(pasta, vRegistrarTelas);
    esperarPrimeiroUsuario(rodada.hostDeTeste());
    esperarSistema(rodada.hostDeTeste());
    ASSERT_EQ(std::nullopt, iniciar(rodada));
  }
  static void esperarPrimeiroUsuario(TestHost& host) {
    host.expectBox(critica(sSemUsuarios));
    host.expectScreen("frmCadastroUsuarios", cadastrarAdministrador);
    host.expectBox(informacao("Usuário ADMINISTRADOR foi cadastrado corretamente."));
    host.expectScreen("frmLogin", entrar);
  }
  static void esperarSistema(TestHost& host) {
    host.expectBox(aviso(sInformeSistema));
    host.expectScreen("frmSistema", preencherSistema);
    host.expectBox(informacao("Operação concluída."));
  }

  /// A company that is up to date, open when the program was left.
  void comEmpresa() {
    ProgramaDeTeste modelo;
    modelo.criarEmpresa("loja.MDB");
    pasta.gravar("loja.MDB", modelo.pasta().ler("loja.MDB"));
    pasta.gravar("Empresa.XML", "<root>\r\n<emp>\r\n<cod>1</cod>\r\n<file>loja.MDB</file>\r\n<path>" + pasta.caminho() +
                                    "/</path>\r\n</emp>\r\n</root>\r\n");
  }
  /// On the program's store, between two runs.
  void executarPrograma(const std::string& sSQL) {
    Rodada rodada(pasta, vRegistrarTelas);
    rodada.dbConectar().Dados().open();
    const Recordset comando(sSQL, rodada.dbConectar().Dados());
  }

  PastaTemporaria pasta;
};

TEST_F(Inicio, ASecondInstanceIsToldAndTouchesNothing) {
  PastaTemporaria vazia;
  Rodada rodada(vazia, vRegistrarTelas);
  rodada.hostDeTeste().expectBox(aviso("Uma instância do programa já encontra-se em execução."));
  EXPECT_EQ(0, iniciar(rodada, false));
  EXPECT_THAT(vazia.nomes(), ElementsAre());
}

TEST_F(Inicio, TheFirstRunMakesTheStoreAndEnds) {
  Rodada rodada(pasta, vRegistrarTelas);
  rodada.hostDeTeste().expectBox(informacao(sAtualizado));
  EXPECT_EQ(exitRestart, iniciar(rodada));
  EXPECT_TRUE(pasta.existe("Dados.MDB"));
  EXPECT_TRUE(rodada.hostDeTeste().shown().empty());
}

TEST_F(Inicio, TheSecondRunGoesThroughFirstUserLoginAndSystemToTheMainWindow) {
  primeiroInicio();
  Rodada rodada(pasta, vRegistrarTelas);
  TestHost& host = rodada.hostDeTeste();
  // Saved without the tick, the settings ask for no login any more.
  EXPECT_EQ(std::nullopt, iniciar(rodada));
  EXPECT_THAT(host.boxes(), testing::IsEmpty());
  EXPECT_EQ("frmMDIPrincipal", host.activeScreen()->sGetName());
  EXPECT_TRUE(host.activeScreen()->enabled());
  EXPECT_EQ(Pointer::normal, host.pointer());
  EXPECT_EQ(0, rodada.permissoes().lGetCodigoUsuario());
  EXPECT_EQ("2", Recordset("SELECT COUNT(lCodigo) AS n FROM Cidades", rodada.dbConectar().Dados())["n"].toText());
}

/// What the program asks about a script that cannot be read: where it is broken is told in the parser's own words.
MessageBox perguntaDaRevisao(const PastaTemporaria& pasta) {
  Rodada rodada(pasta, vRegistrarTelas);
  EXPECT_THROW(Lancador(rodada).Main(true), TestHost::Unexpected);
  return rodada.hostDeTeste().boxes().front();
}

TEST_F(Inicio, AnUnreadableScriptThatNoRepairHelpsEndsTheRun) {
  pasta.gravar("SQL.xmlSQL", "<root><SQL>");
  const MessageBox revisar = perguntaDaRevisao(pasta);
  EXPECT_EQ(BoxStyle::question, revisar.style);
  Rodada rodada(pasta, vRegistrarTelas);
  rodada.hostDeTeste().expectBox(revisar, BoxAnswer::yes);
  rodada.hostDeTeste().expectBox(
      critica("A verificação falhou.\r\nContate o suporte técnico pelo e-mail: suporte@norvane.example"));
  EXPECT_EQ(exitFailure, iniciar(rodada));
}

TEST_F(Inicio, AnUnreadableScriptLeftAloneBringsNoStoreUp) {
  pasta.gravar("SQL.xmlSQL", "<root><SQL>");
  const MessageBox revisar = perguntaDaRevisao(pasta);
  Rodada rodada(pasta, vRegistrarTelas);
  rodada.hostDeTeste().expectBox(revisar, BoxAnswer::no);
  rodada.hostDeTeste().expectBox(revisar, BoxAnswer::no);  // the repairs of the data are read from the file anew
  rodada.hostDeTeste().expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(exitFailure, iniciar(rodada));
  EXPECT_EQ("<root><SQL>", pasta.ler("SQL.xmlSQL"));
}

TEST_F(Inicio, AScriptThatIsMissingEndsTheRun) {
  std::filesystem::remove(pasta.arquivo("SQL.xmlSQL"));
  Rodada rodada(pasta, vRegistrarTelas);
  rodada.hostDeTeste().expectBox(
      critica("Falha ao atualizar o Banco de Dados.\r\nO programa será finalizado.\r\n"
              "Tente executar o programa mais tarde, \r\n"
              "e se o problema persistir, contate o suporte técnico.\r\n"
              "e-mail de suporte: suporte@norvane.example\r\n\r\nInformação detalhada: \r\n\r\n"
              "O arquivo " +
              pasta.arquivo("SQL.xmlSQL") + " não foi localizado."));
  EXPECT_EQ(exitFailure, iniciar(rodada));
}

/// What a report says about its place.
std::string lugarDaFalha(const PastaTemporaria& pasta) {
  const std::string sRelatorio = pasta.ler("Erros/260315143207.err");
  const std::size_t inicio = sRelatorio.find("Formul");
  return sRelatorio.substr(inicio, sRelatorio.find("N\xFAmero") - inicio);
}

class InicioSemTabelas : public Inicio {
 protected:
  /// A store that holds the cities and nothing else.
  void SetUp() override {
    Inicio::SetUp();
    pasta.gravar("SQL.xmlSQL",
                 "<root><SQL>CREATE TABLE Cidades (lCodigo COUNTER CONSTRAINT PK_Cidades PRIMARY KEY, "
                 "sNome TEXT(150), sUF TEXT(2))</SQL></root>");
    Rodada rodada(pasta, vRegistrarTelas);
    // The only statement is the one that brings the connection up, which counts as no update.
    rodada.hostDeTeste().expectBox(relatoDeFalha(), BoxAnswer::no);
    ASSERT_EQ(exitFailure, iniciar(rodada));
  }
};

TEST_F(InicioSemTabelas, AFailureOfTheStartIsReportedUnderItsName) {
  EXPECT_EQ("Formul\xE1rio: Lancador\r\nFun\xE7\xE3o: Main\r\n", lugarDaFalha(pasta));
}

TEST_F(InicioSemTabelas, AFailureOfTheCheckOfTheSystemIsReportedUnderItsName) {
  Rodada rodada(pasta, vRegistrarTelas);
  rodada.dbConectar().Dados().open();
  rodada.hostDeTeste().expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(exitFailure, ProgramaDeTeste::codigoDeSaida([&] { Lancador(rodada).bVerificarDadosSistema(); }));
  EXPECT_EQ("Formul\xE1rio: Lancador\r\nFun\xE7\xE3o: bVerificarDadosSistema\r\n", lugarDaFalha(pasta));
}

TEST_F(Inicio, TheFirstUserNotSavedEndsTheRun) {
  {
    Rodada rodada(pasta, vRegistrarTelas);
    rodada.hostDeTeste().expectBox(informacao(sAtualizado));
    ASSERT_EQ(exitRestart, iniciar(rodada));
  }
  Rodada rodada(pasta, vRegistrarTelas);
  TestHost& host = rodada.hostDeTeste();
  host.expectBox(critica(sSemUsuarios));
  host.expectScreen("frmCadastroUsuarios", [](Screen& tela) { tela.userKey(Key::escape); });
  host.expectBox(critica("Nenhum usuário foi cadatrado."));
  EXPECT_EQ(0, iniciar(rodada));
}

TEST_F(Inicio, TheLoginClosedEndsTheRun) {
  primeiroInicio();
  executarPrograma("UPDATE Configuracoes SET bitExibirLoginUsuarios = -1");
  Rodada rodada(pasta, vRegistrarTelas);
  TestHost& host = rodada.hostDeTeste();
  host.expectScreen("frmLogin", [](Screen& tela) { tela.userClose(); });
  EXPECT_EQ(0, iniciar(rodada));
}

TEST_F(Inicio, SystemDataNotSavedEndsTheRunWithTheMainWindowShown) {
  {
    Rodada rodada(pasta, vRegistrarTelas);
    rodada.hostDeTeste().expectBox(informacao(sAtualizado));
    ASSERT_EQ(exitRestart, iniciar(rodada));
  }
  Rodada rodada(pasta, vRegistrarTelas);
  TestHost& host = rodada.hostDeTeste();
  esperarPrimeiroUsuario(host);
  host.expectBox(aviso(sInformeSistema));
  std::string sAtras;
  host.expectScreen("frmSistema", [&](Screen& tela) {
    sAtras = host.shown().front()->sGetName();
    tela.userKey(Key::escape);
  });
  host.expectBox(critica("Os dados não foram informados e o sistema não poderá ser utilizado."));
  EXPECT_EQ(0, iniciar(rodada));
  EXPECT_EQ("frmMDIPrincipal", sAtras);
}

TEST_F(Inicio, SystemDataThatExistAreNotAskedFor) {
  primeiroInicio();
  Rodada rodada(pasta, vRegistrarTelas);
  ASSERT_EQ(std::nullopt, iniciar(rodada));
  EXPECT_TRUE(Lancador(rodada).bVerificarDadosSistema());
}

/// The overview of a firm that wants it at the start.
class QuadroDeTeste final : public Tela, public TelaQuadroGeral {
 public:
  explicit QuadroDeTeste(Contexto& contexto) : Tela(contexto, "frmMostrarContas") {}
  bool bGetMostrarTodas() override { return true; }
  void vSetMotrarTodas(bool bTodas) override { chamadas().push_back(bTodas); }
  static std::vector<bool>& chamadas() {
    static std::vector<bool> lista;
    return lista;
  }
};

void registrarComQuadro(Telas& telas) {
  vRegistrarTelas(telas);
  telas.registrar<QuadroDeTeste>("frmMostrarContas");
}

TEST_F(Inicio, TheOverviewIsPassedOverWithoutACompany) {
  primeiroInicio();
  QuadroDeTeste::chamadas().clear();
  Rodada rodada(pasta, registrarComQuadro);
  EXPECT_EQ(std::nullopt, iniciar(rodada));
  EXPECT_THAT(QuadroDeTeste::chamadas(), ElementsAre());
}

TEST_F(Inicio, TheLastCompanyIsOpenBeforeTheMainWindowAndTheOverviewShows) {
  primeiroInicio();
  comEmpresa();
  QuadroDeTeste::chamadas().clear();
  Rodada rodada(pasta, registrarComQuadro);
  TestHost& host = rodada.hostDeTeste();
  host.expectScreen("frmMostrarContas", [&](Screen& tela) {
    EXPECT_FALSE(host.shown().front()->enabled()) << "the main window waits";
    EXPECT_EQ(Pointer::hourglass, host.pointer());
    tela.unload();
  });
  EXPECT_EQ(std::nullopt, iniciar(rodada));
  EXPECT_TRUE(host.activeScreen()->enabled());
  EXPECT_EQ(Pointer::normal, host.pointer());
  EXPECT_THAT(QuadroDeTeste::chamadas(), ElementsAre(false, true));
  EXPECT_EQ("Gestor Fenvale - Versão ZENIT   -     Empresa: loja.MDB     -     Caminho: " + pasta.caminho() + "/",
            host.activeScreen()->caption());
  EXPECT_THAT(host.boxes(), testing::IsEmpty()) << "reopening is not announced";
}

TEST_F(Inicio, LoginThenOverviewThenTheFirmsDataEachOverTheWindowAsItStandsThen) {
  primeiroInicio();
  comEmpresa();
  executarPrograma("UPDATE Configuracoes SET bitExibirLoginUsuarios = -1");
  executarPrograma("DELETE * FROM Sistema");
  QuadroDeTeste::chamadas().clear();
  Rodada rodada(pasta, registrarComQuadro);
  TestHost& host = rodada.hostDeTeste();
  const auto janela = [&host]() -> const Screen& { return *host.shown().front(); };
  host.expectScreen("frmLogin", [&](Screen& tela) {
    EXPECT_EQ("frmMDIPrincipal", janela().sGetName());
    EXPECT_TRUE(janela().enabled());
    EXPECT_THAT(QuadroDeTeste::chamadas(), ElementsAre());
    entrar(tela);
  });
  host.expectScreen("frmMostrarContas", [&](Screen& tela) {
    EXPECT_EQ(1, rodada.permissoes().lGetCodigoUsuario());
    EXPECT_THAT(QuadroDeTeste::chamadas(), ElementsAre(false));
    tela.unload();
  });
  host.then([&] {
    EXPECT_THAT(QuadroDeTeste::chamadas(), ElementsAre(false, true)) << "set back as soon as the board is gone";
    EXPECT_TRUE(janela().enabled());
    EXPECT_EQ(Pointer::normal, host.pointer());
  });
  esperarSistema(host);
  EXPECT_EQ(std::nullopt, iniciar(rodada));
}

TEST_F(Inicio, ALastCompanyThatIsOutOfDateEndsTheRunFromTheSplash) {
  primeiroInicio();
  createStore(pasta.arquivo("loja.MDB"));
  pasta.gravar("Empresa.XML",
               "<root><emp><cod>1</cod><file>loja.MDB</file><path>" + pasta.caminho() + "/</path></emp></root>");
  Rodada rodada(pasta, vRegistrarTelas);
  std::string sAtras;
  rodada.hostDeTeste().then([&] { sAtras = rodada.hostDeTeste().activeScreen()->sGetName(); });
  rodada.hostDeTeste().expectBox(informacao(sAtualizado));
  EXPECT_EQ(exitRestart, iniciar(rodada));
  EXPECT_EQ("frmSplash", sAtras);
}

TEST_F(Inicio, TheCitiesAreThereBeforeTheSplashAndTheMainWindowComesAfterIt) {
  {
    Rodada rodada(pasta, vRegistrarTelas);
    rodada.hostDeTeste().expectBox(informacao(sAtualizado));
    ASSERT_EQ(exitRestart, iniciar(rodada));
  }
  pasta.gravar("Empresa.XML", "<root><emp><cod>1</cod><file>loja.MDB</file><path>/nada/</path></emp></root>");
  Rodada rodada(pasta, vRegistrarTelas);
  TestHost& host = rodada.hostDeTeste();
  std::string sCidades;
  std::vector<std::string> mostradas;
  host.then([&] {
    sCidades = Recordset("SELECT COUNT(lCodigo) AS n FROM Cidades", rodada.dbConectar().Dados())["n"].toText();
    for (const Screen* tela : host.shown()) mostradas.push_back(tela->sGetName());
  });
  host.expectBox(aviso("/nada/loja.MDB\r\n\r\nO arquivo não foi localizado."));
  esperarPrimeiroUsuario(host);
  esperarSistema(host);
  EXPECT_EQ(std::nullopt, iniciar(rodada));
  EXPECT_EQ("2", sCidades);
  EXPECT_THAT(mostradas, ElementsAre("frmSplash"));
}

TEST_F(Inicio, TheFirstUserIsAskedForWhereNoLoginIsToo) {
  primeiroInicio();
  executarPrograma("DELETE * FROM Usuarios");
  Rodada rodada(pasta, vRegistrarTelas);
  TestHost& host = rodada.hostDeTeste();
  host.expectBox(critica(sSemUsuarios));
  host.expectScreen("frmCadastroUsuarios", cadastrarAdministrador);
  host.expectBox(informacao("Usuário ADMINISTRADOR foi cadastrado corretamente."));
  EXPECT_EQ(std::nullopt, iniciar(rodada));
  EXPECT_EQ(0, rodada.permissoes().lGetCodigoUsuario()) << "everybody may do everything";
}

TEST_F(Inicio, ALostLastCompanyIsToldDuringTheSplash) {
  primeiroInicio();
  pasta.gravar("Empresa.XML", "<root><emp><cod>1</cod><file>loja.MDB</file><path>/nada/</path></emp></root>");
  Rodada rodada(pasta, vRegistrarTelas);
  rodada.hostDeTeste().expectBox(aviso("/nada/loja.MDB\r\n\r\nO arquivo não foi localizado."));
  EXPECT_EQ(std::nullopt, iniciar(rodada));
  EXPECT_FALSE(rodada.empresas().bSelecionouEmpresa(false));
}

}  // namespace
}  // namespace fenvale

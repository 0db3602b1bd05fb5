#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

#include "access/services/Permissoes.h"
#include "app/Registro.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "platform/ui/Menu.h"
#include "shell/screens/MenuPrincipal.h"
#include "shell/screens/frmMDIPrincipal.h"
#include "shell/services/Tela.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

/// Stands in for a screen: it opens, and closes by Esc.
class TelaVazia final : public Tela, public TelaQuadroGeral {
 public:
  TelaVazia(Contexto& contexto, std::string sNome) : Tela(contexto, std::move(sNome)) {}
  bool bGetMostrarTodas() override { return false; }
  void vSetMotrarTodas(bool bTodas) override { bTodas_ = bTodas; }
  bool bTodas_ = false;

 protected:
  bool onKeyDown(Key tecla) override { return tecla == Key::escape && unload(); }
};

/// The main window and a stand-in for every screen that its menu names.
void registrarTodas(Telas& telas) {
  telas.registrar<frmMDIPrincipal>("frmMDIPrincipal");
  for (const EntradaMenu& entrada : entradasMenu()) {
    if (entrada.sTela.empty()) continue;
    const std::string sTela(entrada.sTela);
    telas.registrar(sTela, [sTela](Contexto& contexto) { return std::make_unique<TelaVazia>(contexto, sTela); });
  }
}

class Janela : public testing::Test {
 protected:
  explicit Janela(void (*registrar)(Telas&) = registrarTodas) : programa(registrar) {}
  void SetUp() override {
    programa.abrirPrograma();
    host.show(janela());
  }
  frmMDIPrincipal& janela() { return programa.telas().obter<frmMDIPrincipal>("frmMDIPrincipal"); }
  void usuario(const std::string& direitos) {
    programa.executarPrograma(
        "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
        "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ANA', 'x', 0, 0, 0, 0, 0)");
    if (!direitos.empty()) programa.executarPrograma("UPDATE Usuarios SET " + direitos);
    programa.permissoes().vSetPermissoes(1);
  }
  static std::function<void(Screen&)> fechar() {
    return [](Screen& tela) { tela.userKey(Key::escape); };
  }

  ProgramaDeTeste programa;
  TestHost& host = programa.hostDeTeste();
};

/// The menu as it hangs in the window: caption, name, and for a command what it opens and what guards it.
constexpr const char* sMenuInteiro = R"(&Cadastros mnuCadastroS
  Nova Empresa mnuEmpresaNova -> frmEmpresaNova
  Abrir Empresa mnuEmpresaAbrir -> frmEmpresaAbrir
  Backup de empresas mnuEmpresaBackup -> frmEmpresaBackup
  - mnu3
  Categorias mnuCadCategorias -> frmCadastroCategorias empresa
  Clientes mnuCadClientes -> frmCadastroClientes empresa
  Fornecedores mnuCadFornecedores -> frmCadastroFornecedores empresa
  Portadores mnuCadastroPortadores -> frmCadastroPortadores empresa
  Condições de pagamento mnuCadCondicoesPagamento -> frmCadastroCondicoesPagamento empresa
  Vendedores mnuCadVendedores -> frmCadastroVendedores empresa
  Centro de custo mnuCadCentroCusto -> frmCadastroCentroCusto empresa
  - mnuSep2
  Faturas de clientes mnuCadFaturasClientes -> frmCadastroFaturasCliente empresa
  Faturas de fornecedores mnuCadFaturasFornecedores -> frmCadastroFaturasFornecedor empresa
  Títulos a receber mnuCadTitulosReceber -> frmCadastroTitulosReceber empresa
  Títulos a pagar mnuCadTitulosPagar -> frmCadastroTitulosPagar empresa
  - mnuSep12
  Sistema mnuCadSistema -> frmSistema
  Dados da empresa mnuCadDadosEmpresa -> frmEmpresa empresa
  - mnuSep1
  &Usuários mnuUsuarios -> frmCadastroUsuarios
  Trocar de usuário mnuTrocarUsuario -> frmLogin
  - mnuSep
  &Sair mnuSair
Processamentos mnuProcessamentos
  Transferência entre vendedores mnuTransferenciaVendedores -> frmTransferenciaVendedores
  Eliminação automática de títulos mnuZerarTitulos -> frmZerarTitulos
  - mnuSep11
  Quadro geral de contas mnuQuadroGeralContas -> frmMostrarContas quadro
Emissões mnuEmissoes
  Emissão de carnês e promissórias mnuEmtirCarnesPromissorias -> frmEmitirCarnesPromissorias empresa
  - mnuSep4
  Mala direta mnuEmissaoMalaDireta
    Clientes mnuEmissaoMalaDiretaCliente -> frmMalaDiretaCliente empresa
    Fornecedores mnuEmissaoMalaDiretaFornecedores -> frmMalaDiretaFornecedor empresa
    Aniversariantes mnuEmissaoMalaDiretaAnivesariantes -> frmMalaDiretaAniversariantes empresa
    - mnuSep10
    Cobrança mnuEmissaoMalaDiretaCobranca -> frmMalaDiretaCobranca empresa
  - mnuSep3
  Cheques mnuImpressaoCheques
    Impressão para títulos recebidos mnuImprimssaoCheque -> frmImpressaoCheques empresa
    Impressão para títulos pagos mnuImprimssaoChequeTitulosPagar -> frmImpressaoChequesTitulosPagar empresa
    Impressão simples mnuImpremssaoChequeSimples -> frmImpressaoChequesSimples empresa
  - mnuSep9
  Títulos a receber mnuEmitirTitulos -> frmEmitirTitulos empresa
Listagens mnuListagens
  Cadastros mnuRelCadastros
    Clientes mnuRelClientes -> frmRelClientes empresa
    Clientes agrupados por cidade mnuRelClientesCidade -> frmRelClientesCidade empresa
    Aniversariantes mnuRelAniversariantes -> frmRelAniversariantes empresa
    - mnuSep5
    Fornecedores mnuRelFornecedores -> frmRelFornecedores empresa
    Fornecedores agrupados por cidade mnuRelFornecedoresCidade -> frmRelFornecedoresCidade empresa
    - mnuSep6
    Portadores mnuRelPortadores -> frmRelPortadores empresa
    Categorias mnuRelCategorias -> frmRelCategorias empresa
    Vendedores mnuRelVendedores -> frmRelVendedores empresa
    Condições de pagamento mnuRelCondicoesPagamento -> frmRelCondicoesPagamento empresa
    Centro de custos mnuRelCentroCustos -> frmRelCentroCustos empresa
    - mnuSep7
    Cidades mnuRelCidades -> frmRelCidades empresa
    Bancos mnuRelBancos -> frmRelBancos empresa
  Faturas mnuRelFaturas
    Clientes mnuRelFaturasClientes -> frmRelFaturasClientes empresa
    Fornecedores mnuRelFaturasFornecedores -> frmRelFaturasFornecedores empresa
  Títulos mnuRelTitulos
    Emitidos mnuRelTitulosEmitidos -> frmRelTitulosEmitidos empresa
    Emitidos por portador mnuRelTitulosEmitidosPortador -> frmRelTitulosEmitidosPortador empresa
    a receber mnuRelTitulosReceber -> frmRelTitulosReceber empresa
    Recebidos mnuRelTitulosRecebidos -> frmRelTitulosRecebidos empresa
    a pagar mnuRelTitulosPagar -> frmRelTitulosPagar empresa
    Pagos mnuRelTitulosPagos -> frmRelTitulosPagos empresa
  Gerenciais mnuRelGerenciais
    Clientes inativos mnuRelClientesInativos -> frmRelClientesInativos empresa
    Fornecedores inativos mnuRelFornecedoresInativos -> frmRelFornecedoresInativos empresa
    Posição geral a receber mnuRelPosicaoGeralReceber -> frmRelPosicaoGeralReceber empresa
    Posição geral a pagar mnuRelPosicaoGeralPagar -> frmRelPosicaoGeralPagar empresa
    Confrotamento da posição geral mnuRelPosicaoGeralConfrontamento -> frmRelPosicaoGeralConfrontamento empresa
    - mnuSep8
    Fluxo de caixa mnuRelFluxoCaixa -> frmRelFluxoCaixa empresa
A&juda mnusobre
  &Sobre o Sistema mnuabout -> frmSobreApp
)";

std::string sMenu(const std::vector<MenuItem>& itens, const std::string& sRecuo = {}) {
  std::string sTexto;
  for (const MenuItem& item : itens) {
    const EntradaMenu& entrada = *entradaMenu(item.name);
    sTexto += sRecuo + item.caption + " " + item.name;
    if (!entrada.sTela.empty()) sTexto += " -> " + std::string(entrada.sTela);
    if (entrada.guarda != Guarda::nenhuma) sTexto += entrada.guarda == Guarda::empresa ? " empresa" : " quadro";
    sTexto += "\n" + sMenu(item.children, sRecuo + "  ");
  }
  return sTexto;
}

TEST_F(Janela, TheWholeMenuInItsOrder) { EXPECT_EQ(sMenuInteiro, sMenu(janela().mnuPrincipal.items())); }

TEST_F(Janela, LoadsWithTheNameOfTheProgramAndWithoutAPictureWhereThereIsNone) {
  EXPECT_EQ("Gestor Fenvale - Versão ZENIT", janela().caption());
  EXPECT_EQ("", janela().background());
}

TEST_F(Janela, WithoutACompanyEveryGuardedEntrySaysSoAndOpensNothing) {
  int guardadas = 0;
  for (const EntradaMenu& entrada : entradasMenu()) {
    if (entrada.guarda == Guarda::nenhuma) continue;
    ++guardadas;
    host.expectBox(aviso("Selecione uma empresa."));
    janela().mnuPrincipal.userChoose(entrada.sNome);
    host.verify();
  }
  EXPECT_EQ(48, guardadas);
}

TEST_F(Janela, WithoutACompanyTheOthersOpen) {
  for (const EntradaMenu& entrada : entradasMenu()) {
    if (entrada.guarda != Guarda::nenhuma || entrada.sTela.empty()) continue;
    host.expectScreen(std::string(entrada.sTela), fechar());
    janela().mnuPrincipal.userChoose(entrada.sNome);
    host.verify();
  }
}

TEST_F(Janela, WithACompanyEveryEntryOpensItsScreen) {
  programa.abrirEmpresa();
  for (const EntradaMenu& entrada : entradasMenu()) {
    if (entrada.sTela.empty()) continue;
    host.expectScreen(std::string(entrada.sTela), fechar());
    janela().mnuPrincipal.userChoose(entrada.sNome);
    host.verify();
  }
}

TEST_F(Janela, ToolbarButtonsOpenTheScreensOfTheirEntries) {
  programa.abrirEmpresa();
  const std::map<std::string, std::string> telas{
      {"CadastroClientes", "frmCadastroClientes"},     {"CadastroFornecedores", "frmCadastroFornecedores"},
      {"CadastroPortadores", "frmCadastroPortadores"}, {"TitulosReceber", "frmCadastroTitulosReceber"},
      {"TitulosPagar", "frmCadastroTitulosPagar"},     {"QuadroGeral", "frmMostrarContas"}};
  for (const auto& [botao, tela] : telas) {
    host.expectScreen(tela, fechar());
    janela().Toolbar1.userClick(botao);
    host.verify();
  }
}

TEST_F(Janela, ToolbarButtonsAskForACompanyToo) {
  for (const char* botao : {"CadastroClientes", "CadastroFornecedores", "CadastroPortadores", "TitulosReceber",
                            "TitulosPagar", "QuadroGeral"}) {
    host.expectBox(aviso("Selecione uma empresa."));
    janela().Toolbar1.userClick(botao);
    host.verify();
  }
}

TEST_F(Janela, TheOverviewShowsAllListsWhenItIsAskedFor) {
  programa.abrirEmpresa();
  bool bTodas = false;
  host.expectScreen("frmMostrarContas", [&](Screen& tela) {
    bTodas = dynamic_cast<TelaVazia&>(tela).bTodas_;
    tela.userKey(Key::escape);
  });
  janela().mnuPrincipal.userChoose("mnuQuadroGeralContas");
  EXPECT_TRUE(bTodas);
}

TEST_F(Janela, TheOverviewTellsTheMissingRightAndNotTheMissingCompany) {
  usuario("p0 = -1, p3 = -1");
  host.expectBox(semPermissao());
  janela().Toolbar1.userClick("QuadroGeral");
  host.expectBox(semPermissao());
  janela().mnuPrincipal.userChoose("mnuQuadroGeralContas");
  host.verify();
}

TEST_F(Janela, EntriesAreEnabledByTheirRight) {
  usuario("c0 = -1, c5 = -1, p3 = -1");
  for (const EntradaMenu& entrada : entradasMenu()) {
    const bool bEsperado =
        entrada.sChave.empty() || entrada.sChave == "c0" || entrada.sChave == "c5" || entrada.sChave == "p3";
    EXPECT_EQ(bEsperado, janela().mnuPrincipal.item(entrada.sNome).enabled) << entrada.sNome;
  }
  std::vector<bool> botoes;
  for (const auto& item : janela().Toolbar1.items())
    if (!item.key.empty()) botoes.push_back(item.enabled);
  EXPECT_THAT(botoes, ElementsAre(true, false, false, false, false, true, true));
}

TEST_F(Janela, AMenuWithoutItsRightHidesWhatIsBelow) {
  usuario("c5 = -1, l0 = -1, l1a = -1");
  EXPECT_FALSE(janela().mnuPrincipal.reachable("mnuCadClientes"));
  EXPECT_FALSE(janela().mnuPrincipal.reachable("mnuSair"));
  EXPECT_FALSE(janela().mnuPrincipal.reachable("mnuRelClientes"));
  EXPECT_TRUE(janela().mnuPrincipal.reachable("mnuabout"));
  janela().mnuPrincipal.userChoose("mnuCadClientes");
}

TEST_F(Janela, LeavingByTheMenuRemembersTheCompany) {
  programa.abrirEmpresa("loja.MDB");
  EXPECT_EQ(0, programa.codigoDeSaida([&] { janela().mnuPrincipal.userChoose("mnuSair"); }));
  EXPECT_EQ("<root>\r\n<emp>\r\n<cod>1</cod>\r\n<file>loja.MDB</file>\r\n<path>" + programa.pasta().caminho() +
                "/</path>\r\n</emp>\r\n</root>\r\n",
            programa.pasta().ler("Empresa.XML"));
  EXPECT_FALSE(programa.dbConectar().Dados().isOpen());
  EXPECT_TRUE(programa.dbEmpresa().Dados().isOpen()) << "the end of the process takes that one";
}

TEST_F(Janela, LeavingClosesTheStoreBeforeItWritesDownTheCompany) {
  programa.pasta().gravar("Empresa.XML/no-caminho", "");
  bool bAberta = true;
  host.then([&] { bAberta = programa.dbConectar().Dados().isOpen(); });
  host.expectBox(relatoDeFalha(), BoxAnswer::no);
  EXPECT_EQ(exitFailure, programa.codigoDeSaida([&] { janela().mnuPrincipal.userChoose("mnuSair"); }));
  EXPECT_FALSE(bAberta);
}

TEST_F(Janela, LeavingByTheToolbarDoesTheSameWithNoCompanyToo) {
  EXPECT_EQ(0, programa.codigoDeSaida([&] { janela().Toolbar1.userClick("sair"); }));
  EXPECT_NE(std::string::npos, programa.pasta().ler("Empresa.XML").find("<cod>0</cod>"));
}

TEST_F(Janela, ClosingTheWindowEndsTheProgramAndRemembersNothing) {
  programa.abrirEmpresa();
  EXPECT_EQ(0, programa.codigoDeSaida([&] { janela().userClose(); }));
  EXPECT_FALSE(programa.pasta().existe("Empresa.XML"));
  EXPECT_FALSE(programa.dbConectar().Dados().isOpen());
}

std::map<std::string, std::string> paineis(const frmMDIPrincipal& janela) {
  std::map<std::string, std::string> textos;
  for (const auto& painel : janela.sttStatusBar.panels()) textos[painel.name] = painel.text;
  return textos;
}

TEST_F(Janela, TheStatusBarTellsUserCompanyStoreAndDate) {
  auto textos = paineis(janela());
  EXPECT_EQ("Sem usuário identificado", textos["usuario"]);
  EXPECT_EQ("Nenhuma empresa aberta: escolha Cadastros, Abrir Empresa", textos["empresa"]);
  EXPECT_EQ("Base de dados: " + programa.pasta().arquivo("Dados.MDB"), textos["base"]);
  EXPECT_EQ("15/03/2026", textos["data"]);

  programa.abrirEmpresa("loja.MDB");
  usuario("");
  textos = paineis(janela());
  EXPECT_EQ("Usuário: Ana", textos["usuario"]);
  EXPECT_EQ("Empresa: " + programa.pasta().arquivo("loja.MDB"), textos["empresa"]);
}

TEST_F(Janela, TheDateInTheStatusBarMovesOnWithTheDay) {
  programa.relogioDeTeste().setDia(2026, 3, 16);
  host.sleep(std::chrono::seconds(61));
  EXPECT_EQ("16/03/2026", paineis(janela())["data"]);
}

class JanelaReal : public Janela {
 protected:
  JanelaReal() : Janela(vRegistrarTelas) {}
};

TEST_F(JanelaReal, AnEntryWithoutAScreenStaysDisabledWhateverTheRight) {
  programa.permissoes().vSetPermissoes(0);
  for (const EntradaMenu& entrada : entradasMenu()) {
    const bool bHaTela = entrada.sTela.empty() || programa.telas().bExiste(entrada.sTela);
    EXPECT_EQ(bHaTela, janela().mnuPrincipal.item(entrada.sNome).enabled) << entrada.sNome;
  }
}

TEST_F(JanelaReal, EveryScreenOfTheProgramCanBeMade) {
  for (const std::string& nome : programa.telas().nomes()) EXPECT_EQ(nome, programa.telas().obter(nome).sGetName());
}

TEST_F(JanelaReal, ThePictureFollowsTheMonitor) {
  for (const char* figura : {"800x600", "1024x768", "1280x1024"})
    programa.pasta().gravar(std::string("FiguraFundo") + figura + ".gif", "GIF89a");
  const std::map<std::string, Size> esperados{
      {"1024x768", {1024, 768}}, {"1280x1024", {1280, 1024}}, {"800x600", {1920, 1080}}};
  for (const auto& [figura, tamanho] : esperados) {
    host.setMonitorSize(tamanho);
    frmMDIPrincipal outra(programa);
    host.show(outra);
    EXPECT_EQ(programa.pasta().arquivo("FiguraFundo" + figura + ".gif"), janela().background());
    host.close(outra);
  }
}

}  // namespace
}  // namespace fenvale

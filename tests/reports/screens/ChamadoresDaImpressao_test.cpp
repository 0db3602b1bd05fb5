// F5 on every screen with a list: the title and the width that it hands over are part of its design.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "access/services/Permissoes.h"
#include "app/Registro.h"
#include "overview/services/QuadroGeralContas.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "registers/services/TelaPaginada.h"
#include "reports/services/ListagemTexto.h"
#include "reports/services/OpcoesImpressaoList.h"
#include "shell/services/Tela.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct Chamador {
  std::string sTela;
  std::string sTitulo;
  int iColunas;
};

const std::vector<Chamador> chamadores{
    {"frmCadastroCategorias", "Cadastro de categorias", 80},
    {"frmCadastroClientes", "Cadastro de clientes", 130},
    {"frmCadastroVendedores", "Cadastro de vendedores", 80},
    {"frmCadastroFornecedores", "Cadastro de fornecedores", 130},
    {"frmLocalizarBancos", "Cadastro de Bancos", 80},
    {"frmCadastroPortadores", "Cadastro de portadores", 80},
    {"frmCadastroCondicoesPagamento", "Cadastro de condições de pagamento", 80},
    {"frmCadastroFaturasCliente", "Cadastro de faturas do cliente", 130},
    {"frmCadastroTitulosReceber", "Cadastro de títulos a receber", 130},
    {"frmLocalizarTitulosReceber", "Cadastro de títulos a receber", 80},
    {"frmCadastroFaturasFornecedor", "Cadastro de faturas do fornecedor", 130},
    {"frmCadastroTitulosPagar", "Cadastro de títulos a pagar", 130},
    {"frmLocalizarTitulosPagar", "Cadastro de títulos a pagar", 80},
    {"frmCadastroCentroCusto", "Cadastro de centros de custo", 80},
    {"frmLocalizarCidades", "Cadastro de Cidades", 80},
    {"frmLocalizarUsuarios", "Cadastro de Usuários", 80},
    {"frmEmpresaNova", "Empresas criadas", 80},
    {"frmEmpresaAbrir", "Empresas criadas", 80},
    {"frmEmpresaBackup", "Empresas criadas", 80},
};

/// Those whose print button is another thing: the options themselves, and the overview with its four lists.
const std::vector<std::string> outras{"frmOpcoesRelList", "frmMostrarContas"};

/// The options of list printing, which remember what they were handed.
class OpcoesDeTeste final : public Tela, public OpcoesRelatorioLista {
 public:
  explicit OpcoesDeTeste(Contexto& contexto) : Tela(contexto, "frmOpcoesRelList") {}
  void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) override {
    pedidos.push_back(lst.screen().sGetName() + "." + lst.name() + " | " + sTitulo + " | " + std::to_string(iColunas));
    // Also as it is printed without its rows, by the widths of the list and by the headings: no column as it was
    // designed, and no heading, is wider than the line.
    lst.clear();
    for (const ListColumn& coluna : lst.columns()) {
      if (coluna.width > 0) {
        EXPECT_GE(std::lround(coluna.width / 107.5), length(coluna.heading)) << coluna.heading << " is cut on paper";
      }
    }
    OpcoesImpressaoList opcoes;
    opcoes.vSetTitulo(sTitulo);
    opcoes.vSetColunas(iColunas);
    opcoes.vSetList(lst);
    std::string& listagem = listagens.emplace_back();
    for (const auto iDimensionamento : std::initializer_list<std::int16_t>{1, 0}) {
      opcoes.vSetOpcaoDimensionamento(iDimensionamento);
      EXPECT_NO_THROW(vGerarListagem(opcoes, [&listagem](std::string_view bloco) { listagem += bloco; }))
          << iDimensionamento;
    }
  }
  std::vector<std::string> pedidos;
  std::vector<std::string> listagens;
};

std::string ouro(const std::string& lista) {
  return files::read(std::string(FENVALE_SOURCE_DIR) + "/tests/reports/screens/ouro/" + lista + ".txt");
}

void vRegistrarComOpcoesDeTeste(Telas& telas) {
  vRegistrarTelas(telas);
  telas.registrar<OpcoesDeTeste>("frmOpcoesRelList");
}

std::vector<std::string> nomesDasTelas() {
  ProgramaDeTeste programa(vRegistrarTelas);
  return programa.telas().nomes();
}

std::vector<Chamador> chamadoresRegistrados() {
  const auto nomes = nomesDasTelas();
  std::vector<Chamador> lista;
  std::copy_if(chamadores.begin(), chamadores.end(), std::back_inserter(lista), [&](const Chamador& chamador) {
    return std::find(nomes.begin(), nomes.end(), chamador.sTela) != nomes.end();
  });
  return lista;
}

class ChamadoresDaImpressao : public testing::TestWithParam<Chamador> {
 protected:
  ChamadoresDaImpressao() { programa.abrirEmpresa(); }
  Screen& abrir() {
    Screen& tela = programa.telas().obter(GetParam().sTela);
    tela.ensureLoaded();
    return tela;
  }
  ProgramaDeTeste programa{vRegistrarComOpcoesDeTeste};
};

TEST_P(ChamadoresDaImpressao, F5HandsOverTheListWithItsTitleAndWidth) {
  Screen& tela = abrir();
  ASSERT_NE(tela.control("cmdEmitir"), nullptr);
  EXPECT_TRUE(tela.control("cmdEmitir")->enabled());
  tela.userKey(Key::f5);
  programa.hostDeTeste().verify();
  EXPECT_THAT(
      programa.telas().obter<OpcoesDeTeste>("frmOpcoesRelList").pedidos,
      ElementsAre(tela.sGetName() + ".lstLista | " + GetParam().sTitulo + " | " + std::to_string(GetParam().iColunas)));
}

TEST_P(ChamadoresDaImpressao, TheColumnsOfTheListingAreThoseOfTheDesign) {
  Screen& tela = abrir();
  tela.userKey(Key::f5);
  EXPECT_THAT(programa.telas().obter<OpcoesDeTeste>("frmOpcoesRelList").listagens,
              ElementsAre(ouro(tela.sGetName() + ".lstLista")));
}

TEST_P(ChamadoresDaImpressao, WithoutTheRightToPrintTheOptionsStayClosed) {
  programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Ana', 'ana', 'x', -1, -1, -1, 0, -1)");
  Screen& tela = abrir();
  programa.permissoes().vSetPermissoes(1);
  programa.hostDeTeste().expectBox(semPermissao());
  tela.userKey(Key::f5);
  programa.hostDeTeste().verify();
  EXPECT_TRUE(programa.telas().obter<OpcoesDeTeste>("frmOpcoesRelList").pedidos.empty());
}

INSTANTIATE_TEST_SUITE_P(Programa, ChamadoresDaImpressao, testing::ValuesIn(chamadoresRegistrados()),
                         [](const auto& chamador) { return chamador.param.sTela; });

TEST(TelasQueImprimem, TheOverviewPrintsEachOfItsFourLists) {
  ProgramaDeTeste programa(vRegistrarComOpcoesDeTeste);
  programa.abrirEmpresa();
  programa.quadroGeralContas().vSetMotrarTodas(true);
  Screen& tela = programa.telas().obter("frmMostrarContas");
  tela.ensureLoaded();
  for (const char* botao :
       {"cmdEmitirPagarDia", "cmdEmitirReceberDia", "cmdEmitirPagarVencidas", "cmdEmitirReceberVencidas"})
    dynamic_cast<Button&>(*tela.control(botao)).userClick();
  const auto& opcoes = programa.telas().obter<OpcoesDeTeste>("frmOpcoesRelList");
  EXPECT_THAT(opcoes.pedidos,
              ElementsAre("frmMostrarContas.lstPagarDia | Contas a pagar de 15/03/2026 | 130",
                          "frmMostrarContas.lstReceberDia | Contas a receber de 15/03/2026 | 130",
                          "frmMostrarContas.lstPagarVencidas | Contas a pagar vencidas em 15/03/2026 | 130",
                          "frmMostrarContas.lstReceberVencidas | Contas a receber vencidas em 15/03/2026 | 130"));
  EXPECT_THAT(opcoes.listagens,
              ElementsAre(ouro("frmMostrarContas.lstPagarDia"), ouro("frmMostrarContas.lstReceberDia"),
                          ouro("frmMostrarContas.lstPagarVencidas"), ouro("frmMostrarContas.lstReceberVencidas")));
}

TEST(TelasQueImprimem, PutOnPaperThePageThatShows) {
  ProgramaDeTeste programa(vRegistrarTelas);
  programa.abrirEmpresa();
  programa.executarPrograma(
      "INSERT INTO Configuracoes (lTamanhoPagina, bitAutenticacao, bitExibirLoginUsuarios, bitImprimirEntrada) "
      "VALUES (2, 0, 0, 0)");
  for (const char* linha : {"1, 'Atacado'", "2, 'Consumidor'", "3, 'Revenda'"})
    programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (" + std::string(linha) + ")");
  auto& tela = dynamic_cast<TelaPaginada&>(programa.telas().obter("frmCadastroCategorias"));
  tela.ensureLoaded();
  TestHost& host = programa.hostDeTeste();
  const auto imprimir = [&] {
    host.expectScreen("frmOpcoesRelList", [&](Screen& opcoes) {
      host.expectBox(pergunta("Confirma a impressão?"), BoxAnswer::yes);
      opcoes.userKey(Key::f5);
    });
    tela.userKey(Key::f5);
    host.verify();
    return programa.pasta().ler("Cadastro de categorias.txt");
  };
  EXPECT_THAT(imprimir(), AllOf(HasSubstr("|Atacado "), HasSubstr("|Consumidor "), Not(HasSubstr("Revenda"))));
  tela.scrPaginas.userMove(1);
  EXPECT_THAT(imprimir(), AllOf(HasSubstr("|Revenda "), Not(HasSubstr("Atacado")), Not(HasSubstr("Consumidor"))));
}

TEST(TelasQueImprimem, AreAllInTheTable) {
  ProgramaDeTeste programa(vRegistrarTelas);
  std::vector<std::string> faltam;
  for (const std::string& nome : programa.telas().nomes()) {
    const bool conhecida =
        std::find(outras.begin(), outras.end(), nome) != outras.end() ||
        std::any_of(chamadores.begin(), chamadores.end(), [&](const Chamador& c) { return c.sTela == nome; });
    const auto& controles = programa.telas().obter(nome).controls();
    const bool imprime = std::any_of(controles.begin(), controles.end(),
                                     [](const Control* controle) { return controle->name().starts_with("cmdEmitir"); });
    if (imprime && !conhecida) faltam.push_back(nome);
  }
  EXPECT_THAT(faltam, testing::IsEmpty());
}

}  // namespace
}  // namespace fenvale

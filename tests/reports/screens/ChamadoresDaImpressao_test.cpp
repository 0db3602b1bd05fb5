// F5 on every screen with a list: the title and the width that it hands over are part of its design.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "access/services/Permissoes.h"
#include "app/Registro.h"
#include "platform/ui/ListView.h"
#include "reports/services/ListagemTexto.h"
#include "reports/services/OpcoesImpressaoList.h"
#include "shell/services/Tela.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

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
    // Also as it is printed: no column as it was designed, and no heading, is wider than the line.
    OpcoesImpressaoList opcoes;
    opcoes.vSetColunas(iColunas);
    opcoes.vSetList(lst);
    for (const auto iDimensionamento : std::initializer_list<std::int16_t>{0, 1}) {
      opcoes.vSetOpcaoDimensionamento(iDimensionamento);
      EXPECT_NO_THROW(vGerarListagem(opcoes, [](std::string_view) {})) << iDimensionamento;
    }
    pedidos.push_back(lst.screen().sGetName() + "." + lst.name() + " | " + sTitulo + " | " + std::to_string(iColunas));
  }
  std::vector<std::string> pedidos;
};

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

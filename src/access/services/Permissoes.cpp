#include "access/services/Permissoes.h"

#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/Tela.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

/// A button of the toolbar and the key whose right it follows.
struct BotaoBarra {
  int iLugar;
  const char* sChave;
};

constexpr BotaoBarra botoesBarra[] = {{1, "c5"}, {2, "c6"}, {3, "c7"}, {5, "c13"}, {6, "c14"}, {8, "p3"}};

/// Writes every right to the main window; `direito` tells the right of a key.
template <typename Direito>
void vAplicar(JanelaPrincipal& janela, Direito direito) {
  for (const ChaveMenu& chave : chavesMenu()) janela.vSetDireitoMenu(chave.sEntrada, direito(chave.sChave));
  for (const BotaoBarra& botao : botoesBarra) janela.vSetDireitoBotao(botao.iLugar, direito(botao.sChave));
}

}  // namespace

const std::vector<ChaveMenu>& chavesMenu() {
  static const std::vector<ChaveMenu> chaves = {
      {"c0", "mnuCadastroS", "Cadastros", ""},
      {"c1", "mnuEmpresaNova", "Nova Empresa", "c0"},
      {"c2", "mnuEmpresaAbrir", "Abrir Empresa", "c0"},
      {"c3", "mnuEmpresaBackup", "Backup de empresas", "c0"},
      {"c4", "mnuCadCategorias", "Categorias", "c0"},
      {"c5", "mnuCadClientes", "Clientes", "c0"},
      {"c6", "mnuCadFornecedores", "Fornecedores", "c0"},
      {"c7", "mnuCadastroPortadores", "Portadores", "c0"},
      {"c8", "mnuCadCondicoesPagamento", "Condições de pagamento", "c0"},
      {"c9", "mnuCadVendedores", "Vendedores", "c0"},
      {"c10", "mnuCadCentroCusto", "Centro de custo", "c0"},
      {"c11", "mnuCadFaturasClientes", "Faturas de clientes", "c0"},
      {"c12", "mnuCadFaturasFornecedores", "Faturas de fornecedores", "c0"},
      {"c13", "mnuCadTitulosReceber", "Títulos a receber", "c0"},
      {"c14", "mnuCadTitulosPagar", "Títulos a pagar", "c0"},
      {"c15", "mnuCadSistema", "Sistema", "c0"},
      {"c16", "mnuCadDadosEmpresa", "Dados da empresa", "c0"},
      {"c17", "mnuUsuarios", "Usuários", "c0"},
      {"c18", "mnuTrocarUsuario", "Trocar de usuário", "c0"},
      {"p0", "mnuProcessamentos", "Processamentos", ""},
      {"p1", "mnuTransferenciaVendedores", "Transferência entre vendedores", "p0"},
      {"p2", "mnuZerarTitulos", "Eliminação automática de títulos", "p0"},
      {"p3", "mnuQuadroGeralContas", "Quadro geral de contas", "p0"},
      {"e0", "mnuEmissoes", "Emissões", ""},
      {"e1", "mnuEmtirCarnesPromissorias", "Emissão de carnês e promissórias", "e0"},
      {"e2", "mnuEmissaoMalaDireta", "Mala direta", "e0"},
      {"e2a", "mnuEmissaoMalaDiretaCliente", "Clientes", "e2"},
      {"e2b", "mnuEmissaoMalaDiretaFornecedores", "Fornecedores", "e2"},
      {"e2c", "mnuEmissaoMalaDiretaAnivesariantes", "Aniversariantes", "e2"},
      {"e2d", "mnuEmissaoMalaDiretaCobranca", "Cobrança", "e2"},
      {"e3", "mnuImpressaoCheques", "Cheques", "e0"},
      {"e3a", "mnuImprimssaoCheque", "Impressão para títulos recebidos", "e3"},
      {"e3b", "mnuImprimssaoChequeTitulosPagar", "Impressão para títulos pagos", "e3"},
      {"e3c", "mnuImpremssaoChequeSimples", "Impressão simples", "e3"},
      {"e4", "mnuEmitirTitulos", "Títulos a receber", "e0"},
      {"l0", "mnuListagens", "Listagens", ""},
      {"l1", "mnuRelCadastros", "Cadastros", "l0"},
      {"l1a", "mnuRelClientes", "Clientes", "l1"},
      {"l1b", "mnuRelClientesCidade", "Clientes agrupados por cidade", "l1"},
      {"l1c", "mnuRelAniversariantes", "Aniversariantes", "l1"},
      {"l1d", "mnuRelFornecedores", "Fornecedores", "l1"},
      {"l1e", "mnuRelFornecedoresCidade", "Fornecedores agrupados por cidade", "l1"},
      {"l1f", "mnuRelPortadores", "Portadores", "l1"},
      {"l1g", "mnuRelCategorias", "Categorias", "l1"},
      {"l1h", "mnuRelVendedores", "Vendedores", "l1"},
      {"l1i", "mnuRelCondicoesPagamento", "Condições de pagamento", "l1"},
      {"l1j", "mnuRelCentroCustos", "Centro de custos", "l1"},
      {"l1k", "mnuRelCidades", "Cidades", "l1"},
      {"l1l", "mnuRelBancos", "Bancos", "l1"},
      {"l2", "mnuRelFaturas", "Faturas", "l0"},
      {"l2a", "mnuRelFaturasClientes", "Clientes", "l2"},
      {"l2b", "mnuRelFaturasFornecedores", "Fornecedores", "l2"},
      {"l3", "mnuRelTitulos", "Títulos", "l0"},
      {"l3a", "mnuRelTitulosEmitidos", "Emitidos", "l3"},
      {"l3b", "mnuRelTitulosEmitidosPortador", "Emitidos por portador", "l3"},
      {"l3c", "mnuRelTitulosReceber", "a receber", "l3"},
      {"l3d", "mnuRelTitulosRecebidos", "Recebidos", "l3"},
      {"l3e", "mnuRelTitulosPagar", "a pagar", "l3"},
      {"l3f", "mnuRelTitulosPagos", "Pagos", "l3"},
      {"l4", "mnuRelGerenciais", "Gerenciais", "l0"},
      {"l4a", "mnuRelClientesInativos", "Clientes inativos", "l4"},
      {"l4b", "mnuRelFornecedoresInativos", "Fornecedores inativos", "l4"},
      {"l4c", "mnuRelPosicaoGeralReceber", "Posição geral a receber", "l4"},
      {"l4d", "mnuRelPosicaoGeralPagar", "Posição geral a pagar", "l4"},
      {"l4e", "mnuRelPosicaoGeralConfrontamento", "Confrotamento da posição geral", "l4"},
      {"l4f", "mnuRelFluxoCaixa", "Fluxo de caixa", "l4"},
  };
  return chaves;
}

Permissoes::Permissoes(Contexto& contexto) : contexto_(contexto) { vDarTodosDireitos(); }

void Permissoes::vDarTodosDireitos() {
  bSalvar = bExcluir = bPesquisar = bImprimir = bAtualizar = true;
  sNomeUsuario = "DEFAULT NO NAMED";
  vAplicar(contexto_.janelaPrincipal(), [](std::string_view) { return true; });
}

bool Permissoes::bFazerLogin() try {
  const Recordset rs("SELECT bitExibirLoginUsuarios FROM Configuracoes", contexto_.dbConectar().Dados());
  if (rs.eof() || rs["bitExibirLoginUsuarios"].isNull() || rs["bitExibirLoginUsuarios"].toBoolean()) return true;
  vSetPermissoes(0);
  return false;
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "bFazerLogin");
  return true;
}

void Permissoes::vSetPermissoes(std::int32_t lCodigo) try {
  lCodigoUsuario = lCodigo;
  if (lCodigo == 0) {
    vDarTodosDireitos();
  } else {
    vLerDireitos();
  }
  contexto_.janelaPrincipal().vAtualizarBarraEstado();
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vSetPermissoes");
}

void Permissoes::vLerDireitos() {
  const Recordset rs("SELECT * FROM Usuarios WHERE lCodigo = " + std::to_string(lCodigoUsuario),
                     contexto_.dbConectar().Dados());
  if (rs.eof()) return;
  bSalvar = rs["bPoderSalvar"].toBoolean();
  bExcluir = rs["bPoderExcluir"].toBoolean();
  bPesquisar = rs["bPoderPesquisar"].toBoolean();
  bImprimir = rs["bPoderImprimir"].toBoolean();
  bAtualizar = rs["bPoderAtualizar"].toBoolean();
  sNomeUsuario = rs["sNomeUsuario"].toText();
  vAplicar(contexto_.janelaPrincipal(), [&rs](std::string_view sChave) { return rs[sChave].toBoolean(); });
}

bool Permissoes::bGetSalvar() { return bGetDireito(bSalvar); }
bool Permissoes::bGetExcluir() { return bGetDireito(bExcluir); }
bool Permissoes::bGetPesquisar() { return bGetDireito(bPesquisar); }
bool Permissoes::bGetImprimir() { return bGetDireito(bImprimir); }
bool Permissoes::bGetAtualizar() { return bGetDireito(bAtualizar); }

bool Permissoes::bGetDireito(bool bDireito) {
  if (!bDireito) {
    Caixas(contexto_.host())
        .avisar("Você não tem permissão para realizar esta operação.", "Controle de Ações de Usuários");
  }
  return bDireito;
}

}  // namespace fenvale

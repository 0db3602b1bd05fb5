#include "shell/screens/MenuPrincipal.h"

#include <algorithm>

namespace fenvale {

const std::vector<EntradaMenu>& entradasMenu() {
  // clang-format off
  static const std::vector<EntradaMenu> entradas{
      {"mnuCadastroS", "&Cadastros", "c0", "", Guarda::nenhuma, ""},
      {"mnuEmpresaNova", "Nova Empresa", "c1", "frmEmpresaNova", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuEmpresaAbrir", "Abrir Empresa", "c2", "frmEmpresaAbrir", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuEmpresaBackup", "Backup de empresas", "c3", "frmEmpresaBackup", Guarda::nenhuma, "mnuCadastroS"},
      {"mnu3", "-", "", "", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuCadCategorias", "Categorias", "c4", "frmCadastroCategorias", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadClientes", "Clientes", "c5", "frmCadastroClientes", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadFornecedores", "Fornecedores", "c6", "frmCadastroFornecedores", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadastroPortadores", "Portadores", "c7", "frmCadastroPortadores", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadCondicoesPagamento", "Condições de pagamento", "c8", "frmCadastroCondicoesPagamento", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadVendedores", "Vendedores", "c9", "frmCadastroVendedores", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadCentroCusto", "Centro de custo", "c10", "frmCadastroCentroCusto", Guarda::empresa, "mnuCadastroS"},
      {"mnuSep2", "-", "", "", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuCadFaturasClientes", "Faturas de clientes", "c11", "frmCadastroFaturasCliente", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadFaturasFornecedores", "Faturas de fornecedores", "c12", "frmCadastroFaturasFornecedor", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadTitulosReceber", "Títulos a receber", "c13", "frmCadastroTitulosReceber", Guarda::empresa, "mnuCadastroS"},
      {"mnuCadTitulosPagar", "Títulos a pagar", "c14", "frmCadastroTitulosPagar", Guarda::empresa, "mnuCadastroS"},
      {"mnuSep12", "-", "", "", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuCadSistema", "Sistema", "c15", "frmSistema", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuCadDadosEmpresa", "Dados da empresa", "c16", "frmEmpresa", Guarda::empresa, "mnuCadastroS"},
      {"mnuSep1", "-", "", "", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuUsuarios", "&Usuários", "c17", "frmCadastroUsuarios", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuTrocarUsuario", "Trocar de usuário", "c18", "frmLogin", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuSep", "-", "", "", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuSair", "&Sair", "", "", Guarda::nenhuma, "mnuCadastroS"},
      {"mnuProcessamentos", "Processamentos", "p0", "", Guarda::nenhuma, ""},
      {"mnuTransferenciaVendedores", "Transferência entre vendedores", "p1", "frmTransferenciaVendedores", Guarda::nenhuma, "mnuProcessamentos"},
      {"mnuZerarTitulos", "Eliminação automática de títulos", "p2", "frmZerarTitulos", Guarda::nenhuma, "mnuProcessamentos"},
      {"mnuSep11", "-", "", "", Guarda::nenhuma, "mnuProcessamentos"},
      {"mnuQuadroGeralContas", "Quadro geral de contas", "p3", "frmMostrarContas", Guarda::quadro, "mnuProcessamentos"},
      {"mnuEmissoes", "Emissões", "e0", "", Guarda::nenhuma, ""},
      {"mnuEmtirCarnesPromissorias", "Emissão de carnês e promissórias", "e1", "frmEmitirCarnesPromissorias", Guarda::empresa, "mnuEmissoes"},
      {"mnuSep4", "-", "", "", Guarda::nenhuma, "mnuEmissoes"},
      {"mnuEmissaoMalaDireta", "Mala direta", "e2", "", Guarda::nenhuma, "mnuEmissoes"},
      {"mnuEmissaoMalaDiretaCliente", "Clientes", "e2a", "frmMalaDiretaCliente", Guarda::empresa, "mnuEmissaoMalaDireta"},
      {"mnuEmissaoMalaDiretaFornecedores", "Fornecedores", "e2b", "frmMalaDiretaFornecedor", Guarda::empresa, "mnuEmissaoMalaDireta"},
      {"mnuEmissaoMalaDiretaAnivesariantes", "Aniversariantes", "e2c", "frmMalaDiretaAniversariantes", Guarda::empresa, "mnuEmissaoMalaDireta"},
      {"mnuSep10", "-", "", "", Guarda::nenhuma, "mnuEmissaoMalaDireta"},
      {"mnuEmissaoMalaDiretaCobranca", "Cobrança", "e2d", "frmMalaDiretaCobranca", Guarda::empresa, "mnuEmissaoMalaDireta"},
      {"mnuSep3", "-", "", "", Guarda::nenhuma, "mnuEmissoes"},
      {"mnuImpressaoCheques", "Cheques", "e3", "", Guarda::nenhuma, "mnuEmissoes"},
      {"mnuImprimssaoCheque", "Impressão para títulos recebidos", "e3a", "frmImpressaoCheques", Guarda::empresa, "mnuImpressaoCheques"},
      {"mnuImprimssaoChequeTitulosPagar", "Impressão para títulos pagos", "e3b", "frmImpressaoChequesTitulosPagar", Guarda::empresa, "mnuImpressaoCheques"},
      {"mnuImpremssaoChequeSimples", "Impressão simples", "e3c", "frmImpressaoChequesSimples", Guarda::empresa, "mnuImpressaoCheques"},
      {"mnuSep9", "-", "", "", Guarda::nenhuma, "mnuEmissoes"},
      {"mnuEmitirTitulos", "Títulos a receber", "e4", "frmEmitirTitulos", Guarda::empresa, "mnuEmissoes"},
      {"mnuListagens", "Listagens", "l0", "", Guarda::nenhuma, ""},
      {"mnuRelCadastros", "Cadastros", "l1", "", Guarda::nenhuma, "mnuListagens"},
      {"mnuRelClientes", "Clientes", "l1a", "frmRelClientes", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelClientesCidade", "Clientes agrupados por cidade", "l1b", "frmRelClientesCidade", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelAniversariantes", "Aniversariantes", "l1c", "frmRelAniversariantes", Guarda::empresa, "mnuRelCadastros"},
      {"mnuSep5", "-", "", "", Guarda::nenhuma, "mnuRelCadastros"},
      {"mnuRelFornecedores", "Fornecedores", "l1d", "frmRelFornecedores", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelFornecedoresCidade", "Fornecedores agrupados por cidade", "l1e", "frmRelFornecedoresCidade", Guarda::empresa, "mnuRelCadastros"},
      {"mnuSep6", "-", "", "", Guarda::nenhuma, "mnuRelCadastros"},
      {"mnuRelPortadores", "Portadores", "l1f", "frmRelPortadores", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelCategorias", "Categorias", "l1g", "frmRelCategorias", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelVendedores", "Vendedores", "l1h", "frmRelVendedores", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelCondicoesPagamento", "Condições de pagamento", "l1i", "frmRelCondicoesPagamento", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelCentroCustos", "Centro de custos", "l1j", "frmRelCentroCustos", Guarda::empresa, "mnuRelCadastros"},
      {"mnuSep7", "-", "", "", Guarda::nenhuma, "mnuRelCadastros"},
      {"mnuRelCidades", "Cidades", "l1k", "frmRelCidades", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelBancos", "Bancos", "l1l", "frmRelBancos", Guarda::empresa, "mnuRelCadastros"},
      {"mnuRelFaturas", "Faturas", "l2", "", Guarda::nenhuma, "mnuListagens"},
      {"mnuRelFaturasClientes", "Clientes", "l2a", "frmRelFaturasClientes", Guarda::empresa, "mnuRelFaturas"},
      {"mnuRelFaturasFornecedores", "Fornecedores", "l2b", "frmRelFaturasFornecedores", Guarda::empresa, "mnuRelFaturas"},
      {"mnuRelTitulos", "Títulos", "l3", "", Guarda::nenhuma, "mnuListagens"},
      {"mnuRelTitulosEmitidos", "Emitidos", "l3a", "frmRelTitulosEmitidos", Guarda::empresa, "mnuRelTitulos"},
      {"mnuRelTitulosEmitidosPortador", "Emitidos por portador", "l3b", "frmRelTitulosEmitidosPortador", Guarda::empresa, "mnuRelTitulos"},
      {"mnuRelTitulosReceber", "a receber", "l3c", "frmRelTitulosReceber", Guarda::empresa, "mnuRelTitulos"},
      {"mnuRelTitulosRecebidos", "Recebidos", "l3d", "frmRelTitulosRecebidos", Guarda::empresa, "mnuRelTitulos"},
      {"mnuRelTitulosPagar", "a pagar", "l3e", "frmRelTitulosPagar", Guarda::empresa, "mnuRelTitulos"},
      {"mnuRelTitulosPagos", "Pagos", "l3f", "frmRelTitulosPagos", Guarda::empresa, "mnuRelTitulos"},
      {"mnuRelGerenciais", "Gerenciais", "l4", "", Guarda::nenhuma, "mnuListagens"},
      {"mnuRelClientesInativos", "Clientes inativos", "l4a", "frmRelClientesInativos", Guarda::empresa, "mnuRelGerenciais"},
      {"mnuRelFornecedoresInativos", "Fornecedores inativos", "l4b", "frmRelFornecedoresInativos", Guarda::empresa, "mnuRelGerenciais"},
      {"mnuRelPosicaoGeralReceber", "Posição geral a receber", "l4c", "frmRelPosicaoGeralReceber", Guarda::empresa, "mnuRelGerenciais"},
      {"mnuRelPosicaoGeralPagar", "Posição geral a pagar", "l4d", "frmRelPosicaoGeralPagar", Guarda::empresa, "mnuRelGerenciais"},
      {"mnuRelPosicaoGeralConfrontamento", "Confrotamento da posição geral", "l4e", "frmRelPosicaoGeralConfrontamento", Guarda::empresa, "mnuRelGerenciais"},
      {"mnuSep8", "-", "", "", Guarda::nenhuma, "mnuRelGerenciais"},
      {"mnuRelFluxoCaixa", "Fluxo de caixa", "l4f", "frmRelFluxoCaixa", Guarda::empresa, "mnuRelGerenciais"},
      {"mnusobre", "A&juda", "", "", Guarda::nenhuma, ""},
      {"mnuabout", "&Sobre o Sistema", "", "frmSobreApp", Guarda::nenhuma, "mnusobre"},
  };
  // clang-format on
  return entradas;
}

const EntradaMenu* entradaMenu(std::string_view sNome) {
  const auto& entradas = entradasMenu();
  const auto achada = std::find_if(entradas.begin(), entradas.end(),
                                   [&](const EntradaMenu& entrada) { return entrada.sNome == sNome; });
  return achada == entradas.end() ? nullptr : &*achada;
}

const std::vector<BotaoBarra>& botoesBarra() {
  static const std::vector<BotaoBarra> botoes{
      {"CadastroClientes", "mnuCadClientes", "Clientes", "clientes"},
      {"CadastroFornecedores", "mnuCadFornecedores", "Fornecedores", "fornecedores"},
      {"CadastroPortadores", "mnuCadastroPortadores", "Portadores", "portadores"},
      {},
      {"TitulosReceber", "mnuCadTitulosReceber", "Títulos a receber", "receber"},
      {"TitulosPagar", "mnuCadTitulosPagar", "Títulos a pagar", "pagar"},
      {},
      {"QuadroGeral", "mnuQuadroGeralContas", "Quadro geral de contas", "quadro"},
      {},
      {"sair", "mnuSair", "Sair", "sair"},
  };
  return botoes;
}

}  // namespace fenvale

#include "demo/Cadastros.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

#include "access/services/Permissoes.h"
#include "exemplo/Pessoas.h"
#include "exemplo/Sorteio.h"
#include "platform/base/Error.h"
#include "platform/print/PrinterService.h"
#include "platform/sql/Store.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Contexto.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"
#include "store/services/Sistema.h"

namespace fenvale::demonstracao {
namespace {

using exemplo::Sorteio;

constexpr std::uint64_t semente = 2026;
constexpr std::uint32_t quantosClientes = 120;
constexpr std::uint32_t quantosFornecedores = 40;
constexpr const char* sNomeFirma = "Comercial Fenvale Ltda";

struct CidadeDaRegiao {
  const char* sNome;
  const char* sUF;
  exemplo::Praca praca;
};
/// The firm is in the first one, and so are most of its customers.
constexpr std::array<CidadeDaRegiao, 10> cidades{{{"Londrina", "PR", {86010000, 86089999, 43}},
                                                  {"Cambé", "PR", {86181000, 86194999, 43}},
                                                  {"Ibiporã", "PR", {86200000, 86200999, 43}},
                                                  {"Rolândia", "PR", {86600000, 86604999, 43}},
                                                  {"Arapongas", "PR", {86700000, 86709999, 43}},
                                                  {"Apucarana", "PR", {86800000, 86815999, 43}},
                                                  {"Maringá", "PR", {87010000, 87089999, 44}},
                                                  {"Curitiba", "PR", {80010000, 82999999, 41}},
                                                  {"São Paulo", "SP", {1001000, 5899999, 11}},
                                                  {"Presidente Prudente", "SP", {19010000, 19069999, 18}}}};

constexpr std::array<std::string_view, 6> categorias{"Consumidor final",      "Comércio varejista", "Indústria",
                                                     "Prestador de serviços", "Construtora",        "Órgão público"};
constexpr std::array<std::string_view, 5> categoriasFornecedores{"Fabricante", "Distribuidor", "Importador", "Serviços",
                                                                 "Transporte"};
/// Whose name tells that they do not make what they sell.
constexpr std::array<std::pair<std::string_view, std::string_view>, 8> categoriasPeloNome{
    {{"Atacado", "Distribuidor"},
     {"Comercial", "Distribuidor"},
     {"Distribuidora", "Distribuidor"},
     {"Gráfica", "Serviços"},
     {"Importadora", "Importador"},
     {"Laboratório", "Serviços"},
     {"Telecomunicações", "Serviços"},
     {"Transportadora", "Transporte"}}};
/// The numbers of the banks where suppliers have their accounts.
constexpr std::array<int, 7> bancos{1, 33, 41, 104, 237, 341, 756};
constexpr std::array<std::string_view, 4> centrosCusto{"Loja", "Vendas externas", "Oficina", "Assistência técnica"};
constexpr std::array<std::string_view, 4> portadores{"Carteira", "Banco do Brasil", "Caixa Econômica Federal", "Itaú"};
constexpr std::uint32_t quantosVendedores = 5;

constexpr std::array<CondicaoPagamento, 9> condicoes{{{0, 1, 0, false},
                                                      {0, 1, 30, false},
                                                      {0, 2, 30, false},
                                                      {0, 3, 30, false},
                                                      {0, 4, 28, false},
                                                      {0, 6, 30, false},
                                                      {0, 2, 30, true},
                                                      {0, 4, 30, true},
                                                      {0, 10, 30, true}}};

/// What the second user may not do: make and back up companies, change the settings of firm and company, make users,
/// purge titles.
constexpr std::array<std::string_view, 6> semDireito{"c1", "c3", "c15", "c16", "c17", "p2"};

std::int32_t lCidade(Connection& conexao, const CidadeDaRegiao& cidade) {
  const Recordset rs(
      "SELECT lCodigo FROM Cidades WHERE sNome = " + sTexto(cidade.sNome) + " AND sUF = " + sTexto(cidade.sUF),
      conexao);
  if (rs.eof()) throw Error(errors::noCurrentRecord, std::string("A cidade ") + cidade.sNome + " não foi encontrada.");
  return rs.field("lCodigo").toLong();
}

std::int32_t lBanco(Connection& conexao, int iNumero) {
  const Recordset rs("SELECT lCodigo FROM Bancos WHERE iCodigoInf = " + std::to_string(iNumero), conexao);
  if (rs.eof())
    throw Error(errors::noCurrentRecord, "O banco de número " + std::to_string(iNumero) + " não foi encontrado.");
  return rs.field("lCodigo").toLong();
}

void vCadastrarUsuario(Connection& conexao, const std::string& sNome, const std::string& sSenha, bool bTudo) {
  ValoresSQL valores{{"sNomeUsuario", sTexto(sNome)},
                     {"sLogin", sTexto(sNome)},
                     {"sSenha", sTexto(sSenha)},
                     {"bPoderSalvar", "-1"},
                     {"bPoderExcluir", bTudo ? "-1" : "0"},
                     {"bPoderPesquisar", "-1"},
                     {"bPoderImprimir", "-1"},
                     {"bPoderAtualizar", "-1"}};
  for (const ChaveMenu& chave : chavesMenu()) {
    const bool bNegado = std::find(semDireito.begin(), semDireito.end(), chave.sChave) != semDireito.end();
    valores.emplace_back(chave.sChave, bTudo || !bNegado ? "-1" : "0");
  }
  vExecutar(conexao, sComandoInclusao("Usuarios", valores));
}

/// Firm and company are the same house.
ValoresSQL dadosDaFirma(Connection& conexao) {
  return {{"sNome", sTexto(sNomeFirma)},
          {"sEndereco", sTexto("Rua Sergipe, 1250")},
          {"sBairro", sTexto("Centro")},
          {"sCEP", sTexto("86010-370")},
          {"lCidade", std::to_string(lCidade(conexao, cidades.front()))},
          {"sCNPJ", sTexto(exemplo::sCNPJCom(11222333))},
          {"sTelefone", sTexto("(43) 3321-4500")},
          {"sFax", sTexto("(43) 3321-4501")},
          {"sEMail", sTexto("contato@fenvale.example")}};
}

/// Stores a row with the next free code and answers its key.
std::int32_t lIncluir(Contexto& contexto, const std::string& sTabela, const std::string& sCampoCodigo,
                      ValoresSQL valores) {
  Connection& dados = contexto.dbEmpresa().Dados();
  valores.insert(valores.begin(),
                 {sCampoCodigo, Sistema(contexto).sGetProximoCodigoNumerico(sTabela, sCampoCodigo, 0, true)});
  vExecutar(dados, sComandoInclusao(sTabela, valores));
  return Recordset("SELECT MAX(lCodigo) AS Valor FROM " + sTabela, dados).field("Valor").toLong();
}

template <std::size_t N>
std::vector<std::int32_t> incluirNomes(Contexto& contexto, const char* sTabela, const char* sCampo,
                                       const std::array<std::string_view, N>& nomes) {
  std::vector<std::int32_t> chaves;
  chaves.reserve(N);
  for (const std::string_view sNome : nomes)
    chaves.push_back(lIncluir(contexto, sTabela, "btCodigoInf", {{sCampo, sTexto(std::string(sNome))}}));
  return chaves;
}

ValoresSQL valoresPessoa(const exemplo::Pessoa& p) {
  return {{"sNome", sTexto(p.sNome)},         {"sEndereco", sTexto(p.sEndereco)},
          {"sCEP", sTexto(p.sCEP)},           {"sTelefone", sTexto(p.sTelefone)},
          {"sFax", sTexto(p.sFax)},           {"sContato", sTexto(p.sContato)},
          {"sCPF", sTexto(p.sCPF)},           {"sIE", sTexto(p.sIE)},
          {"sCNPJ", sTexto(p.sCNPJ)},         {"sEmail", sTexto(p.sEmail)},
          {"sHomePage", sTexto(p.sHomePage)}, {"txtObs", sTexto(p.txtObs)}};
}

ValoresSQL valoresCliente(const exemplo::Cliente& c) {
  ValoresSQL valores = valoresPessoa(c);
  valores.insert(valores.end(), {{"fLimiteCredito", Validacoes::sGetFloatSQL(c.fLimiteCredito)},
                                 {"sBairro", sTexto(c.sBairro)},
                                 {"sRG", sTexto(c.sRG)},
                                 {"sPai", sTexto(c.sPai)},
                                 {"sMae", sTexto(c.sMae)},
                                 {"dtNascimento", "#" + Validacoes::sGetDataSQL(c.dtNascimento) + "#"},
                                 {"sEnderecoEntrega", sTexto(c.sEnderecoEntrega)},
                                 {"sBairroEntrega", sTexto(c.sBairroEntrega)},
                                 {"sCEPEntrega", sTexto(c.sCEPEntrega)},
                                 {"sEnderecoCobranca", sTexto(c.sEnderecoCobranca)},
                                 {"sBairroCobranca", sTexto(c.sBairroCobranca)},
                                 {"sCEPCobranca", sTexto(c.sCEPCobranca)}});
  return valores;
}

std::vector<std::int32_t> chavesDasCidades(Connection& dados) {
  std::vector<std::int32_t> chaves;
  chaves.reserve(cidades.size());
  for (const CidadeDaRegiao& cidade : cidades) chaves.push_back(lCidade(dados, cidade));
  return chaves;
}

std::vector<std::int32_t> incluirClientes(Contexto& contexto, const std::vector<std::int32_t>& chavesCategorias,
                                          const std::vector<std::int32_t>& chavesVendedores) {
  Sistema sistema(contexto);
  const std::vector<std::int32_t> chavesCidades = chavesDasCidades(contexto.dbEmpresa().Dados());
  std::vector<std::int32_t> clientes;
  for (std::uint32_t i = 0; i < quantosClientes; ++i) {
    Sorteio sorteio(semente, 20, i);
    // One customer in ten was stored without a category, one in eight without a salesperson; half of them live where
    // the firm is.
    const std::int32_t lCategoria =
        sorteio.porCento(10) ? sistema.lGetCategoriaPadrao() : sorteio.umDe(chavesCategorias);
    const std::int32_t lVendedor = sorteio.porCento(12) ? sistema.lGetVendedorPadrao() : sorteio.umDe(chavesVendedores);
    const std::size_t onde = sorteio.porCento(50) ? 0 : sorteio.ate(cidades.size());
    ValoresSQL valores = valoresCliente(exemplo::cliente(semente, i, cidades.at(onde).praca));
    for (const char* sCampo : {"lCidade", "lCidadeEntrega", "lCidadeCobranca"})
      valores.emplace_back(sCampo, std::to_string(chavesCidades.at(onde)));
    valores.emplace_back("lCategoria", std::to_string(lCategoria));
    valores.emplace_back("lVendedor", std::to_string(lVendedor));
    clientes.push_back(lIncluir(contexto, "Clientes", "lCodigoInf", std::move(valores)));
  }
  return clientes;
}

/// The place of the supplier's category.
std::size_t categoriaDe(const exemplo::Fornecedor& fornecedor) {
  std::string_view sCategoria = fornecedor.bEmpresa ? "Fabricante" : "Serviços";
  for (const auto& [sInicio, sDeQuemComecaAssim] : categoriasPeloNome)
    if (fornecedor.bEmpresa && fornecedor.sNome.starts_with(sInicio)) sCategoria = sDeQuemComecaAssim;
  return static_cast<std::size_t>(
      std::distance(categoriasFornecedores.begin(),
                    std::find(categoriasFornecedores.begin(), categoriasFornecedores.end(), sCategoria)));
}

std::vector<std::int32_t> incluirFornecedores(Contexto& contexto) {
  const auto chavesCategorias = incluirNomes(contexto, "Categorias", "sNome", categoriasFornecedores);
  Connection& dados = contexto.dbEmpresa().Dados();
  const std::vector<std::int32_t> chavesCidades = chavesDasCidades(dados);
  std::vector<std::int32_t> chavesBancos;
  chavesBancos.reserve(bancos.size());
  for (const int iNumero : bancos) chavesBancos.push_back(lBanco(dados, iNumero));
  std::vector<std::int32_t> fornecedores;
  fornecedores.reserve(quantosFornecedores);
  for (std::uint32_t i = 0; i < quantosFornecedores; ++i) {
    Sorteio sorteio(semente, 21, i);
    const std::size_t onde = sorteio.ate(cidades.size());
    const exemplo::Fornecedor fornecedor = exemplo::fornecedor(semente, i, cidades.at(onde).praca);
    ValoresSQL valores = valoresPessoa(fornecedor);
    valores.insert(valores.end(), {{"sAgencia", sTexto(fornecedor.sAgencia)},
                                   {"sConta", sTexto(fornecedor.sConta)},
                                   {"lCategoria", std::to_string(chavesCategorias.at(categoriaDe(fornecedor)))},
                                   {"lCidade", std::to_string(chavesCidades.at(onde))},
                                   {"lBanco", std::to_string(sorteio.umDe(chavesBancos))}});
    fornecedores.push_back(lIncluir(contexto, "Fornecedores", "lCodigoInf", std::move(valores)));
  }
  return fornecedores;
}

}  // namespace

std::string sTexto(const std::string& sValor) { return "'" + Validacoes::sGetStringSQL(sValor) + "'"; }

void vExecutar(Connection& conexao, const std::string& sSQL) {
  Recordset(sSQL, conexao, CursorType::dynamic, LockType::pessimistic);
}

void vCadastrarPrograma(Contexto& contexto) {
  Connection& dados = contexto.dbConectar().Dados();
  vCadastrarUsuario(dados, "ADMINISTRADOR", "admin", true);
  vCadastrarUsuario(dados, "MARIA", "maria", false);

  ValoresSQL firma = dadosDaFirma(dados);
  firma.insert(firma.end(), {{"fPercentualJurosDia", "0.033"},
                             {"fPercentualJurosMes", "1"},
                             {"btOpcaoReparcelamento", "1"},
                             {"bitMostrarContasPagarDia", "-1"},
                             {"bitMostrarContasReceberDia", "-1"},
                             {"bitMostrarContasVencidasPagar", "-1"},
                             {"bitMostrarContasVencidasReceber", "-1"}});
  vExecutar(dados, sComandoInclusao("Sistema", firma));
  vExecutar(dados, sComandoInclusao("Configuracoes", {{"sSMTP", sTexto("smtp.fenvale.example")},
                                                      {"sEmailRementente", sTexto("contato@fenvale.example")},
                                                      {"sUID", "''"},
                                                      {"sPWD", "''"},
                                                      {"bitAutenticacao", "0"},
                                                      {"lTamanhoPagina", "100"},
                                                      {"bitExibirLoginUsuarios", "0"},
                                                      {"sNomeImpressora", sTexto(pdfPrinterName)},
                                                      {"bitImprimirEntrada", "-1"}}));
}

void vCadastrarDadosEmpresa(Contexto& contexto) {
  Connection& dados = contexto.dbEmpresa().Dados();
  ValoresSQL valores = dadosDaFirma(dados);
  valores.insert(valores.end(), {{"txtCaminhoFigura", "''"}, {"txtFiguraPromissoria", "''"}, {"sCPF", "''"}});
  vExecutar(dados, sComandoInclusao("DadosEmpresa", valores));
}

Registros cadastrarEmpresa(Contexto& contexto) {
  Registros registros;
  const auto chavesCategorias = incluirNomes(contexto, "Categorias", "sNome", categorias);
  registros.centrosCusto = incluirNomes(contexto, "CentroCusto", "sDescricao", centrosCusto);
  registros.centrosCusto.push_back(Sistema(contexto).lGetCentroCustoPadrao());
  registros.portadores = incluirNomes(contexto, "Portadores", "sNome", portadores);
  for (std::uint32_t i = 0; i < quantosVendedores; ++i)
    registros.vendedores.push_back(
        lIncluir(contexto, "Vendedores", "lCodigoInf", {{"sNome", sTexto(exemplo::sNomePessoa(semente, i))}}));
  for (CondicaoPagamento condicao : condicoes) {
    condicao.lCodigo = lIncluir(contexto, "CondicoesPagamento", "btCodigoInf",
                                {{"iNumeroParcelas", std::to_string(condicao.iNumeroParcelas)},
                                 {"iIntervalo", std::to_string(condicao.iIntervalo)},
                                 {"bitEntrada", condicao.bEntrada ? "-1" : "0"}});
    registros.condicoes.push_back(condicao);
  }
  registros.clientes = incluirClientes(contexto, chavesCategorias, registros.vendedores);
  registros.fornecedores = incluirFornecedores(contexto);
  return registros;
}

}  // namespace fenvale::demonstracao

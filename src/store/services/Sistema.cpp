#include "store/services/Sistema.h"

#include <functional>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/Tela.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "shell/services/TratadorExcessoes.h"
#include "shell/services/Validacoes.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/XML.h"

namespace fenvale {
namespace {

/// How a hidden default row is recognised and made.
struct LinhaPadrao {
  const char* sFuncao;
  const char* sTabela;
  const char* sCampoCodigo;
  const char* sCondicao;
  const char* sCampos;   ///< behind the code
  const char* sValores;  ///< of those fields
};

constexpr LinhaPadrao condicaoPadrao{"lGetCondicaoPagamentoPadrao",
                                     "CondicoesPagamento",
                                     "btCodigoInf",
                                     "iNumeroParcelas = 1",
                                     "iNumeroParcelas, iIntervalo, bitEntrada",
                                     "1, 0, 0"};
constexpr LinhaPadrao centroCustoPadrao{"lGetCentroCustoPadrao", "CentroCusto", "btCodigoInf",
                                        "sDescricao = ''",       "sDescricao",  "''"};
constexpr LinhaPadrao categoriaPadrao{"lGetCategoriaPadrao", "Categorias", "btCodigoInf", "sNome = ''", "sNome", "''"};
constexpr LinhaPadrao vendedorPadrao{"lGetVendedorPadrao", "Vendedores", "lCodigoInf", "sNome = ''", "sNome", "''"};

std::int32_t lGetLinhaPadrao(Contexto& contexto, const LinhaPadrao& linha) try {
  Connection& dados = contexto.dbEmpresa().Dados();
  const std::string sOnde = std::string(" FROM ") + linha.sTabela + " WHERE " + linha.sCondicao;
  {
    const Recordset rs("SELECT lCodigo" + sOnde + " ORDER BY lCodigo ", dados, CursorType::dynamic,
                       LockType::pessimistic);
    if (!rs.eof()) return rs.field("lCodigo").toLong();
  }
  const std::string sCodigo = Sistema(contexto).sGetProximoCodigoNumerico(linha.sTabela, linha.sCampoCodigo, 0, true);
  const Recordset insercao(std::string("INSERT INTO ") + linha.sTabela + " (" + linha.sCampoCodigo + ", " +
                               linha.sCampos + ") VALUES (" + sCodigo + ", " + linha.sValores + ") ",
                           dados, CursorType::dynamic, LockType::pessimistic);
  const Recordset rs("SELECT MAX(lCodigo) AS Valor" + sOnde + " GROUP BY lCodigo ORDER BY lCodigo ", dados,
                     CursorType::dynamic, LockType::pessimistic);
  return rs.field("Valor").toLong();
} catch (const Error& falha) {
  contexto.tratadorExcessoes().vExibirGravarLogErro(falha, Sistema::sGetName(), linha.sFuncao);
  return 0;
}

/// What a seed file holds and the statement that one of its elements becomes.
struct Semente {
  const char* sFuncao;
  const char* sTabela;
  const char* sElemento;
  const char* sArquivo;
  const char* sNomeNaLegenda;
  std::string (*sInsercao)(const XmlElement&);
};

std::string sTextoFilho(const XmlElement& elemento, std::size_t lugar) {
  if (lugar >= elemento.children.size())
    throw Error(errors::objectNotSet, "O elemento " + elemento.name + " está incompleto.");
  return Validacoes::sGetStringSQL(elemento.children[lugar]);
}

const Semente sementeCidades{
    "vPovoarRelacaoCidades", "Cidades", "Cid", "Cidades.XML", "Cidades", [](const XmlElement& elemento) {
      const std::string sNome = sTextoFilho(elemento, 1);
      return "INSERT INTO Cidades (sNome, sUF) VALUES ('" + sNome + "', '" + sTextoFilho(elemento, 0) + "')";
    }};
const Semente sementeBancos{
    "vPovoarRelacaoBancos", "Bancos", "bc", "Bancos.XML", "Bancos", [](const XmlElement& elemento) {
      const std::string sNome = sTextoFilho(elemento, 1);
      return "INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('" + sNome + "', '" + sTextoFilho(elemento, 0) + "')";
    }};

/// All rows or none: a seed that stopped half-way would count as done for ever.
void vInserirTudo(Contexto& contexto, Connection& dados, const std::string& sCaminho, const Semente& semente) {
  const XmlDocument documento = XML(contexto).docPrepararArquivoNecessario(sCaminho);
  const auto elementos = documento.elements(semente.sElemento);
  if (elementos.empty()) return;
  dados.beginTrans();
  try {
    for (const XmlElement& elemento : elementos) {
      contexto.host().doEvents();
      if (!elemento.children.empty()) Recordset(semente.sInsercao(elemento), dados);
    }
    dados.commitTrans();
  } catch (const Error&) {
    if (dados.transactionLevel() > 0) dados.rollbackTrans();
    throw;
  }
}

void vPovoar(Contexto& contexto, const std::string& sCaminho, bool bEmpresa, const Semente& semente) try {
  vInserirTudo(contexto, bEmpresa ? contexto.dbEmpresa().Dados() : contexto.dbConectar().Dados(), sCaminho, semente);
  if (contexto.telas().bExiste("frmMensagem")) contexto.telas().obter<TelaMensagem>("frmMensagem").vFechar();
} catch (const Error& falha) {
  if (falha.number == errors::refused || falha.number == errors::objectNotSet)
    BancoDados(contexto).vFalhaAtualizacao(falha.description);
  contexto.tratadorExcessoes().vExibirGravarLogErro(falha, Sistema::sGetName(), semente.sFuncao);
}

bool bVazia(Connection& dados, const Semente& semente) {
  const Recordset rs(std::string("SELECT COUNT(lCodigo) AS Cont FROM ") + semente.sTabela + " ", dados);
  return rs.field("Cont").toLong() == 0;
}

void vPovoarComLegenda(Contexto& contexto, bool bEmpresa, const Semente& semente) {
  JanelaPrincipal& janela = contexto.janelaPrincipal();
  const std::string sLegenda = janela.sGetLegenda();
  janela.vSetLegenda(sLegenda + " - Aguarde, povoando a relação de " + semente.sNomeNaLegenda + "...");
  vPovoar(contexto, contexto.sGetCaminhoAplicacao() + files::separator + semente.sArquivo, bEmpresa, semente);
  janela.vSetLegenda(sLegenda);
}

}  // namespace

Sistema::Sistema(Contexto& contexto) : contexto_(contexto) {}

bool Sistema::bExisteCampo(const std::string& sValor, const std::string& sTabela, const std::string& sCampo,
                           std::int32_t lCodigo) try {
  if (sValor.empty()) return false;
  const Recordset rs(
      "SELECT lCodigo FROM " + sTabela + " WHERE " + sCampo + " = '" + Validacoes::sGetStringSQL(sValor) + "' ",
      contexto_.dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
  return !rs.eof() && rs.field("lCodigo").toLong() != lCodigo;
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "bExisteCampo");
  return false;
}

std::string Sistema::sGetProximoCodigoNumerico(const std::string& sTabela, const std::string& sCampo,
                                               std::int32_t lValorBase, bool bEmpresa) try {
  const Recordset rs("SELECT (MAX(" + sCampo + ") + 1) AS Valor FROM " + sTabela,
                     bEmpresa ? contexto_.dbEmpresa().Dados() : contexto_.dbConectar().Dados());
  return std::to_string(rs.field("Valor").toLong());
} catch (const Error& falha) {
  if (falha.number == errors::invalidUseOfNull) return std::to_string(std::int64_t{lValorBase} + 1);
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "sGetProximoCodigoNumerico");
  return {};
}

std::int32_t Sistema::lGetCondicaoPagamentoPadrao() { return lGetLinhaPadrao(contexto_, condicaoPadrao); }
std::int32_t Sistema::lGetCentroCustoPadrao() { return lGetLinhaPadrao(contexto_, centroCustoPadrao); }
std::int32_t Sistema::lGetCategoriaPadrao() { return lGetLinhaPadrao(contexto_, categoriaPadrao); }
std::int32_t Sistema::lGetVendedorPadrao() { return lGetLinhaPadrao(contexto_, vendedorPadrao); }

void Sistema::vCadastrarCidades(bool bEmpresa, bool bMensagem) try {
  if (!bVazia(bEmpresa ? contexto_.dbEmpresa().Dados() : contexto_.dbConectar().Dados(), sementeCidades)) return;
  if (bMensagem) {
    contexto_.telas()
        .obter<TelaMensagem>("frmMensagem")
        .vCarregar("Aguarde, povoando a relação de Cidades...", bEmpresa);
    return;
  }
  Caixas(contexto_.host())
      .informar("A relação de Cidades será povoada. Esta operação poderá demorar alguns instantes." +
                std::string(lineBreak) + "Por favor, aguarde...");
  vPovoarComLegenda(contexto_, bEmpresa, sementeCidades);
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vCadastrarCidades");
}

void Sistema::vPovoarRelacaoCidades(const std::string& sCaminho, bool bEmpresa) {
  vPovoar(contexto_, sCaminho, bEmpresa, sementeCidades);
}

void Sistema::vCadastrarBancos() try {
  if (bVazia(contexto_.dbEmpresa().Dados(), sementeBancos)) vPovoarComLegenda(contexto_, true, sementeBancos);
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vCadastrarBancos");
}

void Sistema::vPovoarRelacaoBancos(const std::string& sCaminho) { vPovoar(contexto_, sCaminho, true, sementeBancos); }

}  // namespace fenvale

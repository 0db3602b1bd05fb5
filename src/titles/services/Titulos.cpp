#include "titles/services/Titulos.h"

#include "platform/base/Checked.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

Recordset abrir(Contexto& contexto, const std::string& sSQL) {
  return Recordset(sSQL, contexto.dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
}

std::string sOnde(const std::string& sCampo, std::int32_t lCodigo) {
  return " WHERE " + sCampo + " = " + std::to_string(lCodigo);
}

}  // namespace

Titulos::Titulos(Contexto& contexto) : contexto_(contexto) {}

std::int32_t Titulos::lGetCodigoFaturaCliente(const std::string& sCodigoInf) {
  return abrir(contexto_, "SELECT lFaturaCliente FROM TitulosReceber WHERE sCodigoInf = '" +
                              Validacoes::sGetStringSQL(sCodigoInf) + "'")
      .field("lFaturaCliente")
      .toLong();
}

std::int32_t Titulos::lGetCodigoFaturaFornecedor(const std::string& sCodigoInf) {
  return abrir(contexto_, "SELECT lFaturaFornecedor FROM TitulosPagar WHERE sCodigoInf = '" +
                              Validacoes::sGetStringSQL(sCodigoInf) + "'")
      .field("lFaturaFornecedor")
      .toLong();
}

std::int16_t Titulos::iGetNumeroTitulosFatura(const std::string& sTabela, const std::string& sCampo,
                                              std::int32_t lCodigo, std::int16_t iAcrescimo) {
  const Recordset rs = abrir(contexto_, "SELECT lCodigo FROM " + sTabela + sOnde(sCampo, lCodigo));
  return toInt16(std::int64_t{rs.recordCount()} + iAcrescimo);
}

Currency Titulos::fGetValorRestanteRecPagFatura(const std::string& sTabela, const std::string& sCampo,
                                                std::int32_t lCodigo, Currency fValor) {
  const Recordset rs = abrir(contexto_, "SELECT IIF(ISNULL(SUM(fValorPago)), 0, SUM(fValorPago)) AS ValorPago FROM " +
                                            sTabela + sOnde(sCampo, lCodigo));
  return rs.eof() ? fValor : fValor - rs.field("ValorPago").toCurrency();
}

bool Titulos::bVerificarCondicaoPagamento(std::int32_t lCondicoesPagamento, const std::string& sTabela,
                                          std::int32_t lCodigo) {
  const Recordset rs = abrir(contexto_, "SELECT lCondicoesPagamento FROM " + sTabela + sOnde("lCodigo", lCodigo));
  return !rs.eof() && rs.field("lCondicoesPagamento").toLong() == lCondicoesPagamento;
}

std::uint8_t Titulos::btGetOpcaoReparcelamento() {
  const Recordset rs("SELECT btOpcaoReparcelamento FROM Sistema ", contexto_.dbConectar().Dados());
  return rs.eof() ? std::uint8_t{0} : rs.field("btOpcaoReparcelamento").toByte();
}

std::int16_t Titulos::iGetNumeroProximoRefaturamento(const std::string& sTabela, const std::string& sCampo,
                                                     std::int32_t lCodigo) {
  const Recordset rs =
      abrir(contexto_, "SELECT lCodigo FROM " + sTabela + sOnde(sCampo, lCodigo) + " AND MID(sCodigoInf, 8, 1) = 'R' ");
  return toInt16(std::int64_t{rs.recordCount()} + 1);
}

std::int16_t Titulos::iGetNumeroTitulosNaoPagos(const std::string& sTabela, const std::string& sCampo,
                                                std::int32_t lCodigo) {
  const Recordset rs =
      abrir(contexto_, "SELECT lCodigo FROM " + sTabela + sOnde(sCampo, lCodigo) + " AND (fValorPago <= 0) ");
  return toInt16(rs.recordCount());
}

Currency Titulos::fGetValorFatura(const std::string& sTabela, std::int32_t lCodigo) {
  const Recordset rs = abrir(contexto_, "SELECT fTotal FROM " + sTabela + sOnde("lCodigo", lCodigo));
  return rs.eof() ? Currency() : rs.field("fTotal").toCurrency();
}

Currency Titulos::fGetValorTotalTitulosFatura(const std::string& sTabela, const std::string& sCampo,
                                              std::int32_t lCodigo) {
  const Recordset rs = abrir(
      contexto_, "SELECT IIF(ISNULL(SUM(fValor)), 0, SUM(fValor)) AS Valor FROM " + sTabela + sOnde(sCampo, lCodigo));
  return rs.eof() ? Currency() : rs.field("Valor").toCurrency();
}

}  // namespace fenvale

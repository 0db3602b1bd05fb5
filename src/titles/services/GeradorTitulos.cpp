#include "titles/services/GeradorTitulos.h"

#include "platform/base/Checked.h"
#include "platform/sql/Store.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Contexto.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"
#include "store/services/Sistema.h"
#include "titles/services/Lado.h"

namespace fenvale {
namespace {

std::string sData(Date dtData) { return "#" + Validacoes::sGetDataSQL(dtData) + "#"; }

}  // namespace

GeradorTitulos::GeradorTitulos(Contexto& contexto, const Lado& lado)
    : contexto_(contexto), lado_(lado), titulos_(contexto) {}

void GeradorTitulos::vExecutar(const std::string& sSQL) {
  Recordset rs;
  rs.open(sSQL, contexto_.dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
}

void GeradorTitulos::vInserir(std::int32_t lFatura, const std::string& sCodigo, const TituloDaSerie& titulo,
                              Date dtPagamento) {
  vExecutar(sComandoInclusao(lado_.sTitulos, {{"sCodigoInf", "'" + sCodigo + "'"},
                                              {"dtVencimento", sData(titulo.dtVencimento)},
                                              {"fValor", Validacoes::sGetFloatSQL(titulo.fValor)},
                                              {"dtPagamento", sData(dtPagamento)},
                                              {"fValorPago", Validacoes::sGetFloatSQL(titulo.fValorPago)},
                                              {"fJuros", "0"},
                                              {"fDesconto", "0"},
                                              {"lNF", "0"},
                                              {"sObs", "''"},
                                              {lado_.sLigacao, std::to_string(lFatura)}}));
}

std::vector<std::int32_t> GeradorTitulos::titulosAbertos(std::int32_t lFatura, const std::string& sCondicao) {
  std::vector<std::int32_t> chaves;
  Recordset rs("SELECT lCodigo FROM " + lado_.sTitulos + " WHERE " + lado_.sLigacao + " = " + std::to_string(lFatura) +
                   " AND (fValorPago <= 0) " + sCondicao,
               contexto_.dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
  for (; !rs.eof(); rs.moveNext()) chaves.push_back(rs.field("lCodigo").toLong());
  return chaves;
}

void GeradorTitulos::vGravarValores(const std::vector<std::int32_t>& titulos, const std::vector<Currency>& valores) {
  for (std::size_t i = 0; i < titulos.size(); ++i)
    vExecutar(sComandoAlteracao(lado_.sTitulos, {{"fValor", Validacoes::sGetFloatSQL(valores[i])}}, titulos[i]));
}

std::int32_t GeradorTitulos::lGetCodigoUltimaFatura() {
  return toInt32(
      std::int64_t{readInt32(Sistema(contexto_).sGetProximoCodigoNumerico(lado_.sFaturas, "lCodigo", 0, true))} - 1);
}

Currency GeradorTitulos::fGetValorPago(std::int32_t lFatura) {
  return -titulos_.fGetValorRestanteRecPagFatura(lado_.sTitulos, lado_.sLigacao, lFatura, Currency());
}

void GeradorTitulos::vCriarTitulosFatura(std::int32_t& lFatura, const DadosSerie& dados) {
  const std::vector<TituloDaSerie> serie = serieTitulos(dados);
  if (lFatura <= 0) lFatura = lGetCodigoUltimaFatura();
  vExecutar("DELETE * FROM " + lado_.sTitulos + " WHERE " + lado_.sLigacao + " = " + std::to_string(lFatura));
  std::int32_t iParcela = 0;
  for (const TituloDaSerie& titulo : serie)
    vInserir(lFatura, sCodigoTitulo(lFatura, ++iParcela), titulo, titulo.dtVencimento);
}

bool GeradorTitulos::bSemTitulos(std::int32_t lFatura) {
  return lFatura == -1 || titulos_.iGetNumeroTitulosFatura(lado_.sTitulos, lado_.sLigacao, lFatura, 0) == 0;
}

void GeradorTitulos::vReajustarTitulosFatura(std::int32_t& lFatura, const DadosSerie& dados) {
  if (bSemTitulos(lFatura)) return vCriarTitulosFatura(lFatura, dados);

  const Currency fRestante =
      titulos_.fGetValorRestanteRecPagFatura(lado_.sTitulos, lado_.sLigacao, lFatura, dados.fTotal);
  const std::vector<std::int32_t> abertos = titulosAbertos(lFatura);
  if (!abertos.empty()) return vGravarValores(abertos, repartir(fRestante, toInt32(std::ssize(abertos))));

  const Date dtHoje = contexto_.relogio().today();
  const std::int16_t iNumero = titulos_.iGetNumeroTitulosFatura(lado_.sTitulos, lado_.sLigacao, lFatura, 1);
  vInserir(lFatura, sCodigoTituloAcrescentado(lFatura, iNumero), {dtHoje, fRestante, Currency()}, dtHoje);
}

void GeradorTitulos::vPagarTitulosFatura(std::int32_t lFatura, Currency fValorPago) {
  vExecutar("UPDATE " + lado_.sTitulos + " SET fValorPago = " + Validacoes::sGetFloatSQL(fValorPago) + " WHERE " +
            lado_.sLigacao + " = " + std::to_string(lFatura) + " AND (fValorPago <= 0) ");
}

void GeradorTitulos::vAbaterTitulos(std::int32_t lFatura, std::int32_t lTitulo) {
  const Currency fSoma = titulos_.fGetValorTotalTitulosFatura(lado_.sTitulos, lado_.sLigacao, lFatura);
  const Currency fRestante = titulos_.fGetValorRestanteRecPagFatura(lado_.sTitulos, lado_.sLigacao, lFatura, fSoma);
  const std::vector<std::int32_t> outros = titulosAbertos(lFatura, "AND lCodigo <> " + std::to_string(lTitulo));
  vGravarValores(outros, repartir(fRestante, toInt32(std::ssize(outros))));
}

void GeradorTitulos::vCriarTituloComplementar(std::int32_t lFatura, Date dtVencimento, Currency fValor,
                                              Currency fValorPago) {
  const Currency fResto = fValor - fValorPago;
  if (fValorPago <= Currency() || fResto <= Currency()) return;
  const std::int16_t iNumero = titulos_.iGetNumeroProximoRefaturamento(lado_.sTitulos, lado_.sLigacao, lFatura);
  vInserir(lFatura, sCodigoComplemento(lFatura, iNumero), {dtVencimento, fResto, Currency()},
           contexto_.relogio().today());
}

Reajuste GeradorTitulos::reajustarTitulos(std::int32_t lFatura, std::int32_t lTitulo, Currency fAntigo,
                                          Currency fNovo) {
  Recordset rs("SELECT lCodigo, fValor FROM " + lado_.sTitulos + " WHERE " + lado_.sLigacao + " = " +
                   std::to_string(lFatura) + " AND (fValorPago <= 0) AND lCodigo <> " + std::to_string(lTitulo),
               contexto_.dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
  if (rs.eof()) return Reajuste::semTitulosAbertos;
  for (const Currency fParte : repartir(fAntigo - fNovo, rs.recordCount())) {
    const Currency fValor = rs.field("fValor").toCurrency() + fParte;
    if (fValor <= Currency()) return Reajuste::semSaldo;
    vGravarValores({rs.field("lCodigo").toLong()}, {fValor});
    rs.moveNext();
  }
  return Reajuste::feito;
}

}  // namespace fenvale

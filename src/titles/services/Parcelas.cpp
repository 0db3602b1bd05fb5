#include "titles/services/Parcelas.h"

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"

namespace fenvale {
namespace {

std::string sChaveFatura(std::int32_t lFatura) { return formatNumber(std::int64_t{lFatura}, "######000000") + "/"; }
std::string sNumero(std::int32_t iNumero, const char* sMascara) {
  return formatNumber(std::int64_t{iNumero}, sMascara);
}

Currency fParcela(Currency fValor, std::int32_t iQuantidade) {
  return roundToCents(fValor.toDouble() / static_cast<double>(iQuantidade));
}

Date dtSomarDias(Date dtData, std::int16_t iDias) {
  static const Date dtUltima = makeDate(9999, 12, 31);
  // The step itself fits: a date of the calendar and 16 bits of days.
  const Date dtSoma = dtData + std::chrono::days(iDias);
  if (dtSoma > dtUltima) throw Error(errors::overflow, "Estouro de capacidade.");
  return dtSoma;
}

}  // namespace

std::string sCodigoTitulo(std::int32_t lFatura, std::int32_t iParcela) {
  return sChaveFatura(lFatura) + sNumero(iParcela, "###000");
}

std::string sCodigoTituloAcrescentado(std::int32_t lFatura, std::int32_t iParcela) {
  return sChaveFatura(lFatura) + left(sNumero(iParcela, "###000"), 3);
}

std::string sCodigoComplemento(std::int32_t lFatura, std::int32_t iNumero) {
  return sChaveFatura(lFatura) + "R" + left(sNumero(iNumero, "##00"), 2);
}

std::vector<Currency> repartir(Currency fValor, std::int32_t iQuantidade) {
  if (iQuantidade < 1) return {};
  std::vector<Currency> partes(static_cast<std::size_t>(iQuantidade), fParcela(fValor, iQuantidade));
  Currency fAcumulado;
  for (std::size_t i = 0; i + 1 < partes.size(); ++i) fAcumulado += partes[i];
  partes.back() = fValor - fAcumulado;
  return partes;
}

std::vector<TituloDaSerie> serieTitulos(const DadosSerie& dados) {
  const std::int16_t n = dados.iNumeroParcelas;
  const std::int32_t iDivisor = !dados.bEntrada ? n : n > 1 ? n - 1 : 1;
  const Currency fParcelaIgual = fParcela(dados.fTotal - dados.fEntrada, iDivisor);

  std::vector<TituloDaSerie> titulos;
  Date dtVencimento = dados.dtEmissao;
  Currency fAcumulado;
  for (std::int32_t i = 1; i <= n; ++i) {
    const Currency fEntrada = i == 1 && dados.bEntrada ? dados.fEntrada : Currency();
    if (i > 1 || !dados.bEntrada) dtVencimento = dtSomarDias(dtVencimento, dados.iIntervalo);
    const Currency fParcelaAtual = i == n ? dados.fTotal - fAcumulado : fParcelaIgual;
    const Currency fValor = fEntrada != Currency() ? fEntrada : fParcelaAtual;
    fAcumulado += fValor;
    titulos.push_back({dtVencimento, fValor, fEntrada});
  }
  return titulos;
}

bool bHaExcesso(Currency fValor, Currency fValorPago, Currency fJuros, Currency fDesconto) {
  return fValorPago - fJuros + fDesconto > fValor;
}

Excesso classificarExcesso(Currency fValorPago, Currency fRestante, std::int32_t iAbertos) {
  if (iAbertos < 2) return Excesso::semOutrosTitulos;
  if (fValorPago > fRestante) return Excesso::acimaDoRestante;
  return fValorPago == fRestante ? Excesso::pagaFatura : Excesso::abateTitulos;
}

}  // namespace fenvale

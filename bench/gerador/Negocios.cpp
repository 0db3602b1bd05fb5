#include "gerador/Negocios.h"

#include <algorithm>

#include "platform/base/Error.h"

namespace fenvale::bancada {
namespace {

using exemplo::Sorteio;

constexpr int diasDeNegocio = 730;

/// Most sales are small; amounts end as prices do.
Currency fTotalSorteado(Sorteio& sorteio) {
  constexpr std::array<std::pair<int, int>, 10> faixas{{{40, 200},
                                                        {40, 200},
                                                        {200, 1000},
                                                        {200, 1000},
                                                        {200, 1000},
                                                        {200, 1000},
                                                        {1000, 5000},
                                                        {1000, 5000},
                                                        {1000, 5000},
                                                        {5000, 25000}}};
  constexpr std::array<int, 6> centavos{0, 0, 50, 90, 99, -1};
  const auto [menor, maior] = faixas[sorteio.ate(faixas.size())];
  const int reais = sorteio.entre(menor, maior);
  const int final = centavos[sorteio.ate(centavos.size())];
  const std::int64_t quebra = final < 0 ? sorteio.entre(1, 98) : final;
  return Currency::fromUnits(std::int64_t{reais} * 10000 + quebra * 100);
}

Currency emCentavos(double valor) { return roundToCents(valor); }

/// The number of instalments of each invoice: what a shop sells, adding up to `total`, in an order of no pattern.
std::vector<std::uint8_t> repartirParcelas(Sorteio sorteio, std::uint32_t faturas, std::uint32_t total) {
  constexpr std::array<std::uint8_t, 12> habito{1, 1, 1, 2, 2, 3, 3, 4, 5, 6, 8, 12};
  if (total < faturas || total > faturas * std::uint64_t{maiorParcelamento})
    throw Error(errors::invalidCall, "An invoice has 1 to 12 titles.");
  std::vector<std::uint8_t> parcelas(faturas);
  std::int64_t falta = total;
  for (std::uint32_t i = 0; i < faturas; ++i) falta -= parcelas[i] = habito[i % habito.size()];
  for (std::uint32_t i = 0; falta != 0; i = (i + 1) % faturas) {
    if (falta > 0 && parcelas[i] < maiorParcelamento) {
      ++parcelas[i];
      --falta;
    } else if (falta < 0 && parcelas[i] > 1) {
      --parcelas[i];
      ++falta;
    }
  }
  for (std::uint32_t i = faturas; i > 1; --i) std::swap(parcelas[i - 1], parcelas[sorteio.ate(i)]);
  return parcelas;
}

}  // namespace

const std::array<Condicao, 2 * maiorParcelamento - 1>& condicoes() {
  static const auto todas = [] {
    std::array<Condicao, 2 * maiorParcelamento - 1> lista{};
    for (std::size_t n = 1; n <= maiorParcelamento; ++n) {
      const auto iParcelas = static_cast<std::int16_t>(n);
      lista[n - 1] = {iParcelas, 30, false};
      if (n > 1) lista[maiorParcelamento + n - 2] = {iParcelas, 30, true};
    }
    return lista;
  }();
  return todas;
}

Negocios::Negocios(std::uint64_t semente, Date hoje, Volume volume, Cadastros cadastros)
    : semente_(semente),
      hoje_(hoje),
      volume_(volume),
      cadastros_(cadastros),
      complementos_(std::min(volume.titulos / 200, volume.faturas)),
      parcelas_(repartirParcelas(Sorteio(semente, 10), volume.faturas, volume.titulos - complementos_)) {}

bool Negocios::bTemComplemento(std::uint32_t lugar) const {
  const auto antes = [this](std::uint64_t i) { return i * complementos_ / volume_.faturas; };
  return antes(lugar) != antes(std::uint64_t{lugar} + 1);
}

Date Negocios::dtEmissao(std::uint32_t lugar) const {
  const std::uint64_t dia = std::uint64_t{lugar} * (diasDeNegocio + 1) / volume_.faturas;
  const Date dt = hoje_ - std::chrono::days(diasDeNegocio - static_cast<int>(dia));
  // On Sundays the shop is closed.
  return std::chrono::weekday(dt) == std::chrono::Sunday ? dt - std::chrono::days(1) : dt;
}

Fatura Negocios::fatura(std::uint32_t lugar, std::int32_t lCodigo) const {
  Sorteio sorteio(semente_, 11, lugar);
  const std::size_t n = parcelas_[lugar];
  const bool bEntrada = n > 1 && sorteio.porCento(25);
  Fatura nova;
  nova.condicao = bEntrada ? maiorParcelamento + n - 2 : n - 1;
  nova.cliente = sorteio.ate(volume_.clientes);
  nova.vendedor = sorteio.ate(cadastros_.vendedores);
  nova.portador = sorteio.ate(cadastros_.portadores);
  nova.centroCusto = sorteio.ate(cadastros_.centrosCusto);
  nova.dtEmissao = dtEmissao(lugar);
  nova.fTotal = fTotalSorteado(sorteio);
  if (bEntrada) nova.fEntrada = emCentavos(nova.fTotal.toDouble() * sorteio.entre(10, 40) / 100);

  const Condicao& condicao = condicoes()[nova.condicao];
  const auto serie = serieTitulos(
      {nova.dtEmissao, nova.fTotal, nova.fEntrada, condicao.iNumeroParcelas, condicao.iIntervalo, condicao.bEntrada});
  nova.titulos.reserve(serie.size() + 1);
  for (const TituloDaSerie& parcela : serie) {
    Titulo titulo;
    titulo.sCodigoInf = sCodigoTitulo(lCodigo, static_cast<std::int32_t>(nova.titulos.size() + 1));
    titulo.dtVencimento = titulo.dtPagamento = parcela.dtVencimento;
    titulo.fValor = parcela.fValor;
    titulo.fValorPago = parcela.fValorPago;
    if (titulo.fValorPago == Currency()) vBaixar(sorteio, titulo, nova.dtEmissao);
    if (sorteio.porCento(30)) titulo.lNF = 1000 + lCodigo % 900000;
    nova.titulos.push_back(std::move(titulo));
  }
  if (bTemComplemento(lugar)) vPagarEmParte(sorteio, nova, bEntrada ? 1 : 0, lCodigo);
  return nova;
}

void Negocios::vBaixar(Sorteio& sorteio, Titulo& titulo, Date dtEmissao) const {
  const bool bVencido = titulo.dtVencimento < hoje_;
  if (!sorteio.porCento(bVencido ? 82 : 8)) return;
  const int atraso = sorteio.porCento(70) ? sorteio.entre(-4, 0) : sorteio.entre(1, 45);
  titulo.dtPagamento = std::clamp(titulo.dtVencimento + std::chrono::days(atraso), dtEmissao, hoje_);
  const int diasAtraso = daysBetween(titulo.dtVencimento, titulo.dtPagamento);
  if (diasAtraso > 3) {
    titulo.fJuros = emCentavos(titulo.fValor.toDouble() * 0.001 * diasAtraso);
    if (sorteio.porCento(10)) titulo.fDesconto = titulo.fJuros;  // the interest is let off
    if (sorteio.porCento(5)) titulo.sObs = "Pago com atraso, juros combinados.";
  }
  titulo.fValorPago = titulo.fValor + titulo.fJuros - titulo.fDesconto;
}

void Negocios::vPagarEmParte(Sorteio& sorteio, Fatura& fatura, std::size_t titulo, std::int32_t lCodigo) const {
  Titulo& pago = fatura.titulos[titulo];
  pago.dtPagamento = std::clamp(pago.dtVencimento, fatura.dtEmissao, hoje_);
  pago.fValorPago = emCentavos(pago.fValor.toDouble() * sorteio.entre(20, 80) / 100);
  pago.fJuros = pago.fDesconto = Currency();
  Titulo complemento;
  complemento.sCodigoInf = sCodigoComplemento(lCodigo, 1);
  complemento.dtVencimento = pago.dtVencimento;
  complemento.dtPagamento = pago.dtPagamento;
  complemento.fValor = pago.fValor - pago.fValorPago;
  fatura.titulos.push_back(std::move(complemento));
}

}  // namespace fenvale::bancada

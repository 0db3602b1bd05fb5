#include "demo/AnoDeNegocios.h"

#include <array>
#include <cstdint>
#include <optional>

#include "demo/Plataforma.h"
#include "platform/sql/Store.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Contexto.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"
#include "store/services/Sistema.h"
#include "titles/services/Lado.h"
#include "titles/services/Parcelas.h"

namespace fenvale::demonstracao {
namespace {

using exemplo::Sorteio;
using std::chrono::days;

constexpr int diasDoAno = 365;
constexpr int diasDeTolerancia = 3;  ///< up to here the firm charges no interest

Currency fTotalSorteado(Sorteio& sorteio) {
  constexpr std::array<std::pair<int, int>, 4> faixas{{{60, 400}, {200, 1200}, {200, 1200}, {1000, 6000}}};
  const auto [menor, maior] = faixas[sorteio.ate(faixas.size())];
  constexpr std::array<int, 4> centavos{0, 50, 90, 99};
  return Currency::fromUnits(std::int64_t{sorteio.entre(menor, maior)} * 10000 +
                             std::int64_t{centavos[sorteio.ate(centavos.size())]} * 100);
}

/// How many days behind the due date a customer pays, negative before it; nothing for who does not pay at all. Most
/// always pay in time, some late, a few hardly ever.
std::optional<int> atrasoSorteado(Sorteio& sorteio, std::int32_t lCliente) {
  switch (lCliente % 10) {
    case 0:
      return sorteio.porCento(60) ? std::optional(sorteio.entre(20, 90)) : std::nullopt;
    case 1:
    case 2:
      return sorteio.porCento(95) ? std::optional(sorteio.entre(3, 25)) : std::nullopt;
    default:
      return sorteio.porCento(98) ? std::optional(sorteio.entre(-4, 2)) : std::nullopt;
  }
}

std::string sDia(Date dia) { return "#" + Validacoes::sGetDataSQL(dia) + "#"; }

}  // namespace

AnoDeNegocios::AnoDeNegocios(Contexto& contexto, const Registros& registros, Relogio& relogio)
    : contexto_(contexto),
      registros_(registros),
      relogio_(relogio),
      gerador_(contexto, ladoReceber()),
      juros_(contexto),
      titulos_(contexto) {}

Connection& AnoDeNegocios::dados() { return contexto_.dbEmpresa().Dados(); }

void AnoDeNegocios::vViver(Date hoje) {
  for (Date dia = hoje - days(diasDoAno); dia <= hoje; dia += days(1)) {
    if (std::chrono::weekday(dia) == std::chrono::Sunday) continue;
    relogio_.dia = dia;
    vReceber(dia);
    vVender(dia);
  }
  relogio_.dia = hoje;
}

void AnoDeNegocios::vVender(Date dia) {
  const bool bSabado = std::chrono::weekday(dia) == std::chrono::Saturday;
  for (int vendas = bSabado ? sorteio_.entre(0, 1) : sorteio_.entre(1, 3); vendas > 0; --vendas) vFaturar(dia);
}

void AnoDeNegocios::vFaturar(Date dia) {
  const CondicaoPagamento& condicao = sorteio_.umDe(registros_.condicoes);
  const std::int32_t lCliente = sorteio_.umDe(registros_.clientes);
  DadosSerie serie;
  serie.dtEmissao = dia;
  serie.fTotal = fTotalSorteado(sorteio_);
  if (condicao.bEntrada) serie.fEntrada = roundToCents(serie.fTotal.toDouble() * sorteio_.entre(10, 30) / 100);
  serie.iNumeroParcelas = condicao.iNumeroParcelas;
  serie.iIntervalo = condicao.iIntervalo;
  serie.bEntrada = condicao.bEntrada;

  const std::string sNumero = Sistema(contexto_).sGetProximoCodigoNumerico("FaturasCliente", "lNumeroFatura", 0, true);
  const auto sUmDe = [this](const std::vector<std::int32_t>& chaves) { return std::to_string(sorteio_.umDe(chaves)); };
  vExecutar(dados(), sComandoInclusao("FaturasCliente", {{"lNumeroFatura", sNumero},
                                                         {"fTotal", Validacoes::sGetFloatSQL(serie.fTotal)},
                                                         {"fEntrada", Validacoes::sGetFloatSQL(serie.fEntrada)},
                                                         {"lCliente", std::to_string(lCliente)},
                                                         {"lCondicoesPagamento", std::to_string(condicao.lCodigo)},
                                                         {"lPortador", sUmDe(registros_.portadores)},
                                                         {"lVendedor", sUmDe(registros_.vendedores)},
                                                         {"lCentroCusto", sUmDe(registros_.centrosCusto)},
                                                         {"dtEmissao", sDia(dia)}}));
  std::int32_t lFatura = -1;
  gerador_.vCriarTitulosFatura(lFatura, serie);
  vAgendar(lFatura, lCliente);
}

void AnoDeNegocios::vAgendar(std::int32_t lFatura, std::int32_t lCliente) {
  Recordset rs("SELECT lCodigo, dtVencimento FROM TitulosReceber WHERE lFaturaCliente = " + std::to_string(lFatura) +
                   " AND (fValorPago <= 0) ",
               dados(), CursorType::dynamic, LockType::readOnly);
  for (; !rs.eof(); rs.moveNext()) {
    const std::optional<int> atraso = atrasoSorteado(sorteio_, lCliente);
    if (atraso) agenda_.emplace(rs.field("dtVencimento").toDate() + days(*atraso), rs.field("lCodigo").toLong());
  }
}

void AnoDeNegocios::vReceber(Date dia) {
  while (!agenda_.empty() && agenda_.begin()->first <= dia) {
    const std::int32_t lTitulo = agenda_.extract(agenda_.begin()).mapped();
    const Recordset rs("SELECT lFaturaCliente, dtVencimento, fValor FROM TitulosReceber WHERE lCodigo = " +
                           std::to_string(lTitulo) + " AND (fValorPago <= 0) ",
                       dados(), CursorType::dynamic, LockType::readOnly);
    if (rs.eof()) continue;
    const Titulo titulo{lTitulo, rs.field("lFaturaCliente").toLong(), rs.field("dtVencimento").toDate(),
                        rs.field("fValor").toCurrency()};
    vBaixar(titulo, dia);
  }
}

void AnoDeNegocios::vBaixar(const Titulo& titulo, Date dia) {
  const Baixa baixa = baixaSorteada(titulo, dia);
  vGravar(titulo, baixa, dia);
  if (bHaExcesso(titulo.fValor, baixa.fValorPago, baixa.fJuros, baixa.fDesconto))
    return gerador_.vAbaterTitulos(titulo.lFatura, titulo.lCodigo);
  if (baixa.fValorPago >= titulo.fValor) return;
  gerador_.vCriarTituloComplementar(titulo.lFatura, titulo.dtVencimento, titulo.fValor, baixa.fValorPago);
  const Recordset rs("SELECT MAX(lCodigo) AS Valor FROM TitulosReceber", dados());
  agenda_.emplace(dia + days(sorteio_.entre(10, 40)), rs.field("Valor").toLong());
}

AnoDeNegocios::Baixa AnoDeNegocios::baixaSorteada(const Titulo& titulo, Date dia) {
  Baixa baixa;
  baixa.fValorPago = titulo.fValor;
  if (daysBetween(titulo.dtVencimento, dia) > diasDeTolerancia) {
    const Currency fJuros = juros_.fCalcularJuros(titulo.fValor, titulo.dtVencimento, Currency());
    baixa.fJuros = roundToCents(fJuros.toDouble());
    if (sorteio_.porCento(15)) baixa.fDesconto = baixa.fJuros;  // let off
    baixa.fValorPago = titulo.fValor + baixa.fJuros - baixa.fDesconto;
  } else if (sorteio_.porCento(5)) {
    baixa.fValorPago = roundToCents(titulo.fValor.toDouble() * sorteio_.entre(30, 80) / 100);
  } else if (sorteio_.porCento(3)) {
    const Currency fMais = titulo.fValor + roundToCents(titulo.fValor.toDouble() * sorteio_.entre(10, 40) / 100);
    if (bPodeAbater(titulo, fMais)) baixa.fValorPago = fMais;
  }
  return baixa;
}

bool AnoDeNegocios::bPodeAbater(const Titulo& titulo, Currency fValorPago) {
  const Lado& lado = ladoReceber();
  // Levelling takes interest for payment and counts a partly paid title twice: the clerk does it on plain series only.
  const Recordset outros("SELECT lCodigo FROM TitulosReceber WHERE lFaturaCliente = " + std::to_string(titulo.lFatura) +
                             " AND fValorPago > 0 AND fValorPago <> fValor",
                         dados());
  if (!outros.eof()) return false;
  const Currency fTotal = titulos_.fGetValorFatura(lado.sFaturas, titulo.lFatura);
  const Currency fRestante =
      titulos_.fGetValorRestanteRecPagFatura(lado.sTitulos, lado.sLigacao, titulo.lFatura, fTotal);
  const std::int32_t iAbertos = titulos_.iGetNumeroTitulosNaoPagos(lado.sTitulos, lado.sLigacao, titulo.lFatura);
  return classificarExcesso(fValorPago, fRestante, iAbertos) == Excesso::abateTitulos;
}

void AnoDeNegocios::vGravar(const Titulo& titulo, const Baixa& baixa, Date dia) {
  vExecutar(dados(), sComandoAlteracao("TitulosReceber",
                                       {{"dtPagamento", sDia(dia)},
                                        {"fValorPago", Validacoes::sGetFloatSQL(baixa.fValorPago)},
                                        {"fJuros", Validacoes::sGetFloatSQL(baixa.fJuros)},
                                        {"fDesconto", Validacoes::sGetFloatSQL(baixa.fDesconto)},
                                        {"lNF", std::to_string(10000 + titulo.lFatura)}},
                                       titulo.lCodigo));
}

}  // namespace fenvale::demonstracao

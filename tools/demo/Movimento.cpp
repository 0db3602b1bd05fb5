#include "demo/Movimento.h"

#include <array>
#include <cstdint>

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

constexpr int diasDeTolerancia = 3;  ///< up to here nobody charges interest

Currency fTotalSorteado(Sorteio& sorteio, const Faixas& faixas) {
  const auto [menor, maior] = sorteio.umDe(faixas);
  constexpr std::array<int, 4> centavos{0, 50, 90, 99};
  return Currency::fromUnits(std::int64_t{sorteio.entre(menor, maior)} * 10000 +
                             std::int64_t{centavos[sorteio.ate(centavos.size())]} * 100);
}

std::string sDia(Date dia) { return "#" + Validacoes::sGetDataSQL(dia) + "#"; }

}  // namespace

Movimento::Movimento(Contexto& contexto, const Registros& registros, Habitos habitos, Date hoje)
    : contexto_(contexto),
      registros_(registros),
      habitos_(std::move(habitos)),
      lado_(habitos_.lado),
      hoje_(hoje),
      gerador_(contexto, lado_),
      juros_(contexto),
      titulos_(contexto),
      sorteio_(2026, habitos_.tipoDeSorteio) {}

Connection& Movimento::dados() { return contexto_.dbEmpresa().Dados(); }

void Movimento::vPassarDia(Date dia) {
  vLiquidar(dia);
  const bool bSabado = std::chrono::weekday(dia) == std::chrono::Saturday;
  const auto [menos, mais] = bSabado ? std::pair(0, 1) : habitos_.faturasPorDia;
  for (int faturas = sorteio_.entre(menos, mais); faturas > 0; --faturas)
    vFaturar(dia, sorteio_.umDe(registros_.condicoes));
}

void Movimento::vFaturar(Date dia, const CondicaoPagamento& condicao) {
  const std::int32_t lPessoa = sorteio_.umDe(habitos_.pessoas);
  DadosSerie serie;
  serie.dtEmissao = dia;
  serie.fTotal = fTotalSorteado(sorteio_, habitos_.faixas);
  if (condicao.bEntrada) serie.fEntrada = roundToCents(serie.fTotal.toDouble() * sorteio_.entre(10, 30) / 100);
  serie.iNumeroParcelas = condicao.iNumeroParcelas;
  serie.iIntervalo = condicao.iIntervalo;
  serie.bEntrada = condicao.bEntrada;

  const auto sUmDe = [this](const std::vector<std::int32_t>& chaves) { return std::to_string(sorteio_.umDe(chaves)); };
  ValoresSQL fatura{
      {"lNumeroFatura", Sistema(contexto_).sGetProximoCodigoNumerico(lado_.sFaturas, "lNumeroFatura", 0, true)},
      {"fTotal", Validacoes::sGetFloatSQL(serie.fTotal)},
      {"fEntrada", Validacoes::sGetFloatSQL(serie.fEntrada)},
      {lado_.sChavePessoa, std::to_string(lPessoa)},
      {"lCondicoesPagamento", std::to_string(condicao.lCodigo)},
      {"lPortador", sUmDe(registros_.portadores)},
      {"lCentroCusto", sUmDe(registros_.centrosCusto)},
      {"dtEmissao", sDia(dia)}};
  if (lado_.bVendedor) fatura.emplace_back("lVendedor", sUmDe(registros_.vendedores));
  vExecutar(dados(), sComandoInclusao(lado_.sFaturas, fatura));
  std::int32_t lFatura = -1;
  gerador_.vCriarTitulosFatura(lFatura, serie);
  vAgendarTitulos(lFatura, lPessoa);
}

void Movimento::vAgendar(std::int32_t lTitulo, Date dtVencimento, Date quando) {
  // The last day is still to be worked: what falls due on it is open.
  if (dtVencimento != hoje_) agenda_.emplace(quando, lTitulo);
}

void Movimento::vAgendarTitulos(std::int32_t lFatura, std::int32_t lPessoa) {
  Recordset rs("SELECT lCodigo, dtVencimento FROM " + lado_.sTitulos + " WHERE " + lado_.sLigacao + " = " +
                   std::to_string(lFatura) + " AND (fValorPago <= 0) ",
               dados(), CursorType::dynamic, LockType::readOnly);
  for (; !rs.eof(); rs.moveNext()) {
    const std::optional<int> atraso = habitos_.atraso(sorteio_, lPessoa);
    const Date dtVencimento = rs.field("dtVencimento").toDate();
    if (atraso) vAgendar(rs.field("lCodigo").toLong(), dtVencimento, dtVencimento + days(*atraso));
  }
}

void Movimento::vLiquidar(Date dia) {
  while (!agenda_.empty() && agenda_.begin()->first <= dia) {
    const std::int32_t lTitulo = agenda_.extract(agenda_.begin()).mapped();
    const Recordset rs("SELECT " + lado_.sLigacao + ", dtVencimento, fValor FROM " + lado_.sTitulos +
                           " WHERE lCodigo = " + std::to_string(lTitulo) + " AND (fValorPago <= 0) ",
                       dados(), CursorType::dynamic, LockType::readOnly);
    if (rs.eof()) continue;
    const Titulo titulo{lTitulo, rs.field(lado_.sLigacao).toLong(), rs.field("dtVencimento").toDate(),
                        rs.field("fValor").toCurrency()};
    vBaixar(titulo, dia);
  }
}

void Movimento::vBaixar(const Titulo& titulo, Date dia) {
  const Baixa baixa = baixaSorteada(titulo, dia);
  vGravar(titulo, baixa, dia);
  if (bHaExcesso(titulo.fValor, baixa.fValorPago, baixa.fJuros, baixa.fDesconto))
    return gerador_.vAbaterTitulos(titulo.lFatura, titulo.lCodigo);
  if (baixa.fValorPago >= titulo.fValor) return;
  gerador_.vCriarTituloComplementar(titulo.lFatura, titulo.dtVencimento, titulo.fValor, baixa.fValorPago);
  const Recordset rs("SELECT MAX(lCodigo) AS Valor FROM " + lado_.sTitulos, dados());
  vAgendar(rs.field("Valor").toLong(), titulo.dtVencimento, dia + days(sorteio_.entre(10, 40)));
}

Movimento::Baixa Movimento::baixaSorteada(const Titulo& titulo, Date dia) {
  Baixa baixa;
  baixa.fValorPago = titulo.fValor;
  if (daysBetween(titulo.dtVencimento, dia) > diasDeTolerancia) {
    baixa.fJuros = fJurosDe(titulo);
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

Currency Movimento::fJurosDe(const Titulo& titulo) {
  // Where the program does not work interest out, the clerk types the fine that the bank has printed on the bill.
  if (!lado_.bJuros) return roundToCents(titulo.fValor.toDouble() * 2 / 100);
  return roundToCents(juros_.fCalcularJuros(titulo.fValor, titulo.dtVencimento, Currency()).toDouble());
}

bool Movimento::bPodeAbater(const Titulo& titulo, Currency fValorPago) {
  // Levelling takes interest for payment and counts a partly paid title twice: the clerk does it on plain series only.
  const Recordset outros("SELECT lCodigo FROM " + lado_.sTitulos + " WHERE " + lado_.sLigacao + " = " +
                             std::to_string(titulo.lFatura) + " AND fValorPago > 0 AND fValorPago <> fValor",
                         dados());
  if (!outros.eof()) return false;
  const Currency fTotal = titulos_.fGetValorFatura(lado_.sFaturas, titulo.lFatura);
  const Currency fRestante =
      titulos_.fGetValorRestanteRecPagFatura(lado_.sTitulos, lado_.sLigacao, titulo.lFatura, fTotal);
  const std::int32_t iAbertos = titulos_.iGetNumeroTitulosNaoPagos(lado_.sTitulos, lado_.sLigacao, titulo.lFatura);
  return classificarExcesso(fValorPago, fRestante, iAbertos) == Excesso::abateTitulos;
}

void Movimento::vGravar(const Titulo& titulo, const Baixa& baixa, Date dia) {
  ValoresSQL valores{{"dtPagamento", sDia(dia)},
                     {"fValorPago", Validacoes::sGetFloatSQL(baixa.fValorPago)},
                     {"fJuros", Validacoes::sGetFloatSQL(baixa.fJuros)},
                     {"fDesconto", Validacoes::sGetFloatSQL(baixa.fDesconto)},
                     {"lNF", std::to_string(10000 + titulo.lFatura)}};
  if (lado_.bFilial && sorteio_.porCento(70))
    valores.emplace_back("sFilial", sorteio_.porCento(75) ? "'001'" : "'002'");
  vExecutar(dados(), sComandoAlteracao(lado_.sTitulos, valores, titulo.lCodigo));
}

}  // namespace fenvale::demonstracao

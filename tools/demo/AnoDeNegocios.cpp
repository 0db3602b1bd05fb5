#include "demo/AnoDeNegocios.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <optional>
#include <utility>

#include "demo/Movimento.h"
#include "demo/Plataforma.h"
#include "platform/base/Error.h"
#include "titles/services/Lado.h"

namespace fenvale::demonstracao {
namespace {

using exemplo::Sorteio;
using std::chrono::days;

constexpr int diasDoAno = 365;
constexpr int vencimentosDoDia = 3;

bool bDomingo(Date dia) { return std::chrono::weekday(dia) == std::chrono::Sunday; }

/// Most customers always pay in time, some late, a few hardly ever.
std::optional<int> atrasoDoCliente(Sorteio& sorteio, std::int32_t lCliente) {
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

/// The firm itself pays on the day; now and then the money is short, or a bill is disputed.
std::optional<int> atrasoDaFirma(Sorteio& sorteio, std::int32_t) {
  if (sorteio.porCento(4)) return std::nullopt;
  return sorteio.porCento(8) ? sorteio.entre(4, 25) : sorteio.entre(-2, 1);
}

/// The day and the condition of invoices whose first or only title falls due on `hoje`. Nobody works on a Sunday.
std::pair<Date, CondicaoPagamento> emissaoQueVenceEm(Date hoje, const Registros& registros) {
  for (const CondicaoPagamento& condicao : registros.condicoes) {
    const Date dia = hoje - days(condicao.iIntervalo);
    if (condicao.iIntervalo > 0 && !condicao.bEntrada && !bDomingo(dia)) return {dia, condicao};
  }
  throw Error(errors::invalidCall, "Nenhuma condição de pagamento vence em um dia de semana.");
}

}  // namespace

void vViverUmAno(Contexto& contexto, const Registros& registros, Relogio& relogio, Date hoje) {
  const Habitos vendas{ladoReceber(),   registros.clientes,
                       {1, 3},          {{60, 400}, {200, 1200}, {200, 1200}, {1000, 6000}},
                       atrasoDoCliente, 30};
  const Habitos compras{ladoPagar(),   registros.fornecedores,
                        {0, 2},        {{80, 500}, {300, 1500}, {300, 1500}, {1500, 9000}},
                        atrasoDaFirma, 31};
  std::array<Movimento, 2> lados{Movimento(contexto, registros, vendas, hoje),
                                 Movimento(contexto, registros, compras, hoje)};
  const auto [emissao, condicao] = emissaoQueVenceEm(hoje, registros);
  for (Date dia = hoje - days(diasDoAno); dia <= hoje; dia += days(1)) {
    if (bDomingo(dia)) continue;
    relogio.dia = dia;
    for (Movimento& lado : lados) {
      lado.vPassarDia(dia);
      for (int i = 0; dia == emissao && i < vencimentosDoDia; ++i) lado.vFaturar(dia, condicao);
    }
  }
  relogio.dia = hoje;
}

}  // namespace fenvale::demonstracao

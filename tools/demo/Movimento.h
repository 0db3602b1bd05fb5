#pragma once
// One side of a firm's business, day by day: invoices, and the settlement of their titles when it is their turn, all by
// the program's own rules of titles.

#include <cstdint>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "demo/Cadastros.h"
#include "exemplo/Sorteio.h"
#include "platform/base/Currency.h"
#include "platform/base/Date.h"
#include "titles/services/GeradorTitulos.h"
#include "titles/services/Juros.h"
#include "titles/services/Titulos.h"

namespace fenvale::demonstracao {

/// From and to how many reais an invoice may be over, each as likely as the others.
using Faixas = std::vector<std::pair<int, int>>;

/// What makes selling and buying different.
struct Habitos {
  const Lado& lado;
  const std::vector<std::int32_t>& pessoas;
  std::pair<int, int> faturasPorDia;  ///< from and to, on a day of the week
  Faixas faixas;
  /// How many days behind the due date is paid, negative before it; nothing: not at all.
  std::optional<int> (*atraso)(exemplo::Sorteio& sorteio, std::int32_t lPessoa);
  std::uint64_t tipoDeSorteio;  ///< each side draws for itself
};

class Movimento {
 public:
  /// Nothing that falls due on `hoje` is settled.
  Movimento(Contexto& contexto, const Registros& registros, Habitos habitos, Date hoje);
  /// Settles what is due to be settled, and makes the day's invoices.
  void vPassarDia(Date dia);
  void vFaturar(Date dia, const CondicaoPagamento& condicao);

 private:
  struct Titulo {
    std::int32_t lCodigo, lFatura;
    Date dtVencimento;
    Currency fValor;
  };
  /// What is typed into the boxes of a settlement.
  struct Baixa {
    Currency fValorPago, fJuros, fDesconto;
  };

  void vAgendarTitulos(std::int32_t lFatura, std::int32_t lPessoa);
  void vAgendar(std::int32_t lTitulo, Date dtVencimento, Date quando);
  void vLiquidar(Date dia);
  void vBaixar(const Titulo& titulo, Date dia);
  Baixa baixaSorteada(const Titulo& titulo, Date dia);
  Currency fJurosDe(const Titulo& titulo);
  bool bPodeAbater(const Titulo& titulo, Currency fValorPago);
  void vGravar(const Titulo& titulo, const Baixa& baixa, Date dia);
  Connection& dados();

  Contexto& contexto_;
  const Registros& registros_;
  Habitos habitos_;
  const Lado& lado_;
  Date hoje_;
  GeradorTitulos gerador_;
  Juros juros_;
  Titulos titulos_;
  exemplo::Sorteio sorteio_;
  std::multimap<Date, std::int32_t> agenda_;  ///< the day on which a title will be paid
};

}  // namespace fenvale::demonstracao

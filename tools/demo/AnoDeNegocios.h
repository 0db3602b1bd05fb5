#pragma once
// A year of sales and payments, day by day, with the program's own rules of titles.

#include <cstdint>
#include <map>

#include "demo/Cadastros.h"
#include "exemplo/Sorteio.h"
#include "platform/base/Currency.h"
#include "platform/base/Date.h"
#include "titles/services/GeradorTitulos.h"
#include "titles/services/Juros.h"
#include "titles/services/Titulos.h"

namespace fenvale::demonstracao {

class Relogio;

class AnoDeNegocios {
 public:
  /// The clock is the one that the program asks; it is moved through the year and stands on the last day in the end.
  AnoDeNegocios(Contexto& contexto, const Registros& registros, Relogio& relogio);
  /// The year that ends with `hoje`.
  void vViver(Date hoje);

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

  void vVender(Date dia);
  void vFaturar(Date dia);
  void vAgendar(std::int32_t lFatura, std::int32_t lCliente);
  void vReceber(Date dia);
  void vBaixar(const Titulo& titulo, Date dia);
  Baixa baixaSorteada(const Titulo& titulo, Date dia);
  bool bPodeAbater(const Titulo& titulo, Currency fValorPago);
  void vGravar(const Titulo& titulo, const Baixa& baixa, Date dia);
  Connection& dados();

  Contexto& contexto_;
  const Registros& registros_;
  Relogio& relogio_;
  GeradorTitulos gerador_;
  Juros juros_;
  Titulos titulos_;
  exemplo::Sorteio sorteio_{2026, 30};
  std::multimap<Date, std::int32_t> agenda_;  ///< the day on which a title will be paid
};

}  // namespace fenvale::demonstracao

#pragma once
// A small firm on 10 May 2026 with two customers, two suppliers, two bearers, two salespeople, two cost centres and the
// payment conditions that the tests of titles use. Told by the side of the ledger, so that one test serves both.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/base/Format.h"
#include "platform/sql/Store.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/ProgramaDeTeste.h"
#include "titles/services/Lado.h"

namespace fenvale {

inline Currency reais(std::string_view texto) { return Currency::fromBrazilian(texto); }
inline Date data(std::string_view texto) { return readDate(texto).value(); }

inline void PrintTo(const Currency& valor, std::ostream* saida) { *saida << valor.toDecimal(); }

/// The conditions: code, instalments, days between them, entry. Code and key are the same.
struct Condicao {
  int chave;
  int parcelas;
  int intervalo;
  bool entrada;
};
inline constexpr Condicao tresVezes{1, 3, 30, false};
inline constexpr Condicao tresComEntrada{2, 3, 30, true};
inline constexpr Condicao umaVez{3, 1, 30, false};
inline constexpr Condicao aVista{4, 1, 0, false};
inline constexpr Condicao umaComEntrada{5, 1, 30, true};
inline constexpr Condicao mesmoDia{6, 3, 0, false};
inline constexpr Condicao duasVezes{7, 2, 30, false};

class Cenario {
 public:
  explicit Cenario(const Lado& ladoDoTeste, void (*registrar)(Telas&) = nullptr)
      : programa(registrar), lado(ladoDoTeste) {
    programa.relogioDeTeste().setDia(2026, 5, 10);
    programa.abrirEmpresa();
    programa.executarPrograma(
        "INSERT INTO Sistema (sNome, lCidade, fPercentualJurosDia, fPercentualJurosMes, btOpcaoReparcelamento) "
        "VALUES ('Casa Aurora', 1, 0.1, 2, 1)");
    Connection& empresa = programa.dbEmpresa().Dados();
    empresa.beginTrans();  // one wait for the disk instead of twenty
    programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'Varejo')");
    for (const char* nome : {"Maria Aparecida", "João Batista"})
      programa.executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (" + std::to_string(++vendedores_) + ", '" +
                        nome + "')");
    for (const char* nome : {"Açougue São João Ltda.", "Bar do Élio"}) inserirPessoas(nome);
    executar("INSERT INTO Portadores (btCodigoInf, sNome) VALUES (1, 'Carteira')");
    executar("INSERT INTO Portadores (btCodigoInf, sNome) VALUES (2, 'Banco do Brasil')");
    executar("INSERT INTO CentroCusto (btCodigoInf, sDescricao) VALUES (1, 'Loja')");
    executar("INSERT INTO CentroCusto (btCodigoInf, sDescricao) VALUES (2, 'Depósito')");
    for (const Condicao& condicao : {tresVezes, tresComEntrada, umaVez, aVista, umaComEntrada, mesmoDia, duasVezes})
      executar("INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (" +
               std::to_string(condicao.chave) + ", " + std::to_string(condicao.parcelas) + ", " +
               std::to_string(condicao.intervalo) + ", " + (condicao.entrada ? "-1" : "0") + ")");
    empresa.commitTrans();
  }

  void executar(const std::string& sql) { programa.executar(sql); }
  std::string valor(const std::string& sql) { return programa.valor(sql); }
  void opcaoReparcelamento(int opcao) {
    programa.executarPrograma("UPDATE Sistema SET btOpcaoReparcelamento = " + std::to_string(opcao));
  }

  /// An invoice of the first person, by statement; its key.
  int inserirFatura(std::string_view total, const Condicao& condicao = tresVezes, int numero = 1) {
    executar("INSERT INTO " + lado.sFaturas + " (lNumeroFatura, dtEmissao, fTotal, fEntrada, " + lado.sChavePessoa +
             ", lCondicoesPagamento, lPortador, " + (lado.bVendedor ? "lVendedor, " : "") + "lCentroCusto) VALUES (" +
             std::to_string(numero) + ", #03/01/2026#, " + reais(total).toDecimal() + ", 0, 1, " +
             std::to_string(condicao.chave) + ", 1, " + (lado.bVendedor ? "1, " : "") + "1)");
    return std::stoi(valor("SELECT MAX(lCodigo) FROM " + lado.sFaturas));
  }

  /// A title by statement, its filler date the due date; its key.
  int inserirTitulo(int fatura, const std::string& codigo, std::string_view valorDoTitulo,
                    std::string_view pago = "0,00", const std::string& vencimento = "03/31/2026") {
    executar("INSERT INTO " + lado.sTitulos +
             " (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, lNF, sObs, " +
             lado.sLigacao + ") VALUES ('" + codigo + "', #" + vencimento + "#, " + reais(valorDoTitulo).toDecimal() +
             ", #" + vencimento + "#, " + reais(pago).toDecimal() + ", 0, 0, 0, '', " + std::to_string(fatura) + ")");
    return std::stoi(valor("SELECT MAX(lCodigo) FROM " + lado.sTitulos));
  }

  /// The titles of an invoice by code, one line each: "000001/001 31/03/2026 33,33 pago 0,00".
  std::vector<std::string> titulos(int fatura) {
    std::vector<std::string> linhas;
    for (const auto& campos : programa.linhas(
             "SELECT sCodigoInf, FORMAT(dtVencimento, 'dd/mm/yyyy') AS V, FORMAT(fValor, '#,##0.00') AS Valor, "
             "FORMAT(fValorPago, '#,##0.00') AS Pago FROM " +
             lado.sTitulos + " WHERE " + lado.sLigacao + " = " + std::to_string(fatura) + " ORDER BY sCodigoInf "))
      linhas.push_back(campos[0] + " " + campos[1] + " " + campos[2] + " pago " + campos[3]);
    return linhas;
  }

  ProgramaDeTeste programa;
  const Lado& lado;

 private:
  void inserirPessoas(const std::string& nome) {
    ++pessoas_;
    const std::string codigo = std::to_string(pessoas_);
    executar(
        "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, dtNascimento, lCategoria, lCidade, lVendedor, "
        "lCidadeEntrega, lCidadeCobranca) VALUES (" +
        codigo + ", '" + nome + "', 0, #01/01/1980#, 1, 1, 1, 1, 1)");
    executar("INSERT INTO Fornecedores (lCodigoInf, sNome, lCategoria, lCidade, lBanco) VALUES (" + codigo + ", '" +
             nome + "', 1, 1, 1)");
  }

  int vendedores_ = 0;
  int pessoas_ = 0;
};

/// For tests that run on each side: GetParam() is ladoReceber or ladoPagar.
using EscolhaDeLado = const Lado& (*)();

inline std::string nomeDoLado(const testing::TestParamInfo<EscolhaDeLado>& info) { return info.param().sTitulos; }

}  // namespace fenvale

#include "overview/services/ListasDoQuadro.h"

#include "overview/services/QuadroGeralContas.h"
#include "titles/services/Lado.h"

namespace fenvale {
namespace {

constexpr const char* sDoDia = "WHERE dtVencimento = DATE() AND (fValorPago <= 0) ORDER BY sCodigoInf ";
constexpr const char* sVencidas = "WHERE dtVencimento < DATE() AND (fValorPago <= 0) ORDER BY sCodigoInf ";

constexpr const char* sSelecaoPagar =
    "SELECT (CentroCusto.sDescricao) AS CentroCusto, lNumeroFatura, TitulosPagar.lCodigo, sCodigoInf, "
    "FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, '#,##0.00') AS ValorTitulo, lNF, sObs, "
    "FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS ValorFatura, (Fornecedores.sNome) AS "
    "Fornecedor, (Portadores.sNome) AS Portador, sFilial FROM (((TitulosPagar INNER JOIN  FaturasFornecedor ON "
    "FaturasFornecedor.lCodigo = TitulosPagar.lFaturaFornecedor) INNER JOIN Fornecedores ON "
    "FaturasFornecedor.lFornecedor = Fornecedores.lCodigo) INNER JOIN Portadores ON FaturasFornecedor.lPortador = "
    "Portadores.lCodigo) INNER JOIN CentroCusto ON FaturasFornecedor.lCentroCusto = CentroCusto.lCodigo ";

constexpr const char* sSelecaoReceber =
    "SELECT (CentroCusto.sDescricao) AS CentroCusto, lNumeroFatura, TitulosReceber.lCodigo, sCodigoInf, "
    "FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, '#,##0.00') AS ValorTitulo, lNF, sObs, "
    "(Vendedores.sNome) AS Vendedor, FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS "
    "ValorFatura, (Clientes.sNome) AS Cliente, (Portadores.sNome) AS Portador FROM ((((TitulosReceber INNER JOIN  "
    "FaturasCliente ON FaturasCliente.lCodigo = TitulosReceber.lFaturaCliente) INNER JOIN Clientes ON "
    "FaturasCliente.lCliente = Clientes.lCodigo) INNER JOIN Portadores ON FaturasCliente.lPortador = "
    "Portadores.lCodigo) INNER JOIN CentroCusto ON FaturasCliente.lCentroCusto = CentroCusto.lCodigo) INNER JOIN "
    "Vendedores ON FaturasCliente.lVendedor = Vendedores.lCodigo ";

// The value of each account is seen without scrolling on a monitor of 1024 points.
std::vector<ColunaLista> colunasPagar() {
  return {{"Código", 1300, Align::left, "sCodigoInf"},
          {"Filial", 700, Align::left, "sFilial"},
          {"Emissão", 1300, Align::centre, "Emissao"},
          {"Vencimento", 1300, Align::centre, "Vencimento"},
          {"Fornecedor", 3000, Align::left, "Fornecedor"},
          {"Portador", 1200, Align::left, "Portador"},
          {"Centro de custo", 1560, Align::left, "CentroCusto"},
          {"Valor da fatura", 1560, Align::right, "ValorFatura"},
          {"Valor do título", 1560, Align::right, "ValorTitulo"},
          {"Nota fiscal", 1300, Align::right, "lNF"},
          {"Observação", 3600, Align::left, "sObs"},
          {"Nº da fatura", 1400, Align::right, "lNumeroFatura"}};
}

std::vector<ColunaLista> colunasReceber() {
  return {{"Código", 1300, Align::left, "sCodigoInf"},
          {"Emissão", 1300, Align::centre, "Emissao"},
          {"Vencimento", 1300, Align::centre, "Vencimento"},
          {"Cliente", 2500, Align::left, "Cliente"},
          {"Portador", 1200, Align::left, "Portador"},
          {"Centro de custo", 1560, Align::left, "CentroCusto"},
          {"Vendedor", 1300, Align::left, "Vendedor"},
          {"Valor da fatura", 1560, Align::right, "ValorFatura"},
          {"Valor do título", 1560, Align::right, "ValorTitulo"},
          {"Nota fiscal", 1300, Align::right, "lNF"},
          {"Observação", 3600, Align::left, "sObs"},
          {"Nº da fatura", 1400, Align::right, "lNumeroFatura"}};
}

}  // namespace

const std::array<ListaDoQuadro, 4>& listasDoQuadro() {
  static const std::array<ListaDoQuadro, 4> listas{{
      {
          .sNome = "PagarDia",
          .sAba = "Contas a pagar do dia",
          .iCodigo = -1,
          .bGetMostrar = &QuadroGeralContas::bGetMostrarContasPagarDia,
          .sConsulta = std::string(sSelecaoPagar) + sDoDia,
          .colunas = colunasPagar(),
          .sTelaTitulos = ladoPagar().titulos.sNome,
          .sTitulos = ladoPagar().sTitulos,
          .sEmissao = "Contas a pagar de ",
          .sLargurasLidas = ".lstPagarDia",
          .sLargurasGravadas = ".lstPagarDia",
      },
      {
          .sNome = "ReceberDia",
          .sAba = "Contas a receber do dia",
          .iCodigo = 1,
          .bGetMostrar = &QuadroGeralContas::bGetMostrarContasReceberDia,
          .sConsulta = std::string(sSelecaoReceber) + sDoDia,
          .colunas = colunasReceber(),
          .sTelaTitulos = ladoReceber().titulos.sNome,
          .sTitulos = ladoReceber().sTitulos,
          .sEmissao = "Contas a receber de ",
          .sLargurasLidas = ".lstReceberDia",
          .sLargurasGravadas = ".lstReceberDia",
      },
      {
          .sNome = "PagarVencidas",
          .sAba = "Contas vencidas a pagar",
          .iCodigo = 0,
          .bGetMostrar = &QuadroGeralContas::bGetMostrarContasPagarVencidas,
          .sConsulta = std::string(sSelecaoPagar) + sVencidas,
          .colunas = colunasPagar(),
          .sTelaTitulos = ladoPagar().titulos.sNome,
          .sTitulos = ladoPagar().sTitulos,
          .sEmissao = "Contas a pagar vencidas em ",
          .sLargurasLidas = ".lstPagarVencidas",
          .sLargurasGravadas = ".lstPagarVencidas",
      },
      {
          .sNome = "ReceberVencidas",
          .sAba = "Contas vencidas a receber",
          .iCodigo = 2,
          .bGetMostrar = &QuadroGeralContas::bGetMostrarContasReceberVencidas,
          .sConsulta = std::string(sSelecaoReceber) + sVencidas,
          .colunas = colunasReceber(),
          .sTelaTitulos = ladoReceber().titulos.sNome,
          .sTitulos = ladoReceber().sTitulos,
          .sEmissao = "Contas a receber vencidas em ",
          // Not the name they are saved under: this list always comes up with its designed widths.
          .sLargurasLidas = ".ReceberVencidas",
          .sLargurasGravadas = ".lstReceberVencidas",
      },
  }};
  return listas;
}

}  // namespace fenvale

#include "titles/services/Lado.h"

#include "titles/services/Titulos.h"

namespace fenvale {
namespace {

/// The statement of a title list: its first columns, those of every title, and from the side's last columns on. The
/// list of the register shows a payment date of paid titles only; the search for settlement shows what is stored, and
/// the number of the invoice.
std::string sSelecaoTitulos(const std::string& sCentroCusto, const std::string& sTabela, const std::string& sFim,
                            bool bBaixa) {
  const std::string sPagamento = "FORMAT(dtPagamento, 'dd/mm/yyyy')";
  return "SELECT " + sCentroCusto + (bBaixa ? "lNumeroFatura, " : "") + sTabela +
         ".lCodigo, sCodigoInf, FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, '#,##0.00') AS "
         "ValorTitulo, " +
         (bBaixa ? sPagamento : "IIF(fValorPago > 0, " + sPagamento + ", '')") +
         " AS Pagamento, FORMAT(fValorPago, '#,##0.00') AS ValorPago, FORMAT(fJuros, '#,##0.00') AS Juros, "
         "FORMAT(fDesconto, '#,##0.00') AS Desconto, lNF, sObs, IIF(fValorPago <= 0, 'Não', 'Sim') AS Pago, "
         "FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS ValorFatura, " +
         sFim;
}

std::string sTitulosReceber(bool bBaixa) {
  return sSelecaoTitulos(
      "lCentroCusto, (CentroCusto.sDescricao) AS CentroCusto, ", "TitulosReceber",
      "lCliente, (Clientes.sNome) AS Cliente, lPortador, (Portadores.sNome) AS Portador, FaturasCliente.lVendedor, "
      "(Vendedores.sNome) AS Vendedores FROM ((((TitulosReceber INNER JOIN FaturasCliente ON FaturasCliente.lCodigo = "
      "TitulosReceber.lFaturaCliente) INNER JOIN Clientes ON FaturasCliente.lCliente = Clientes.lCodigo) INNER JOIN "
      "Portadores ON FaturasCliente.lPortador = Portadores.lCodigo) INNER JOIN Vendedores ON FaturasCliente.lVendedor "
      "= Vendedores.lCodigo) INNER JOIN CentroCusto ON FaturasCliente.lCentroCusto = CentroCusto.lCodigo ",
      bBaixa);
}

std::string sTitulosPagar(bool bBaixa) {
  return sSelecaoTitulos(
      "(CentroCusto.sDescricao) AS CentroCusto, lCentroCusto, ", "TitulosPagar",
      "lFornecedor, (Fornecedores.sNome) AS Fornecedor, lPortador, (Portadores.sNome) AS Portador, sFilial FROM "
      "(((TitulosPagar INNER JOIN FaturasFornecedor ON FaturasFornecedor.lCodigo = TitulosPagar.lFaturaFornecedor) "
      "INNER JOIN Fornecedores ON FaturasFornecedor.lFornecedor = Fornecedores.lCodigo) INNER JOIN Portadores ON "
      "FaturasFornecedor.lPortador = Portadores.lCodigo) INNER JOIN CentroCusto ON FaturasFornecedor.lCentroCusto = "
      "CentroCusto.lCodigo ",
      bBaixa);
}

constexpr const char* sColunasFatura =
    "lNumeroFatura, FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS TotalFatura, "
    "FORMAT(fEntrada, '#,##0.00') AS TotalEntrada, ";

constexpr const char* sColunasCondicao =
    "lCondicoesPagamento, (CondicoesPagamento.btCodigoInf) AS CondPagCodigoInf, iNumeroParcelas, iIntervalo, "
    "IIF(bitEntrada = 0, 'Não', 'Sim') AS ComEntrada, lPortador, (Portadores.sNome) AS Portador";

}  // namespace

const Lado& ladoReceber() {
  static const Lado lado{
      .sTitulos = "TitulosReceber",
      .sFaturas = "FaturasCliente",
      .sLigacao = "lFaturaCliente",
      .sChavePessoa = "lCliente",
      .lGetCodigoFatura = &Titulos::lGetCodigoFaturaCliente,
      .bVendedor = true,
      .bFilial = false,
      .bJuros = true,
      .bRelataVerificacao = false,
      .sPessoa = "Cliente",
      .sAcessoPessoa = "l",
      .sPessoaMinuscula = "cliente",
      .sInformePessoaFatura = "Informe o cliente.",
      .sInformePessoaTitulo = "Informe o cliente.",
      .sOndeMudarTotal = "Cadastro de Faturas de Clientes (Cadastros -> Faturas de clientes)",
      .sFiltroCentroCusto = "FaturasCliente.lCentroCusto",
      .sCadastroPessoa = "frmCadastroClientes",
      .sBuscaPessoa = "frmLocalizarClientesRapido",
      .faturas =
          {
              .sNome = "frmCadastroFaturasCliente",
              .sLegenda = "Faturas do cliente",
              .sTitulo = "Cadastro de faturas do cliente",
              .sBusca = "frmLocalizarFaturasCliente",
              .sBuscaBaixa = "",
              .sLegendaBusca = "Faturas cliente",
              .sSelecao =
                  std::string(
                      "SELECT lCentroCusto, (CentroCusto.sDescricao) AS CentroCusto, FaturasCliente.lCodigo, ") +
                  sColunasFatura + "lCliente, (Clientes.sNome) AS Cliente, " + sColunasCondicao +
                  ", FaturasCliente.lVendedor, (Vendedores.sNome) AS Vendedores FROM ((((FaturasCliente INNER JOIN "
                  "Clientes ON FaturasCliente.lCliente = Clientes.lCodigo) INNER JOIN CondicoesPagamento ON "
                  "CondicoesPagamento.lCodigo = FaturasCliente.lCondicoesPagamento) INNER JOIN Portadores ON "
                  "Portadores.lCodigo = FaturasCliente.lPortador) INNER JOIN Vendedores ON Vendedores.lCodigo = "
                  "FaturasCliente.lVendedor) INNER JOIN CentroCusto ON CentroCusto.lCodigo = "
                  "FaturasCliente.lCentroCusto ",
              .sSelecaoBaixa = "",
          },
      .titulos =
          {
              .sNome = "frmCadastroTitulosReceber",
              .sLegenda = "Títulos a receber",
              .sTitulo = "Cadastro de títulos a receber",
              .sBusca = "frmLocalizarTitulosReceberAvancado",
              .sBuscaBaixa = "frmLocalizarTitulosReceber",
              .sLegendaBusca = "Títulos a receber",
              .sSelecao = sTitulosReceber(false),
              .sSelecaoBaixa = sTitulosReceber(true),
          },
  };
  return lado;
}

const Lado& ladoPagar() {
  static const Lado lado{
      .sTitulos = "TitulosPagar",
      .sFaturas = "FaturasFornecedor",
      .sLigacao = "lFaturaFornecedor",
      .sChavePessoa = "lFornecedor",
      .lGetCodigoFatura = &Titulos::lGetCodigoFaturaFornecedor,
      .bVendedor = false,
      .bFilial = true,
      .bJuros = false,
      .bRelataVerificacao = true,
      .sPessoa = "Fornecedor",
      .sAcessoPessoa = "n",
      .sPessoaMinuscula = "fornecedor",
      .sInformePessoaFatura = "Informe o Fornecedor.",
      .sInformePessoaTitulo = "Informe o fornecedor.",
      .sOndeMudarTotal = "Cadastro de Faturas de Fornecedores (Cadastros -> Faturas de fornecedores)",
      .sFiltroCentroCusto = "lCentroCusto",
      .sCadastroPessoa = "frmCadastroFornecedores",
      .sBuscaPessoa = "frmLocalizarFornecedoresRapido",
      .faturas =
          {
              .sNome = "frmCadastroFaturasFornecedor",
              .sLegenda = "Faturas do fornecedor",
              .sTitulo = "Cadastro de faturas do fornecedor",
              .sBusca = "frmLocalizarFaturasFornecedor",
              .sBuscaBaixa = "",
              .sLegendaBusca = "Faturas do fornecedor",
              .sSelecao =
                  std::string(
                      "SELECT (CentroCusto.sDescricao) AS CentroCusto, lCentroCusto, FaturasFornecedor.lCodigo, ") +
                  sColunasFatura + "lFornecedor, (Fornecedores.sNome) AS Fornecedor, " + sColunasCondicao +
                  " FROM (((FaturasFornecedor INNER JOIN Fornecedores ON FaturasFornecedor.lFornecedor = "
                  "Fornecedores.lCodigo) INNER JOIN CondicoesPagamento ON CondicoesPagamento.lCodigo = "
                  "FaturasFornecedor.lCondicoesPagamento) INNER JOIN Portadores ON Portadores.lCodigo = "
                  "FaturasFornecedor.lPortador) INNER JOIN CentroCusto ON centroCusto.lCodigo = "
                  "FaturasFornecedor.lCentroCusto ",
              .sSelecaoBaixa = "",
          },
      .titulos =
          {
              .sNome = "frmCadastroTitulosPagar",
              .sLegenda = "Títulos a pagar",
              .sTitulo = "Cadastro de títulos a pagar",
              .sBusca = "frmLocalizarTitulosPagarAvancado",
              .sBuscaBaixa = "frmLocalizarTitulosPagar",
              .sLegendaBusca = "Títulos a pagar",
              .sSelecao = sTitulosPagar(false),
              .sSelecaoBaixa = sTitulosPagar(true),
          },
  };
  return lado;
}

}  // namespace fenvale

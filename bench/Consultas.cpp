#include "Consultas.h"

#include "gerador/Arquivo.h"
#include "platform/base/Currency.h"
#include "platform/base/Format.h"

namespace fenvale::bancada {
namespace {

/// The list of titles of the register, or of the search for settlement: that one shows the number of the invoice and
/// the payment date as it is stored. By hand a condition that holds for every title is not written.
Consulta titulos(bool bBaixa, const std::string& sClausula, const std::string& sClausulaAMao) {
  const std::string sData = "FORMAT(dtPagamento, 'dd/mm/yyyy')";
  Consulta consulta;
  consulta.sPrograma =
      std::string("SELECT lCentroCusto, (CentroCusto.sDescricao) AS CentroCusto, ") +
      (bBaixa ? "lNumeroFatura, " : "") +
      "TitulosReceber.lCodigo, sCodigoInf, FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, "
      "'#,##0.00') AS ValorTitulo, " +
      (bBaixa ? sData : "IIF(fValorPago > 0, " + sData + ", '')") +
      " AS Pagamento, FORMAT(fValorPago, '#,##0.00') AS ValorPago, FORMAT(fJuros, '#,##0.00') AS Juros, "
      "FORMAT(fDesconto, '#,##0.00') AS Desconto, lNF, sObs, IIF(fValorPago <= 0, 'Não', 'Sim') AS Pago, "
      "FORMAT(dtEmissao, 'dd/mm/yyyy') AS Emissao, FORMAT(fTotal, '#,##0.00') AS ValorFatura, lCliente, "
      "(Clientes.sNome) AS Cliente, lPortador, (Portadores.sNome) AS Portador, FaturasCliente.lVendedor, "
      "(Vendedores.sNome) AS Vendedores FROM ((((TitulosReceber INNER JOIN FaturasCliente ON FaturasCliente.lCodigo = "
      "TitulosReceber.lFaturaCliente) INNER JOIN Clientes ON FaturasCliente.lCliente = Clientes.lCodigo) INNER JOIN "
      "Portadores ON FaturasCliente.lPortador = Portadores.lCodigo) INNER JOIN Vendedores ON FaturasCliente.lVendedor "
      "= Vendedores.lCodigo) INNER JOIN CentroCusto ON FaturasCliente.lCentroCusto = CentroCusto.lCodigo " +
      sClausula + " ORDER BY sCodigoInf ";
  consulta.sContagem = "SELECT COUNT(*) FROM TitulosReceber " + sClausulaAMao;
  consulta.sChaves = "SELECT lCodigo FROM TitulosReceber " + sClausulaAMao + " ORDER BY sCodigoInf LIMIT ?1 OFFSET ?2";
  consulta.sLinha =
      std::string("SELECT f.lCentroCusto, cc.sDescricao, ") + (bBaixa ? "f.lNumeroFatura, " : "") +
      "t.lCodigo, t.sCodigoInf, t.dtVencimento, t.fValor, " +
      (bBaixa ? "t.dtPagamento" : "CASE WHEN t.fValorPago > 0 THEN t.dtPagamento END") +
      ", t.fValorPago, t.fJuros, t.fDesconto, t.lNF, t.sObs, CASE WHEN t.fValorPago <= 0 THEN 'Não' ELSE 'Sim' END, "
      "f.dtEmissao, f.fTotal, f.lCliente, c.sNome, f.lPortador, p.sNome, f.lVendedor, v.sNome FROM TitulosReceber t "
      "JOIN FaturasCliente f ON f.lCodigo = t.lFaturaCliente JOIN Clientes c ON c.lCodigo = f.lCliente JOIN Portadores "
      "p ON p.lCodigo = f.lPortador JOIN Vendedores v ON v.lCodigo = f.lVendedor JOIN CentroCusto cc ON cc.lCodigo = "
      "f.lCentroCusto WHERE t.lCodigo = ?1";
  consulta.sFormas = std::string(bBaixa ? "ttttt" : "tttt") + "dmdmmmtttdmtttttt";
  return consulta;
}

std::string sMostrado(const Comando& comando, int coluna, char forma) {
  if (forma == 'm') return formatNumber(Currency::fromUnits(comando.inteiro(coluna)));
  const std::string_view texto = comando.texto(coluna);
  if (forma == 't' || texto.empty()) return std::string(texto);
  return std::string(texto.substr(8, 2)) + "/" + std::string(texto.substr(5, 2)) + "/" +
         std::string(texto.substr(0, 4));
}

}  // namespace

Consulta consultaClientes() {
  Consulta consulta;
  consulta.sPrograma =
      "SELECT Clientes.lCodigo, Clientes.lCodigoInf, Clientes.sNome, FORMAT(fLimiteCredito, '#,##0.00') AS "
      "LimiteCredito, sEndereco, sBairro, sCEP, sTelefone, sFax, sContato, sRG, sCPF, sIE, sCNPJ, sPai, sMae, sEmail, "
      "FORMAT(dtNascimento, 'dd/mm/yyyy') AS Nascimento, sHomePage, txtObs, sEnderecoEntrega, sBairroEntrega, "
      "sCEPEntrega, sEnderecoCobranca, sBairroCobranca, sCEPCobranca, lCategoria, (Categorias.btCodigoInf) AS "
      "Categoria, lCidade, (SELECT Cidades.sNome FROM Cidades WHERE lCidade = Cidades.lCodigo) AS Cidade, (SELECT "
      "Cidades.sUF FROM Cidades WHERE lCidade = Cidades.lCodigo) AS UF, lVendedor, (Vendedores.sNome) AS Vendedor, "
      "lCidadeEntrega, (SELECT Cidades.sNome FROM Cidades WHERE lCidadeEntrega = Cidades.lCodigo) AS CidEntrega, "
      "(SELECT Cidades.sUF FROM Cidades WHERE lCidadeEntrega = Cidades.lCodigo) AS UFEntrega, lCidadeCobranca, (SELECT "
      "Cidades.sNome FROM Cidades WHERE lCidadeCobranca = Cidades.lCodigo) AS CidCobranca, (SELECT Cidades.sUF FROM "
      "Cidades WHERE lCidadeCobranca = Cidades.lCodigo) AS UFCobranca FROM (Clientes INNER JOIN Categorias ON "
      "Clientes.lCategoria = Categorias.lCodigo) INNER JOIN Vendedores ON Clientes.lVendedor = Vendedores.lCodigo "
      "ORDER BY Clientes.lCodigoInf, Clientes.sNome ";
  consulta.sContagem = "SELECT COUNT(*) FROM Clientes";
  // The code is unique: the name behind it decides nothing.
  consulta.sChaves = "SELECT lCodigo FROM Clientes ORDER BY lCodigoInf LIMIT ?1 OFFSET ?2";
  consulta.sLinha =
      "SELECT c.lCodigo, c.lCodigoInf, c.sNome, c.fLimiteCredito, c.sEndereco, c.sBairro, c.sCEP, c.sTelefone, "
      "c.sFax, c.sContato, c.sRG, c.sCPF, c.sIE, c.sCNPJ, c.sPai, c.sMae, c.sEmail, c.dtNascimento, c.sHomePage, "
      "c.txtObs, c.sEnderecoEntrega, c.sBairroEntrega, c.sCEPEntrega, c.sEnderecoCobranca, c.sBairroCobranca, "
      "c.sCEPCobranca, c.lCategoria, k.btCodigoInf, c.lCidade, m.sNome, m.sUF, c.lVendedor, v.sNome, "
      "c.lCidadeEntrega, e.sNome, e.sUF, c.lCidadeCobranca, b.sNome, b.sUF FROM Clientes c JOIN Categorias k ON "
      "k.lCodigo = c.lCategoria JOIN Vendedores v ON v.lCodigo = c.lVendedor JOIN Cidades m ON m.lCodigo = c.lCidade "
      "JOIN Cidades e ON e.lCodigo = c.lCidadeEntrega JOIN Cidades b ON b.lCodigo = c.lCidadeCobranca WHERE c.lCodigo "
      "= ?1";
  consulta.sFormas = "tttmtttttttttttttdttttttttttttttttttttt";
  return consulta;
}

Consulta consultaTitulosAbertos() { return titulos(false, "WHERE (fValorPago <= 0) ", "WHERE (fValorPago <= 0) "); }

Consulta consultaBuscaBaixa() {
  return titulos(true, "WHERE MID(sCodigoInf, 1, 0) = '' AND (fValorPago <= 0) ", "WHERE (fValorPago <= 0) ");
}

Consulta consultaTitulos() { return titulos(false, "", ""); }

std::vector<std::string> linhaMostrada(const Comando& comando, std::string_view sFormas) {
  std::vector<std::string> linha;
  linha.reserve(sFormas.size());
  for (int coluna = 0; const char forma : sFormas) linha.push_back(sMostrado(comando, coluna++, forma));
  return linha;
}

}  // namespace fenvale::bancada

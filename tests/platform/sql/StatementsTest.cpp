// What statements answer on a company store.

#include "platform/sql/StoreFixture.h"

namespace fenvale::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Statements = CompanyStore;

TEST_F(Statements, MoneyIsExactAndFormatted) {
  EXPECT_EQ(value("SELECT SUM(fValor) AS t FROM TitulosReceber"), "400.1");
  EXPECT_EQ(value("SELECT FORMAT(SUM(fValor), '#,##0.00') AS t FROM TitulosReceber"), "400,10");
  EXPECT_EQ(value("SELECT FORMAT(fLimiteCredito, '#,##0.00') AS t FROM Clientes WHERE lCodigo = 1"), "1.500,50");
  EXPECT_THAT(rows("SELECT lCodigo FROM FaturasCliente WHERE fTotal = 100.1"), ElementsAre("2"));
  EXPECT_THAT(rows("SELECT lCodigo FROM FaturasCliente WHERE fTotal > 100.1 AND 300 >= fTotal"), ElementsAre("1"));
  EXPECT_THAT(rows("SELECT lCodigo FROM FaturasCliente WHERE fTotal BETWEEN 100.05 AND 200"), ElementsAre("2"));
  EXPECT_EQ(value("SELECT fTotal + 1 AS t FROM FaturasCliente WHERE lCodigo = 2"), "101.1");
  EXPECT_EQ(value("SELECT fTotal * 3 AS t FROM FaturasCliente WHERE lCodigo = 2"), "300.3");
  EXPECT_EQ(value("SELECT fTotal * 0.5 AS t FROM FaturasCliente WHERE lCodigo = 2"), "50.05");
  EXPECT_EQ(value("SELECT fTotal * fTotal AS t FROM FaturasCliente WHERE lCodigo = 2"), "10020.01");
  EXPECT_EQ(value("SELECT -fTotal AS t FROM FaturasCliente WHERE lCodigo = 2"), "-100.1");
  EXPECT_EQ(value("SELECT fTotal / 4 AS t FROM FaturasCliente WHERE lCodigo = 1"), "75");
}

TEST_F(Statements, MoneyIsShownRoundedAwayFromZero) {
  run("UPDATE FaturasCliente SET fTotal = 0.125 WHERE lCodigo = 1");
  EXPECT_EQ(value("SELECT FORMAT(fTotal, '#,##0.00') FROM FaturasCliente WHERE lCodigo = 1"), "0,13");
  run("UPDATE FaturasCliente SET fTotal = -1234.5 WHERE lCodigo = 1");
  EXPECT_EQ(value("SELECT FORMAT(fTotal, '#,##0.00') FROM FaturasCliente WHERE lCodigo = 1"), "-1.234,50");
  run("UPDATE FaturasCliente SET fTotal = -0.004 WHERE lCodigo = 1");
  EXPECT_EQ(value("SELECT FORMAT(fTotal, '#,##0.00') FROM FaturasCliente WHERE lCodigo = 1"), "0,00");
  run("UPDATE FaturasCliente SET fTotal = -0 WHERE lCodigo = 1");
  EXPECT_EQ(value("SELECT fTotal FROM FaturasCliente WHERE lCodigo = 1"), "0");
}

TEST_F(Statements, FormatOfNothingIsAnEmptyText) {
  run("UPDATE Clientes SET fLimiteCredito = NULL, dtNascimento = NULL, lCodigoInf = NULL WHERE lCodigo = 1");
  EXPECT_THAT(rows("SELECT FORMAT(fLimiteCredito, '#,##0.00'), FORMAT(dtNascimento, 'dd/mm/yyyy'), FORMAT(lCodigoInf, "
                   "'##00') FROM Clientes WHERE lCodigo = 1"),
              ElementsAre("||"));
}

TEST_F(Statements, NumbersArePadded) {
  EXPECT_THAT(
      rows("SELECT FORMAT(lCodigoInf, '##00') AS a, FORMAT(lCodigoInf, '###000') AS b, FORMAT(lCodigoInf + 990, "
           "'###000') AS c FROM Clientes WHERE lCodigo = 1"),
      ElementsAre("10|010|1000"));
}

TEST_F(Statements, DatesAreDays) {
  EXPECT_THAT(rows("SELECT FORMAT(dtNascimento, 'dd/mm/yyyy') AS n FROM Clientes ORDER BY dtNascimento"),
              ElementsAre("29/02/1980", "31/12/1999"));
  EXPECT_THAT(rows("SELECT DATEPART('d', dtNascimento), DATEPART('m', dtNascimento), DATEPART('yyyy', dtNascimento) "
                   "FROM Clientes WHERE lCodigo = 1"),
              ElementsAre("29|2|1980"));
  EXPECT_THAT(rows("SELECT lCodigo FROM TitulosReceber WHERE dtVencimento BETWEEN #3/15/2026# AND #03/31/2026#"),
              ElementsAre("1", "3"));
  EXPECT_THAT(rows("SELECT DATEDIFF('d', dtVencimento, DATE()) AS Dias FROM TitulosReceber ORDER BY dtVencimento"),
              ElementsAre("0", "-16", "-46"));
  EXPECT_THAT(rows("SELECT sCodigoInf FROM TitulosReceber WHERE dtVencimento = DATE() AND (fValorPago <= 0)"),
              ElementsAre("000002/R01"));
  EXPECT_EQ(value("SELECT MIN(dtVencimento) FROM TitulosReceber"), "15/03/2026");
}

TEST_F(Statements, NumberAgainstTextComparesAsNumber) {
  EXPECT_THAT(rows("SELECT sCodigoInf FROM TitulosReceber WHERE DATEPART('m', dtVencimento) = '3' AND "
                   "DATEPART('yyyy', dtVencimento) = '2026' ORDER BY sCodigoInf"),
              ElementsAre("000001/001", "000002/R01"));
  EXPECT_THAT(rows("SELECT sNome FROM Clientes WHERE lCodigoInf = '0010'"), ElementsAre("Maria"));
  EXPECT_EQ(numberOf([&] { rows("SELECT sNome FROM Clientes WHERE lCodigoInf = 'dez'"); }), errors::valueMismatch);
  EXPECT_EQ(numberOf([&] { rows("SELECT sNome FROM Clientes WHERE lCodigoInf = ''"); }), errors::valueMismatch);
  EXPECT_EQ(numberOf([&] { rows("SELECT sNome FROM Clientes WHERE sNome = 5"); }), errors::valueMismatch);
  EXPECT_EQ(numberOf([&] { rows("SELECT sNome FROM Clientes WHERE dtNascimento = 'hoje'"); }), errors::valueMismatch);
  EXPECT_EQ(numberOf([&] { rows("SELECT sNome FROM Clientes WHERE dtNascimento > 5"); }), errors::valueMismatch);
  EXPECT_EQ(numberOf([&] { rows("SELECT lCodigo FROM Clientes WHERE sNome"); }), errors::valueMismatch);
}

TEST_F(Statements, TrueIsMinusOne) {
  run("INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (2, 1, 0, 7)");
  EXPECT_THAT(rows("SELECT (bitEntrada *-1) AS um, bitEntrada FROM CondicoesPagamento ORDER BY lCodigo"),
              ElementsAre("0|0", "1|-1"));
  EXPECT_THAT(rows("SELECT lCodigo FROM CondicoesPagamento WHERE bitEntrada = -1"), ElementsAre("2"));
  EXPECT_THAT(rows("SELECT IIF(bitEntrada = 0, 'Não', 'Sim') AS ComEntrada FROM CondicoesPagamento ORDER BY lCodigo"),
              ElementsAre("Não", "Sim"));
  run("INSERT INTO CondicoesPagamento (btCodigoInf, bitEntrada) VALUES (3, NULL)");
  run("INSERT INTO CondicoesPagamento (btCodigoInf) VALUES (4)");
  EXPECT_THAT(rows("SELECT bitEntrada, ISNULL(iIntervalo), (btCodigoInf > 2) AS c FROM CondicoesPagamento WHERE "
                   "btCodigoInf >= 3"),
              ElementsAre("0|-1|-1", "0|-1|-1"));
}

TEST_F(Statements, NullSpreadsThroughPlusAndNotThroughAmpersand) {
  EXPECT_THAT(rows("SELECT ('Rua: ' + sEndereco) AS a, ('Rua: ' & sEndereco) AS b FROM Clientes ORDER BY lCodigo"),
              ElementsAre("Rua: Rua A|Rua: Rua A", "NULL|Rua: "));
  EXPECT_THAT(
      rows("SELECT IIF(Clientes.sEndereco <> '', Clientes.sEndereco + ' - ', '') AS e FROM Clientes ORDER BY lCodigo"),
      ElementsAre("Rua A - ", ""));
  EXPECT_EQ(value("SELECT IIF(ISNULL(SUM(fValor)), 0, SUM(fValor)) AS v FROM TitulosReceber WHERE lCodigo = 99"), "0");
  EXPECT_EQ(value("SELECT FORMAT(IIF(ISNULL(SUM(fValor)), 0, SUM(fValor)), '#,##0.00') AS v FROM TitulosReceber WHERE "
                  "lCodigo = 99"),
            "0,00");
  EXPECT_EQ(value("SELECT (MAX(lCodigoInf) + 1) AS Valor FROM Clientes WHERE lCodigo = 99"), "NULL");
  EXPECT_THAT(rows("SELECT sNome FROM Clientes WHERE sEndereco <> 'Rua A'"), IsEmpty());
  EXPECT_EQ(value("SELECT COUNT(sEndereco) FROM Clientes"), "1");
}

TEST_F(Statements, MidIsForgiving) {
  EXPECT_THAT(
      rows("SELECT MID(sCodigoInf, 8, 1), MID(sCodigoInf, 8, 99), MID(sCodigoInf, 50, 3), MID(sCodigoInf, 1, 0) FROM "
           "TitulosReceber WHERE lCodigo = 3"),
      ElementsAre("R|R01||"));
  EXPECT_THAT(rows("SELECT lCodigo FROM TitulosReceber WHERE lFaturaCliente = 2 AND MID(sCodigoInf, 8, 1) = 'R' "),
              ElementsAre("3"));
  EXPECT_THAT(rows("SELECT sNome FROM Cidades WHERE MID(sNome, 1, 0) = '' ORDER BY lCodigo"),
              ElementsAre("Vila Nova", "Açude", "Acari"));
  EXPECT_EQ(numberOf([&] { rows("SELECT MID(sNome, 0, 1) FROM Cidades"); }), errors::invalidCall);
}

TEST_F(Statements, AnEmptyBeginningIsThatOfEveryTextAndOfNoNull) {
  run("UPDATE TitulosReceber SET sObs = NULL WHERE lCodigo = 1");
  run("UPDATE TitulosReceber SET sObs = '' WHERE lCodigo = 2");
  run("UPDATE TitulosReceber SET sObs = 'pago' WHERE lCodigo = 3");
  const auto found = [this](const std::string& condition) {
    return rows("SELECT lCodigo FROM TitulosReceber WHERE lCodigo <= 3 AND " + condition + " ORDER BY lCodigo");
  };
  // The same shape with other literals, again and again: none is answered with another's translation.
  for (int again = 0; again < 2; ++again) {
    EXPECT_THAT(found("MID(sObs, 1, 0) = ''"), ElementsAre("2", "3"));
    EXPECT_THAT(found("MID(sObs, 1, 2) = 'PA'"), ElementsAre("3"));
    EXPECT_THAT(found("MID(sObs, 1, 2) = ''"), ElementsAre("2"));
    EXPECT_THAT(found("MID(sObs, 1, 0) = 'pa'"), IsEmpty());
    EXPECT_THAT(found("MID(sObs, 3, 0) = ''"), ElementsAre("2", "3"));
    EXPECT_EQ(numberOf([&] { found("MID(sObs, 0, 0) = ''"); }), errors::invalidCall);
    EXPECT_THAT(found("NOT (MID(sObs, 1, 0) = '')"), IsEmpty());
    EXPECT_THAT(found("(MID(sObs, 1, 0) = '' OR lCodigo = 1)"), ElementsAre("1", "2", "3"));
    EXPECT_THAT(found("MID(sObs, 1, 0) <> ''"), IsEmpty());
  }
}

TEST_F(Statements, TextsCompareWithoutCaseAndWithAccents) {
  EXPECT_THAT(rows("SELECT lCodigo FROM Clientes WHERE sNome = 'MARIA'"), ElementsAre("1"));
  EXPECT_THAT(rows("SELECT lCodigo FROM Clientes WHERE sNome = 'zÉ'"), ElementsAre("2"));
  EXPECT_THAT(rows("SELECT lCodigo FROM Clientes WHERE sNome = 'Ze'"), IsEmpty());
  EXPECT_THAT(rows("SELECT lCodigo FROM Clientes WHERE MID(sNome, 1, 3) = 'mAR'"), ElementsAre("1"));
  EXPECT_THAT(rows("SELECT lCodigo FROM Clientes WHERE (sNome + '!') = 'maria!'"), ElementsAre("1"));
  EXPECT_THAT(rows("SELECT sNome FROM Cidades ORDER BY sNome"), ElementsAre("Acari", "Açude", "Vila Nova"));
  EXPECT_THAT(rows("SELECT sNome FROM Cidades ORDER BY (sNome + sUF) DESC"),
              ElementsAre("Vila Nova", "Açude", "Acari"));
  run("INSERT INTO Cidades (sNome, sUF) VALUES ('ACARI', 'RN')");
  EXPECT_THAT(rows("SELECT COUNT(lCodigo) AS c FROM Cidades GROUP BY sNome"), ElementsAre("2", "1", "1"));
}

TEST_F(Statements, AliasMayBeCalledAsATable) {
  EXPECT_THAT(
      rows("SELECT (CentroCusto.sDescricao) AS CentroCusto, FaturasCliente.lCodigo FROM FaturasCliente INNER JOIN "
           "CEntroCusto ON centroCusto.lCodigo = FaturasCLiente.lCentroCusto WHERE CentroCusto.sDEscricao = 'loja' "
           "ORDER BY CentroCusto.sDescricao, FaturasCliente.lCodigo"),
      ElementsAre("Loja|1", "Loja|2"));
}

TEST_F(Statements, TwoColumnsOfOneNameCarryTheirTables) {
  Recordset found(
      "SELECT TitulosReceber.lCodigo, FaturasCliente.lCodigo, fTotal FROM FaturasCliente INNER JOIN TitulosReceber "
      "ON FaturasCliente.lCodigo = TitulosReceber.lFaturaCliente WHERE TitulosReceber.lCodigo = 3",
      store->connection);
  EXPECT_THAT(found.fieldNames(), ElementsAre("TitulosReceber.lCodigo", "FaturasCliente.lCodigo", "fTotal"));
  EXPECT_EQ(found.field("faturascliente.LCODIGO").toLong(), 2);
  EXPECT_EQ(numberOf([&] { found.field("lCodigo"); }), errors::noSuchField);
  Recordset alone("SELECT TitulosReceber.lCodigo FROM TitulosReceber", store->connection);
  EXPECT_EQ(alone.field("lcodigo").toLong(), 1);
  EXPECT_EQ(numberOf([&] { alone.field("TitulosReceber.lCodigo"); }), errors::noSuchField);
}

TEST_F(Statements, BareNameMeansTheFirstTableThatHasIt) {
  EXPECT_THAT(
      rows("SELECT Clientes.sNome FROM (Clientes INNER JOIN Categorias ON Clientes.lCategoria = Categorias.lCodigo) "
           "INNER "
           "JOIN Vendedores ON Clientes.lVendedor = Vendedores.lCodigo WHERE Clientes.lCodigo > 0 AND lCodigoInf = 11"),
      ElementsAre("Zé"));
}

TEST_F(Statements, InnerNamesComeBeforeOuterOnes) {
  EXPECT_THAT(
      rows(
          "SELECT sNome, (SELECT sNome FROM DadosEmpresa) AS Empresa, (SELECT Cidades.sUF FROM Cidades WHERE lCidade = "
          "Cidades.lCodigo) AS UF, (SELECT sNome FROM Cidades WHERE lCodigo = 77) AS Nada FROM Clientes ORDER BY "
          "lCodigo"),
      ElementsAre("Maria|Loja|SP|NULL", "Zé|Loja|CE|NULL"));
}

TEST_F(Statements, GroupsComeInTheOrderOfTheirKeys) {
  EXPECT_THAT(
      rows(
          "SELECT Mes, Ano, Titulo FROM (SELECT FORMAT(DATEPART('m', dtVencimento), '##00') AS Mes, DATEPART('yyyy', "
          "dtVencimento) AS Ano, ('Posição em ' + FORMAT(DATE(), 'dd/mm/yyyy')) AS Titulo FROM TitulosReceber GROUP BY "
          "DATEPART('m', dtVencimento), DATEPART('yyyy', dtVencimento), dtVencimento ORDER BY dtVencimento DESC)GROUP "
          "BY "
          "Mes, Ano, Titulo"),
      ElementsAre("03|2026|Posição em 15/03/2026", "04|2026|Posição em 15/03/2026"));
  EXPECT_THAT(
      rows("SELECT FORMAT(dtVencimento, 'dd/mm/yyyy') AS V, FORMAT(SUM(fValor), '#,##0.00') AS T, ('x') AS Titulo FROM "
           "TitulosReceber GROUP BY dtVencimento ORDER BY  dtVencimento "),
      ElementsAre("15/03/2026|100,10|x", "31/03/2026|100,00|x", "30/04/2026|200,00|x"));
  EXPECT_THAT(rows("SELECT MAX(lCodigo) AS Valor FROM Clientes GROUP BY lCodigo ORDER BY lCodigo"),
              ElementsAre("1", "2"));
}

TEST_F(Statements, WithoutOrderRowsComeByTheKeyOfTheFirstTable) {
  EXPECT_THAT(
      rows("SELECT TitulosReceber.lCodigo FROM FaturasCliente INNER JOIN TitulosReceber ON FaturasCliente.lCodigo = "
           "TitulosReceber.lFaturaCliente"),
      ElementsAre("1", "2", "3"));
  EXPECT_THAT(rows("SELECT sNome FROM Cidades WHERE sUF <> ''"), ElementsAre("Vila Nova", "Açude", "Acari"));
}

TEST_F(Statements, AByteMayGrowInsideAnExpressionOnly) {
  run("INSERT INTO Portadores (btCodigoInf, sNome) VALUES (255, 'Banco')");
  EXPECT_EQ(value("SELECT (MAX(btCodigoInf) + 1) AS Valor FROM Portadores"), "256");
  EXPECT_EQ(numberOf([&] { run("INSERT INTO Portadores (btCodigoInf, sNome) VALUES (256, 'x')"); }),
            errors::valueOutOfRange);
  EXPECT_EQ(numberOf([&] { run("UPDATE Portadores SET btCodigoInf = btCodigoInf + 1 WHERE lCodigo = 2"); }),
            errors::valueOutOfRange);
}

TEST_F(Statements, ValuesAreTestedOnTheirWayIn) {
  const auto number = [&](const std::string& statement) { return numberOf([&] { run(statement); }); };
  EXPECT_EQ(number("INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('X', '004')"), 0);
  EXPECT_EQ(value("SELECT iCodigoInf FROM Bancos WHERE lCodigo = 2"), "4");
  EXPECT_EQ(number("INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('X', 'abc')"), errors::valueMismatch);
  EXPECT_EQ(number("INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('X', 32768)"), errors::valueOutOfRange);
  EXPECT_EQ(number("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (2147483648, 'X')"), errors::valueOutOfRange);
  EXPECT_EQ(number("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (-2147483648, 'X')"), 0);
  EXPECT_EQ(number("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (99999999999999999999, 'X')"),
            errors::valueOutOfRange);
  EXPECT_EQ(number("UPDATE FaturasCliente SET fTotal = 922337203685477.5808 WHERE lCodigo = 1"),
            errors::valueOutOfRange);
  EXPECT_EQ(number("UPDATE FaturasCliente SET fTotal = 922337203685477.5807 WHERE lCodigo = 1"), 0);
  EXPECT_EQ(number("UPDATE FaturasCliente SET fTotal = fTotal + fTotal WHERE lCodigo = 1"), errors::valueOutOfRange);
  EXPECT_EQ(number("UPDATE FaturasCliente SET fTotal = 'x' WHERE lCodigo = 1"), errors::valueMismatch);
  EXPECT_EQ(number("UPDATE FaturasCliente SET dtEmissao = 'x' WHERE lCodigo = 1"), errors::valueMismatch);
  EXPECT_EQ(number("UPDATE FaturasCliente SET fTotal = #1/1/2026# WHERE lCodigo = 1"), errors::valueMismatch);
  const std::string fifty(50, 'x');
  EXPECT_EQ(number("UPDATE Categorias SET sNome = 'é" + fifty.substr(1) + "' WHERE lCodigo = 2"), 0);
  EXPECT_EQ(number("UPDATE Categorias SET sNome = 'é" + fifty + "' WHERE lCodigo = 2"), errors::valueOutOfRange);
  EXPECT_EQ(number("UPDATE Categorias SET sNome = sNome + 'y' WHERE lCodigo = 2"), errors::valueOutOfRange);
  EXPECT_EQ(descriptionOf([&] { run("UPDATE Categorias SET sNome = 'é" + fifty + "' WHERE lCodigo = 2"); }),
            "O texto é longo demais para Categorias.sNome (até 50 caracteres).");
  EXPECT_EQ(value("SELECT sNome FROM Categorias WHERE lCodigo = 2"), "é" + fifty.substr(1));
  run("UPDATE Clientes SET txtObs = '" + std::string(70000, 'o') + "' WHERE lCodigo = 1");
  EXPECT_EQ(value("SELECT txtObs FROM Clientes WHERE lCodigo = 1").size(), 70000u);
}

TEST_F(Statements, AKeyIsCountedUpAndNeverGivenTwice) {
  run("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (9, 'nova')");
  EXPECT_EQ(value("SELECT MAX(lCodigo) AS v FROM Categorias"), "3");
  EXPECT_EQ(run("DELETE * FROM Categorias WHERE lCodigo = 3"), 1);
  run("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (9, 'nova')");
  EXPECT_EQ(value("SELECT MAX(lCodigo) AS v FROM Categorias"), "4");
  store->connection.beginTrans();
  run("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (10, 'outra')");
  EXPECT_EQ(value("SELECT MAX(lCodigo) AS v FROM Categorias"), "5");
  store->connection.rollbackTrans();
}

TEST_F(Statements, UniqueIndexTakesAnyNumberOfNulls) {
  run("INSERT INTO Categorias (sNome) VALUES ('a')");
  run("INSERT INTO Categorias (sNome) VALUES ('b')");
  EXPECT_EQ(descriptionOf([&] { run("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (2, 'x')"); }),
            "Já existe um registro em Categorias com o mesmo valor de btCodigoInf.");
  EXPECT_EQ(numberOf([&] { run("UPDATE TitulosReceber SET sCodigoInf = '000002/r01' WHERE lCodigo = 1"); }),
            errors::refused);
}

TEST_F(Statements, RelationsAreEnforced) {
  EXPECT_EQ(numberOf([&] { run("DELETE * FROM Clientes WHERE lCodigo = 1"); }), errors::refused);
  EXPECT_EQ(descriptionOf([&] { run("DELETE * FROM Cidades WHERE lCodigo = 1"); }),
            "O registro de Cidades está em uso por outros registros.");
  EXPECT_EQ(descriptionOf([&] { run("UPDATE Clientes SET lCategoria = 77 WHERE lCodigo = 1"); }),
            "O registro de Clientes aponta para um registro que não existe.");
  EXPECT_EQ(descriptionOf([&] { run("UPDATE Clientes SET lCategoria = NULL WHERE lCodigo = 1"); }),
            "O campo lCategoria de Clientes não pode ficar vazio.");
  EXPECT_EQ(numberOf([&] { run("INSERT INTO Clientes (lCodigoInf, sNome) VALUES (77, 'sem referências')"); }),
            errors::refused);
  EXPECT_EQ(value("SELECT COUNT(lCodigo) FROM Clientes"), "2");
}

TEST_F(Statements, AnInvoiceTakesItsOpenTitlesAlongAndKeepsPaidOnes) {
  EXPECT_EQ(descriptionOf([&] { run("DELETE * FROM FaturasCliente WHERE lCodigo = 1"); }),
            "A fatura tem títulos pagos.");
  EXPECT_EQ(numberOf([&] { run("DELETE * FROM FaturasCliente WHERE lCodigo = 1"); }), errors::refused);
  EXPECT_EQ(value("SELECT COUNT(lCodigo) FROM TitulosReceber"), "3");
  run("DELETE * FROM FaturasCliente WHERE lCodigo = 2");
  EXPECT_THAT(rows("SELECT sCodigoInf FROM TitulosReceber"), ElementsAre("000001/001", "000001/002"));
  run("UPDATE TitulosPagar SET fValorPago = 50 WHERE lCodigo = 1");
  EXPECT_EQ(descriptionOf([&] { run("DELETE * FROM FaturasFornecedor WHERE lCodigo = 1"); }),
            "A fatura tem títulos pagos.");
}

TEST_F(Statements, ARefusedStatementChangesNothing) {
  run("INSERT INTO Portadores (btCodigoInf, sNome) VALUES (2, 'B')");
  store->connection.beginTrans();
  run("INSERT INTO Portadores (btCodigoInf, sNome) VALUES (3, 'C')");
  EXPECT_EQ(numberOf([&] { run("UPDATE Portadores SET btCodigoInf = 9"); }), errors::refused);
  EXPECT_THAT(rows("SELECT btCodigoInf FROM Portadores"), ElementsAre("1", "2", "3"));
  EXPECT_EQ(store->connection.transactionLevel(), 1);
  store->connection.commitTrans();
  EXPECT_THAT(rows("SELECT btCodigoInf FROM Portadores"), ElementsAre("1", "2", "3"));
}

TEST_F(Statements, EachMistakeHasItsNumber) {
  const auto number = [&](const std::string& statement) {
    return numberOf([&] { statement.starts_with("SELECT") ? void(rows(statement)) : void(run(statement)); });
  };
  EXPECT_EQ(number("SELECT nada FROM Clientes"), errors::unknownColumn);
  EXPECT_EQ(number("SELECT Cidades.sNome FROM Clientes"), errors::unknownColumn);
  EXPECT_EQ(number("SELECT sNome AS x FROM Clientes WHERE x = 'a'"), errors::unknownColumn);
  EXPECT_EQ(number("UPDATE Clientes SET nada = 1"), errors::unknownColumn);
  EXPECT_EQ(number("SELECT a FROM Nada"), errors::unknownTable);
  EXPECT_EQ(number("DELETE * FROM Nada"), errors::unknownTable);
  EXPECT_EQ(number("INSERT INTO Nada (a) VALUES (1)"), errors::unknownTable);
  EXPECT_EQ(number("SELECT a FROM FenvaleCatalogo"), errors::unknownTable);
  EXPECT_EQ(number("SELECT a FROM sqlite_schema"), errors::unknownTable);
  EXPECT_EQ(number("INSERT INTO Clientes (nada) VALUES (1)"), errors::syntax);
  EXPECT_EQ(number("INSERT INTO Clientes (sNome, sNome) VALUES ('a', 'b')"), errors::syntax);
  EXPECT_EQ(number("SELECT UPPER(sNome) FROM Clientes"), errors::syntax);
  EXPECT_EQ(number("SELECT fv_mid(sNome, 1, 1) FROM Clientes"), errors::syntax);
  EXPECT_EQ(number("SELECT MID(sNome) FROM Clientes"), errors::syntax);
  EXPECT_EQ(number("SELECT sNome FROM Clientes WHERE SUM(lCodigo) > 1"), errors::syntax);
  EXPECT_EQ(number("SELECT FORMAT(sNome, sNome) FROM Clientes"), errors::syntax);
  EXPECT_EQ(number("SELECT (SELECT sNome, sUF FROM Cidades) FROM Clientes"), errors::syntax);
  EXPECT_EQ(number("SELECT SUM(sNome) FROM Clientes"), errors::valueMismatch);
  EXPECT_EQ(number("SELECT lCodigo / 0 FROM Clientes"), errors::divisionByZero);
  EXPECT_EQ(number("SELECT fTotal * 100000000000000 FROM FaturasCliente"), errors::overflow);
  EXPECT_EQ(number("SELECT DATEPART('q', dtNascimento) FROM Clientes"), errors::invalidCall);
  EXPECT_EQ(descriptionOf([&] { run("SELECT a FROM Nada"); }), "A tabela Nada não existe.");
}

TEST_F(Statements, ShapesAreKeptApartWhereAValueDecidesTheTranslation) {
  EXPECT_THAT(rows("SELECT sCodigoInf FROM TitulosReceber WHERE fValorPago <= 5"),
              ElementsAre("000001/002", "000002/R01"));
  EXPECT_THAT(rows("SELECT sCodigoInf FROM TitulosReceber WHERE fValorPago <= 0"),
              ElementsAre("000001/002", "000002/R01"));
  EXPECT_THAT(rows("SELECT sCodigoInf FROM TitulosReceber WHERE fValorPago <= 100"),
              ElementsAre("000001/001", "000001/002", "000002/R01"));
  EXPECT_EQ(value("SELECT FORMAT(fTotal, '#,##0.00') FROM FaturasCliente WHERE lCodigo = 2"), "100,10");
  EXPECT_EQ(value("SELECT FORMAT(fTotal, '0') FROM FaturasCliente WHERE lCodigo = 1"), "300");
  EXPECT_EQ(value("SELECT DATEPART('m', dtEmissao) FROM FaturasCliente WHERE lCodigo = 2"), "3");
  EXPECT_EQ(value("SELECT DATEPART('d', dtEmissao) FROM FaturasCliente WHERE lCodigo = 2"), "2");
  EXPECT_EQ(value("SELECT sNome FROM Clientes WHERE lCodigo = 1"), "Maria");
  EXPECT_EQ(value("SELECT sNome FROM Clientes WHERE lCodigo = '2'"), "Zé");
  EXPECT_EQ(numberOf([&] { value("SELECT sNome FROM Clientes WHERE lCodigo = 'x'"); }), errors::valueMismatch);
}

TEST_F(Statements, TypesOfTheFieldsAreTold) {
  Recordset found(
      "SELECT lCodigo, fTotal, dtEmissao, MAX(fTotal), COUNT(*), NULL, ('a'), 1.5, ISNULL(fTotal), fTotal / 2 FROM "
      "FaturasCliente GROUP BY lCodigo, fTotal, dtEmissao",
      store->connection);
  using enum ValueType;
  EXPECT_THAT(found.fieldTypes(),
              ElementsAre(integer, currency, date, currency, integer, null, text, decimal, boolean, decimal));
}

}  // namespace
}  // namespace fenvale::test

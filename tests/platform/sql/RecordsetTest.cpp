// The recordset as the rules use it: states, moves, and rows that stay what they were at the opening.

#include "platform/sql/StoreFixture.h"

namespace fenvale::test {
namespace {

using ::testing::ElementsAre;

class RecordsetTest : public CompanyStore {
 protected:
  Connection& connection() { return store->connection; }

  void fillCities(int count) {
    connection().beginTrans();
    for (int number = 4; number <= count; ++number)
      run("INSERT INTO Cidades (sNome, sUF) VALUES ('Cidade " + std::to_string(100000 + number) + "', 'MG')");
    connection().commitTrans();
  }
};

TEST_F(RecordsetTest, StatesAndWhatIsRefusedInThem) {
  Recordset rows;
  EXPECT_EQ(rows.state(), ObjectState::closed);
  for (const std::function<void()>& call : std::initializer_list<std::function<void()>>{
           [&] { rows.close(); }, [&] { rows.eof(); }, [&] { rows.bof(); }, [&] { rows.recordCount(); },
           [&] { rows.moveFirst(); }, [&] { rows.moveNext(); }, [&] { rows.move(1); }, [&] { rows.moveFromFirst(1); },
           [&] { rows.field("x"); }, [&] { rows.fieldNames(); }})
    EXPECT_EQ(numberOf(call), errors::objectClosed);
  rows.open("SELECT sNome FROM Cidades", connection(), CursorType::dynamic, LockType::pessimistic);
  EXPECT_EQ(rows.state(), ObjectState::open);
  EXPECT_EQ(rows.cursorType(), CursorType::keyset);
  EXPECT_EQ(rows.lockType(), LockType::pessimistic);
  EXPECT_EQ(numberOf([&] { rows.open("SELECT sNome FROM Cidades", connection()); }), errors::objectOpen);
  rows.close();
  rows.closeIfOpen();
  EXPECT_FALSE(rows.isOpen());

  const FixedClock clock(makeDate(2026, 1, 1));
  Connection closed({clock, nullptr});
  EXPECT_EQ(numberOf([&] { rows.open("SELECT 1", closed); }), errors::connectionClosed);
}

TEST_F(RecordsetTest, AStatementThatIsNoQueryLeavesItClosed) {
  Recordset rows("INSERT INTO Cidades (sNome, sUF) VALUES ('x', 'SP')", connection());
  EXPECT_FALSE(rows.isOpen());
  EXPECT_EQ(rows.affectedRows(), 1);
  EXPECT_EQ(numberOf([&] { rows.recordCount(); }), errors::objectClosed);
  rows.open("UPDATE Cidades SET sUF = 'RJ' WHERE lCodigo = 999", connection());
  EXPECT_EQ(rows.affectedRows(), 0);
  rows.open("CREATE TABLE Nova (a LONG)", connection());
  EXPECT_FALSE(rows.isOpen());
}

TEST_F(RecordsetTest, AnEmptyOneHasBothEnds) {
  Recordset rows("SELECT sNome FROM Cidades WHERE lCodigo = 99", connection());
  EXPECT_TRUE(rows.bof());
  EXPECT_TRUE(rows.eof());
  EXPECT_EQ(rows.recordCount(), 0);
  EXPECT_EQ(numberOf([&] { rows.moveFirst(); }), errors::noCurrentRecord);
  EXPECT_EQ(numberOf([&] { rows.moveNext(); }), errors::noCurrentRecord);
  EXPECT_EQ(numberOf([&] { rows.move(1); }), errors::noCurrentRecord);
  EXPECT_EQ(numberOf([&] { rows.moveFromFirst(0); }), errors::noCurrentRecord);
  EXPECT_EQ(numberOf([&] { rows.field("sNome"); }), errors::noCurrentRecord);
}

TEST_F(RecordsetTest, MovesToTheEndAndNoFurther) {
  Recordset rows("SELECT lCodigo FROM Cidades", connection(), CursorType::dynamic, LockType::readOnly);
  EXPECT_FALSE(rows.bof());
  EXPECT_EQ(rows.recordCount(), 3);
  rows.moveNext();
  rows.moveNext();
  EXPECT_EQ(rows.field("lCodigo").toLong(), 3);
  rows.moveNext();
  EXPECT_TRUE(rows.eof());
  EXPECT_EQ(numberOf([&] { rows.field("lCodigo"); }), errors::noCurrentRecord);
  EXPECT_EQ(numberOf([&] { rows.moveNext(); }), errors::noCurrentRecord);
  rows.move(-1);
  EXPECT_EQ(rows.field("lCodigo").toLong(), 3);
  rows.move(-2);
  EXPECT_EQ(rows.field("lCodigo").toLong(), 1);
  rows.move(-1);
  EXPECT_TRUE(rows.bof());
  EXPECT_FALSE(rows.eof());
  EXPECT_EQ(numberOf([&] { rows.move(-1); }), errors::noCurrentRecord);
  EXPECT_EQ(numberOf([&] { rows.field("lCodigo"); }), errors::noCurrentRecord);
  rows.moveNext();
  EXPECT_EQ(rows.field("lCodigo").toLong(), 1);
  rows.moveFromFirst(2);
  EXPECT_EQ(rows.field("lCodigo").toLong(), 3);
  rows.moveFromFirst(3);
  EXPECT_TRUE(rows.eof());
  rows.moveFromFirst(1000000);
  EXPECT_TRUE(rows.eof());
  rows.moveFirst();
  EXPECT_EQ(rows.field(std::size_t{0}).toLong(), 1);
  EXPECT_EQ(numberOf([&] { rows.field("outro"); }), errors::noSuchField);
}

TEST_F(RecordsetTest, AForwardOnlyOneCountsNothingAndStartsAgain) {
  Recordset rows("SELECT lCodigo FROM Cidades", connection(), CursorType::forwardOnly, LockType::readOnly);
  EXPECT_EQ(rows.recordCount(), -1);
  rows.moveNext();
  rows.moveFirst();
  EXPECT_EQ(rows.field("lCodigo").toLong(), 1);
}

TEST_F(RecordsetTest, AForwardOnlyOneGoesThroughTheSameRowsInTheSameSequenceAsAnyOther) {
  fillCities(700);
  for (const std::string statement :
       {"SELECT lCodigo, sNome FROM Cidades", "SELECT lCodigo, sNome FROM Cidades ORDER BY sUF",
        "SELECT lCodigo, sNome FROM Cidades WHERE lCodigo > 600 ORDER BY sUF DESC, sNome DESC"}) {
    Recordset once(statement, connection(), CursorType::forwardOnly, LockType::readOnly);
    Recordset other(statement, connection());
    std::int32_t rows = 0;
    for (; !other.eof() && !once.eof(); other.moveNext(), once.moveNext(), ++rows)
      ASSERT_EQ(once.field("sNome"), other.field("sNome")) << statement << ", row " << rows;
    EXPECT_TRUE(once.eof()) << statement;
    EXPECT_EQ(rows, other.recordCount()) << statement;
  }
}

TEST_F(RecordsetTest, AForwardOnlyOneKeepsTheRowsOfItsOpening) {
  fillCities(300);
  Recordset rows("SELECT lCodigo FROM Cidades ORDER BY lCodigo", connection(), CursorType::forwardOnly,
                 LockType::readOnly);
  run("DELETE * FROM Cidades WHERE lCodigo > 10");
  std::int32_t last = 0;
  for (; !rows.eof(); rows.moveNext()) last = rows.field("lCodigo").toLong();
  EXPECT_EQ(last, 300);
}

TEST_F(RecordsetTest, LongListsAreReadFromAnywhere) {
  fillCities(2000);
  Recordset rows("SELECT lCodigo, sNome FROM Cidades WHERE sUF = 'MG' ORDER BY sUF, sNome", connection());
  rows.moveFromFirst(1500);
  EXPECT_EQ(rows.field("sNome").toText(), "Cidade 101504");
  rows.moveFromFirst(10);
  EXPECT_EQ(rows.field("sNome").toText(), "Cidade 100014");
  rows.move(-3);
  EXPECT_EQ(rows.field("sNome").toText(), "Cidade 100011");
  EXPECT_EQ(rows.recordCount(), 1997);
  rows.moveFromFirst(1996);
  EXPECT_FALSE(rows.eof());
  rows.moveNext();
  EXPECT_TRUE(rows.eof());
  rows.moveFirst();
  for (int number = 4; number <= 2000; ++number, rows.moveNext()) ASSERT_EQ(rows.field("lCodigo").toLong(), number);
  EXPECT_TRUE(rows.eof());
}

TEST_F(RecordsetTest, DeletingTheRowsThatAreWalkedSkipsNone) {
  fillCities(700);
  int seen = 0;
  Recordset rows("SELECT lCodigo FROM Cidades WHERE sUF = 'MG'", connection(), CursorType::dynamic,
                 LockType::pessimistic);
  Recordset eraser;
  for (; !rows.eof(); rows.moveNext(), ++seen) {
    eraser.closeIfOpen();
    eraser.open("DELETE * FROM Cidades WHERE lCodigo = " + rows.field("lCodigo").toText(), connection());
  }
  EXPECT_EQ(seen, 697);
  EXPECT_EQ(rows.recordCount(), 697);
  EXPECT_EQ(value("SELECT COUNT(lCodigo) FROM Cidades"), "3");
}

TEST_F(RecordsetTest, RowsChangedOutOfTheConditionAreWalkedAllTheSame) {
  fillCities(400);
  int seen = 0;
  Recordset rows("SELECT lCodigo, sUF FROM Cidades WHERE sUF = 'MG' ORDER BY sNome DESC", connection());
  run("UPDATE Cidades SET sUF = 'BA'");
  run("INSERT INTO Cidades (sNome, sUF) VALUES ('Tardia', 'MG')");
  for (; !rows.eof(); rows.moveNext()) ++seen;
  EXPECT_EQ(seen, 397);
}

TEST_F(RecordsetTest, ARowThatWasDeletedSaysSo) {
  fillCities(100);
  Recordset rows("SELECT lCodigo, sNome FROM Cidades ORDER BY lCodigo", connection());
  run("DELETE FROM Cidades WHERE lCodigo > 50");
  rows.moveFromFirst(80);
  EXPECT_FALSE(rows.eof());
  EXPECT_EQ(numberOf([&] { rows.field("sNome"); }), errors::noCurrentRecord);
  EXPECT_EQ(rows.recordCount(), 100);
}

TEST_F(RecordsetTest, CascadesCountAsWritesToTheTitles) {
  Recordset titles("SELECT lCodigo, sCodigoInf FROM TitulosReceber ORDER BY lCodigo DESC", connection());
  run("DELETE * FROM FaturasCliente WHERE lCodigo = 2");
  EXPECT_EQ(titles.recordCount(), 3);
}

TEST_F(RecordsetTest, ARollbackTakesNoRowsOutOfAnOpenOne) {
  fillCities(10);
  connection().beginTrans();
  run("INSERT INTO Cidades (sNome, sUF) VALUES ('Breve', 'MG')");
  Recordset rows("SELECT lCodigo FROM Cidades WHERE sUF = 'MG'", connection());
  EXPECT_EQ(rows.field("lCodigo").toLong(), 4);
  connection().rollbackTrans();
  EXPECT_EQ(rows.recordCount(), 8);
  EXPECT_EQ(value("SELECT COUNT(lCodigo) FROM Cidades"), "10");
}

TEST_F(RecordsetTest, TheCountLeavesOutJoinsThatLoseNoRow) {
  Recordset rows(
      "SELECT Clientes.sNome, (Vendedores.sNome) AS V FROM (FaturasCliente INNER JOIN Clientes ON "
      "FaturasCliente.lCliente = "
      "Clientes.lCodigo) INNER JOIN Vendedores ON Vendedores.lCodigo = FaturasCliente.lVendedor WHERE fTotal > 0 ORDER "
      "BY "
      "Vendedores.sNome, Clientes.sNome DESC",
      connection());
  EXPECT_EQ(rows.recordCount(), 2);
  EXPECT_EQ(rows.field("sNome").toText(), "Zé");
  EXPECT_EQ(rows.field("v").toText(), "Ana");
  Recordset none(
      "SELECT FaturasCliente.lCodigo FROM FaturasCliente INNER JOIN Bancos ON FaturasCliente.lNumeroFatura = "
      "Bancos.lCodigo",
      connection());
  EXPECT_EQ(none.recordCount(), 1);
}

TEST_F(RecordsetTest, ClosingTheConnectionClosesItsRecordsets) {
  Recordset rows("SELECT lCodigo FROM Cidades", connection());
  connection().close();
  EXPECT_FALSE(rows.isOpen());
  EXPECT_EQ(numberOf([&] { rows.moveNext(); }), errors::objectClosed);
  EXPECT_EQ(numberOf([&] { connection().close(); }), errors::objectClosed);
  connection().open();
  EXPECT_EQ(numberOf([&] { connection().open(); }), errors::objectOpen);
  EXPECT_EQ(numberOf([&] { connection().setConnectionString("x"); }), errors::objectOpen);
}

TEST_F(RecordsetTest, MayBeMovedAway) {
  Recordset rows("SELECT lCodigo FROM Cidades", connection());
  Recordset other(std::move(rows));
  EXPECT_EQ(other.field("lCodigo").toLong(), 1);
  run("DELETE * FROM DadosEmpresa");
  other.moveNext();
  EXPECT_EQ(other.field("lCodigo").toLong(), 2);
}

TEST_F(RecordsetTest, NullMayOnlyBecomeAText) {
  Recordset rows("SELECT sEndereco, lCodigoInf, sNome FROM Clientes WHERE lCodigo = 2", connection());
  EXPECT_TRUE(rows["sEndereco"].isNull());
  EXPECT_EQ(rows["sEndereco"].toText(), "");
  EXPECT_EQ(numberOf([&] { rows["sEndereco"].toLong(); }), errors::invalidUseOfNull);
  EXPECT_EQ(numberOf([&] { rows["sNome"].toLong(); }), errors::typeMismatch);
}

// Transactions

using Transactions = RecordsetTest;

TEST_F(Transactions, NestToFiveLevels) {
  for (int level = 1; level <= 5; ++level) EXPECT_EQ(connection().beginTrans(), level);
  EXPECT_EQ(numberOf([&] { connection().beginTrans(); }), errors::tooManyTransactions);
  for (int level = 5; level >= 1; --level) connection().commitTrans();
  EXPECT_EQ(numberOf([&] { connection().commitTrans(); }), errors::noTransaction);
  EXPECT_EQ(numberOf([&] { connection().rollbackTrans(); }), errors::noTransaction);
}

TEST_F(Transactions, TheInnermostEndsFirstAndTheOuterHasTheLastWord) {
  const auto add = [&](const std::string& name) { run("INSERT INTO Bancos (sNome) VALUES ('" + name + "')"); };
  const auto names = [&] { return rows("SELECT sNome FROM Bancos WHERE lCodigo > 1"); };
  connection().beginTrans();
  add("a");
  connection().beginTrans();
  add("b");
  connection().rollbackTrans();
  EXPECT_THAT(names(), ElementsAre("a"));
  connection().beginTrans();
  add("c");
  connection().commitTrans();
  EXPECT_THAT(names(), ElementsAre("a", "c"));
  EXPECT_EQ(numberOf([&] { connection().close(); }), errors::inTransaction);
  connection().rollbackTrans();
  EXPECT_THAT(names(), ElementsAre());
}

TEST_F(Transactions, OfAClosedConnectionAreRefused) {
  connection().close();
  EXPECT_EQ(numberOf([&] { connection().beginTrans(); }), errors::connectionClosed);
  EXPECT_EQ(connection().transactionLevel(), 0);
}

TEST_F(Transactions, DefinitionsTakePartInThem) {
  connection().beginTrans();
  run("CREATE TABLE Nova (a LONG, b TEXT(5))");
  run("INSERT INTO Nova (a, b) VALUES (1, 'x')");
  EXPECT_EQ(value("SELECT b FROM Nova"), "x");
  connection().rollbackTrans();
  EXPECT_EQ(numberOf([&] { value("SELECT b FROM Nova"); }), errors::unknownTable);
  run("CREATE TABLE Nova (a LONG)");
}

}  // namespace
}  // namespace fenvale::test

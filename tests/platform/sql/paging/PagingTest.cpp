// What a recordset remembers and reads ahead is never older than a write of the program.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/Error.h"
#include "platform/sql/Store.h"
#include "support/PlataformaDeTeste.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

class Paging : public testing::Test {
 protected:
  Paging() {
    createStore(path);
    connect(connection);
    connection.beginTrans();
    run("CREATE TABLE Cidades (lCodigo COUNTER PRIMARY KEY, sNome TEXT(50), sUF TEXT(2))");
    run("CREATE TABLE Clientes (lCodigo COUNTER PRIMARY KEY, sNome TEXT(50), lCidade LONG, lEntrega LONG)");
    run("INSERT INTO Cidades (sNome, sUF) VALUES ('Londrina', 'PR')");
    run("INSERT INTO Cidades (sNome, sUF) VALUES ('Santos', 'SP')");
    for (int i = 1; i <= 300; ++i)
      run("INSERT INTO Clientes (sNome, lCidade, lEntrega) VALUES ('c" + std::to_string(i) + "', 1, " +
          (i % 2 == 0 ? "2" : "NULL") + ")");
    connection.commitTrans();
  }

  void connect(Connection& one) {
    one.setConnectionString("Data Source=" + path);
    one.open();
  }
  void run(const std::string& statement) { Recordset(statement, connection); }
  std::int32_t count(Connection& one, const std::string& where = {}) {
    return Recordset("SELECT lCodigo, sNome FROM Clientes " + where, one).recordCount();
  }

  PastaTemporaria folder;
  std::string path = folder.arquivo("loja.MDB");
  RelogioDeTeste clock;
  Connection connection{{clock, nullptr}};
};

TEST_F(Paging, TheCountFollowsTheProgramsOwnWrites) {
  EXPECT_EQ(count(connection), 300);
  EXPECT_EQ(count(connection), 300);
  run("DELETE * FROM Clientes WHERE lCodigo = 7");
  EXPECT_EQ(count(connection), 299);
}

TEST_F(Paging, TheCountFollowsTheWritesOfOthers) {
  Connection other{{clock, nullptr}};
  connect(other);
  EXPECT_EQ(count(connection), 300);
  const Recordset deletion("DELETE * FROM Clientes WHERE lCodigo < 11", other);
  EXPECT_EQ(count(connection), 290);
}

TEST_F(Paging, TheCountFollowsAnUndoneTransaction) {
  EXPECT_EQ(count(connection), 300);
  connection.beginTrans();
  run("DELETE * FROM Clientes WHERE lCodigo = 7");
  EXPECT_EQ(count(connection), 299);
  connection.beginTrans();
  run("DELETE * FROM Clientes WHERE lCodigo = 8");
  EXPECT_EQ(count(connection), 298);
  connection.rollbackTrans();
  EXPECT_EQ(count(connection), 299);
  connection.rollbackTrans();
  EXPECT_EQ(count(connection), 300);
}

TEST_F(Paging, TheSameStatementWithAnotherLiteralHasItsOwnCount) {
  EXPECT_EQ(count(connection, "WHERE lCodigo < 10"), 9);
  EXPECT_EQ(count(connection, "WHERE lCodigo < 20"), 19);
  EXPECT_EQ(count(connection, "WHERE lCodigo < 10"), 9);
}

TEST_F(Paging, ARowNotYetLookedAtShowsWhatWasWrittenMeanwhile) {
  Recordset rs("SELECT lCodigo, sNome FROM Clientes ORDER BY lCodigo", connection);
  for (int i = 0; i < 20; ++i, rs.moveNext()) rs.field("sNome");
  const std::string here = rs.field("sNome").toText();
  run("UPDATE Clientes SET sNome = 'outro' WHERE lCodigo > 10");
  EXPECT_EQ(rs.field("sNome").toText(), here) << "the current row stays as it was read";
  rs.moveNext();
  EXPECT_EQ(rs.field("sNome").toText(), "outro");
}

TEST_F(Paging, ADeletedRowIsMissedWhenItIsReached) {
  Recordset rs("SELECT lCodigo, sNome FROM Clientes ORDER BY lCodigo", connection);
  for (int i = 0; i < 20; ++i, rs.moveNext()) rs.field("sNome");
  EXPECT_EQ(rs.field("lCodigo").toLong(), 21);
  run("DELETE * FROM Clientes WHERE lCodigo = 21 OR lCodigo = 23");
  EXPECT_EQ(rs.field("sNome").toText(), "c21");
  rs.moveNext();
  EXPECT_EQ(rs.field("sNome").toText(), "c22");
  rs.moveNext();
  try {
    rs.field("sNome");
    ADD_FAILURE() << "a row that is gone was read";
  } catch (const Error& failure) {
    EXPECT_EQ(failure.number, errors::noCurrentRecord);
  }
  rs.moveNext();
  EXPECT_EQ(rs.field("sNome").toText(), "c24");
}

TEST_F(Paging, AWalkReadsEveryRowOnceBothWays) {
  Recordset rs("SELECT lCodigo, sNome FROM Clientes ORDER BY lCodigo", connection);
  std::int32_t expected = 0;
  for (; !rs.eof(); rs.moveNext()) EXPECT_EQ(rs.field("sNome").toText(), "c" + std::to_string(++expected));
  EXPECT_EQ(expected, 300);
  for (rs.move(-1); !rs.bof(); rs.move(-1)) EXPECT_EQ(rs.field("sNome").toText(), "c" + std::to_string(expected--));
  EXPECT_EQ(expected, 0);
}

TEST_F(Paging, ValuesLookedUpInAnotherTableAreNullWhereItHasNoRow) {
  Recordset rs(
      "SELECT lCodigo, (SELECT Cidades.sNome FROM Cidades WHERE lCidade = Cidades.lCodigo) AS Cidade, (SELECT "
      "Cidades.sUF FROM Cidades WHERE lCidade = Cidades.lCodigo) AS UF, (SELECT Cidades.sNome FROM Cidades WHERE "
      "Cidades.lCodigo = lEntrega) AS Entrega, (SELECT Cidades.sUF FROM Cidades WHERE lEntrega = Cidades.lCodigo) AS "
      "UFEntrega FROM Clientes ORDER BY lCodigo",
      connection);
  const auto row = [&rs] {
    std::vector<std::string> texts;
    for (const char* name : {"Cidade", "UF", "Entrega", "UFEntrega"})
      texts.push_back(rs.field(name).isNull() ? "NULL" : rs.field(name).toText());
    return texts;
  };
  EXPECT_THAT(row(), testing::ElementsAre("Londrina", "PR", "NULL", "NULL"));
  rs.moveNext();
  EXPECT_THAT(row(), testing::ElementsAre("Londrina", "PR", "Santos", "SP"));
}

}  // namespace
}  // namespace fenvale

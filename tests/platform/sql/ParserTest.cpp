// What the dialect takes and refuses, how tightly its operators bind, and that a tree prints itself back.

#include "platform/sql/dialect/Parser.h"

#include <fstream>
#include <set>

#include "platform/sql/StoreFixture.h"

namespace fenvale::test {
namespace {

using sql::Parentheses;

std::string explicitText(const std::string& expression) {
  return sql::print(sql::parse("SELECT " + expression), Parentheses::all).substr(7);
}

class Malformed : public ::testing::TestWithParam<const char*> {};

TEST_P(Malformed, IsASyntaxError) {
  EXPECT_EQ(numberOf([] { sql::parse(GetParam()); }), errors::syntax) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(
    Parser, Malformed,
    ::testing::Values(
        "", " ", ";", "SELEC 1", "SELECT", "SELECT FROM T", "SELECT ,", "SELECT a,", "SELECT a,, b FROM T",
        "SELECT a FROM", "SELECT a FROM T WHERE", "SELECT a FROM T WHERE a =", "SELECT a FROM T WHERE = 1",
        "SELECT a FROM T WHERE a = 1 AND", "SELECT a FROM T GROUP", "SELECT a FROM T GROUP BY",
        "SELECT a FROM T GROUP BY a,", "SELECT a FROM T ORDER", "SELECT a FROM T ORDER BY",
        "SELECT a FROM T ORDER BY a b", "SELECT a FROM T ORDER BY a WHERE a = 1", "SELECT a AS FROM T",
        "SELECT a AS 1 FROM T", "SELECT a b FROM T", "SELECT (a FROM T", "SELECT a) FROM T", "SELECT a FROM (T",
        "SELECT a FROM T)", "SELECT a FROM T INNER U", "SELECT a FROM T INNER JOIN", "SELECT a FROM T INNER JOIN U",
        "SELECT a FROM T INNER JOIN U ON", "SELECT a FROM T JOIN U ON T.a = U.a",
        "SELECT a FROM T LEFT JOIN U ON T.a = U.a", "SELECT a FROM T, U", "SELECT a FROM (T INNER JOIN U ON T.a = U.a",
        "SELECT a FROM (SELECT a FROM T", "SELECT a FROM ()", "SELECT a..b FROM T", "SELECT T. FROM T",
        "SELECT .a FROM T", "SELECT a FROM T WHERE a BETWEEN 1", "SELECT a FROM T WHERE a BETWEEN 1 OR 2",
        "SELECT a FROM T WHERE a BETWEEN AND 2", "SELECT a FROM T WHERE a IS", "SELECT a FROM T WHERE a IS NOT",
        "SELECT a FROM T WHERE a IS 1", "SELECT a FROM T WHERE NOT", "SELECT a FROM T WHERE a LIKE 'x'",
        "SELECT a FROM T WHERE a IN (1, 2)", "SELECT a FROM T LIMIT 1", "SELECT DISTINCT a FROM T",
        "SELECT TOP 1 a FROM T", "SELECT a FROM T UNION SELECT a FROM U", "SELECT 'a FROM T", "SELECT \"a FROM T",
        "SELECT [a FROM T", "SELECT [] FROM T", "SELECT #03/15/2026 FROM T", "SELECT #2026-03-15#",
        "SELECT #13/01/2026#", "SELECT #02/30/2026#", "SELECT #15/03/2026#", "SELECT #3/1/26#", "SELECT ##",
        "SELECT #1/1/2026 10:00#", "SELECT 1.2.3", "SELECT 1e5", "SELECT 12a", "SELECT ?",
        "SELECT a FROM T WHERE a = ?", "SELECT a | b", "SELECT a || b", "SELECT a == b", "SELECT a != b",
        "SELECT a =< b", "SELECT a => b", "SELECT a >< b", "SELECT a % b", "SELECT a ^ b", "SELECT @a", "SELECT $a",
        "SELECT `a`", "SELECT {a}", "SELECT a \\ b", "SELECT 1 +", "SELECT + 1", "SELECT * 2", "SELECT a *",
        "SELECT a, * FROM T WHERE *", "SELECT ()", "SELECT F(", "SELECT F(,)", "SELECT F(a,)", "SELECT F(a b)",
        "SELECT (SELECT a FROM T", "SELECT -", "SELECT a FROM T; SELECT b", "SELECT a FROM T;;", "SELECT _a FROM T",
        "INSERT", "INSERT INTO", "INSERT INTO T", "INSERT INTO T VALUES (1)", "INSERT INTO T () VALUES ()",
        "INSERT INTO T (a) VALUES", "INSERT INTO T (a) VALUES ()", "INSERT INTO T (a) VALUES (1, 2)",
        "INSERT INTO T (a, b) VALUES (1)", "INSERT INTO T (a) VALUES (1", "INSERT INTO T (a) VALUES (1), (2)",
        "INSERT INTO T (a,) VALUES (1)", "INSERT INTO T (a) SELECT a FROM U", "INSERT T (a) VALUES (1)",
        "INSERT INTO T (1) VALUES (1)", "UPDATE", "UPDATE T", "UPDATE T SET", "UPDATE T SET a", "UPDATE T SET a =",
        "UPDATE T SET a = 1,", "UPDATE T SET a = 1 WHERE", "UPDATE T SET 1 = a", "UPDATE T SET T.a = 1",
        "UPDATE SET a = 1", "DELETE", "DELETE T", "DELETE FROM", "DELETE * T", "DELETE a FROM T", "DELETE ** FROM T",
        "DELETE FROM T WHERE", "DELETE FROM T ORDER BY a", "CREATE", "CREATE VIEW V", "CREATE TABLE", "CREATE TABLE T",
        "CREATE TABLE T ()", "CREATE TABLE T (a)", "CREATE TABLE T (a LONG,)", "CREATE TABLE T (a NUMBER)",
        "CREATE TABLE T (a LONG", "CREATE TABLE T (a TEXT())", "CREATE TABLE T (a TEXT(0))",
        "CREATE TABLE T (a TEXT(256))", "CREATE TABLE T (a TEXT(x))", "CREATE TABLE T (a LONG(4))",
        "CREATE TABLE T (a LONG NOT)", "CREATE TABLE T (a LONG PRIMARY)", "CREATE TABLE T (a LONG CONSTRAINT PK)",
        "CREATE TABLE T (CONSTRAINT PK PRIMARY KEY (a))", "CREATE TABLE T (a LONG, CONSTRAINT F FOREIGN KEY (a))",
        "CREATE TABLE T (a LONG REFERENCES)", "CREATE TABLE T (a LONG REFERENCES U (a) ON DELETE)",
        "CREATE TABLE T (a LONG REFERENCES U (a) ON DELETE CASCADE UNLESS)",
        "CREATE TABLE T (a LONG REFERENCES U (a) ON DELETE CASCADE UNLESS (a > 0))", "CREATE INDEX", "CREATE INDEX I",
        "CREATE INDEX I ON", "CREATE INDEX I ON T", "CREATE INDEX I ON T ()", "CREATE INDEX I ON T (a",
        "CREATE INDEX ON T (a)", "CREATE UNIQUE TABLE T (a LONG)", "CREATE UNIQUE I ON T (a)", "ALTER", "ALTER TABLE",
        "ALTER TABLE T", "ALTER TABLE T ADD", "ALTER TABLE T ADD COLUMN", "ALTER TABLE T ADD COLUMN a",
        "ALTER TABLE T DROP COLUMN a", "ALTER TABLE T ADD CONSTRAINT F", "DROP TABLE T", "BEGIN", "COMMIT",
        "PRAGMA foreign_keys = OFF", "ATTACH 'x' AS y", "VACUUM", "SELECT a FROM T -- x", "SELECT a /* x */ FROM T"));

TEST(Parser, NamesThePlaceOfTheMistake) {
  EXPECT_EQ(descriptionOf([] { sql::parse("SELECT sNome FORM Clientes"); }),
            "Erro de sintaxe perto de \"FORM Clientes\", no caractere 14.");
  EXPECT_EQ(descriptionOf([] { sql::parse("SELECT sNome FROM"); }),
            "Erro de sintaxe: a instrução termina antes do esperado.");
}

TEST(Parser, RefusesEndlessNestingWithoutExhaustingTheStack) {
  const auto nested = [](const std::string& open, const std::string& close) {
    std::string text = "SELECT ";
    for (int count = 0; count < 100000; ++count) text += open;
    text += "1";
    for (int count = 0; count < 100000; ++count) text += close;
    return numberOf([&] { sql::parse(text); });
  };
  EXPECT_EQ(nested("(", ")"), errors::syntax);
  EXPECT_EQ(nested("-", ""), errors::syntax);
  EXPECT_EQ(nested("NOT ", ""), errors::syntax);
  EXPECT_EQ(nested("F(", ")"), errors::syntax);
  EXPECT_EQ(nested("(SELECT ", ")"), errors::syntax);
  EXPECT_EQ(nested("", " + 1"), errors::syntax);
  EXPECT_EQ(nested("1 AND ", ""), errors::syntax);
}

TEST(Parser, DigitsBelongToTheName) {
  EXPECT_EQ(sql::print(sql::parse("UPDATE Usuarios SET e3=-1,e2a=-1,c0=0 WHERE lCodigo =2")),
            "UPDATE Usuarios SET e3 = -1, e2a = -1, c0 = 0 WHERE lCodigo = 2");
}

TEST(Parser, BlanksAreNeverNeededAroundSigns) {
  EXPECT_EQ(sql::print(sql::parse("SELECT a FROM(SELECT a FROM T ORDER BY a)GROUP BY a")),
            "SELECT a FROM (SELECT a FROM T ORDER BY a) GROUP BY a");
  EXPECT_EQ(sql::print(sql::parse("SELECT a FROM T WHERE lCliente =17 AND lPortador <>2\r\n AND(b*-1)=1 ; ")),
            "SELECT a FROM T WHERE lCliente = 17 AND lPortador <> 2 AND b * -1 = 1");
}

TEST(Parser, TextsKeepTheirSigns) {
  EXPECT_EQ(sql::print(sql::parse("SELECT 'd''água', 'C:\\Empresas\\', \"aspas \"\"duplas\"\"\", ''")),
            "SELECT 'd''água', 'C:\\Empresas\\', 'aspas \"duplas\"', ''");
}

TEST(Parser, NamesWithAnyCharactersStandInBrackets) {
  for (const char* name : {"a b", "select", "9a", "é", "a\"b", "a'b", "_a", "x.y"}) {
    const std::string text = "SELECT [" + std::string(name) + "] AS [" + name + "] FROM [" + name + "]";
    const sql::Statement first = sql::parse(text);
    EXPECT_TRUE(sql::equal(first, sql::parse(sql::print(first)))) << text << " -> " << sql::print(first);
  }
}

struct Infix {
  std::string sign;
  int rung;  ///< the higher, the tighter
};

const std::vector<Infix>& infixes() {
  static const std::vector<Infix> all = {{"OR", 1}, {"AND", 2}, {"=", 4}, {"<>", 4}, {"<", 4}, {">", 4}, {"<=", 4},
                                         {">=", 4}, {"&", 5},   {"+", 6}, {"-", 6},  {"*", 7}, {"/", 7}};
  return all;
}

TEST(Precedence, EveryPairOfOperatorsIsToldApart) {
  std::vector<std::string> undistinguished;
  for (const Infix& first : infixes())
    for (const Infix& second : infixes()) {
      const std::string text = "a " + first.sign + " b " + second.sign + " c";
      const std::string leftFirst = "(a " + first.sign + " b) " + second.sign + " c";
      const std::string rightFirst = "a " + first.sign + " (b " + second.sign + " c)";
      if (explicitText(leftFirst) == explicitText(rightFirst)) undistinguished.push_back(text);
      // The looser second operator waits for the first; of equals the left one comes first.
      EXPECT_EQ(explicitText(text), explicitText(second.rung > first.rung ? rightFirst : leftFirst)) << text;
    }
  EXPECT_THAT(undistinguished, ::testing::IsEmpty());
}

TEST(Precedence, OfTheOperatorsThatAreNotBetweenTwo) {
  for (const Infix& infix : infixes()) {
    const std::string sign = " " + infix.sign + " ";
    EXPECT_EQ(explicitText("-a" + sign + "b"), explicitText("(-a)" + sign + "b"));
    EXPECT_NE(explicitText("-a" + sign + "b"), explicitText("-(a" + sign + "b)"));
    EXPECT_EQ(explicitText("NOT a" + sign + "b"),
              explicitText(infix.rung > 3 ? "NOT (a" + sign + "b)" : "(NOT a)" + sign + "b"));
    EXPECT_EQ(explicitText("a" + sign + "b IS NULL"),
              explicitText(infix.rung >= 4 ? "(a" + sign + "b) IS NULL" : "a" + sign + "(b IS NULL)"));
    EXPECT_EQ(explicitText("a" + sign + "b BETWEEN c AND d"),
              explicitText(infix.rung >= 4 ? "(a" + sign + "b) BETWEEN c AND d" : "a" + sign + "(b BETWEEN c AND d)"));
    if (infix.rung > 4) {
      EXPECT_EQ(explicitText("a BETWEEN b" + sign + "c AND d" + sign + "e"),
                explicitText("a BETWEEN (b" + sign + "c) AND (d" + sign + "e)"));
    } else {
      EXPECT_EQ(explicitText("a BETWEEN b AND c" + sign + "d"), explicitText("(a BETWEEN b AND c)" + sign + "d"));
    }
  }
}

struct ListedStatement {
  bool program;
  std::string text;
};

std::vector<ListedStatement> listedStatements() {
  std::vector<ListedStatement> statements;
  std::ifstream file(FENVALE_SOURCE_DIR "/tests/platform/sql/statements.tsv");
  for (std::string line; std::getline(file, line);)
    if (line.size() > 2) statements.push_back({line[0] == 'P', line.substr(2)});
  return statements;
}

TEST(RoundTrip, EveryStatementOfTheProgramPrintsItselfBack) {
  const auto statements = listedStatements();
  ASSERT_GT(statements.size(), 1000u);
  for (const ListedStatement& statement : statements) {
    const sql::Statement first = sql::parse(statement.text);
    const std::string printed = sql::print(first);
    const sql::Statement second = sql::parse(printed);
    EXPECT_TRUE(sql::equal(first, second)) << statement.text << "\n" << printed;
    EXPECT_EQ(printed, sql::print(second));
  }
}

TEST(RoundTrip, DefinitionsPrintThemselvesBack) {
  for (const char* script : {programScript, companyScript})
    for (const std::string& statement : scriptStatements(script)) {
      const sql::Statement first = sql::parse(statement);
      EXPECT_TRUE(sql::equal(first, sql::parse(sql::print(first)))) << statement;
    }
  for (const char* statement :
       {"ALTER TABLE T ADD COLUMN a TEXT(30) NOT NULL", "ALTER TABLE T ADD a LONG REFERENCES U (b)",
        "ALTER TABLE T ADD CONSTRAINT X UNIQUE (a, b)", "CREATE INDEX I ON T (a DESC, b) WHERE a <= 0",
        "CREATE TABLE [a b] ([c d] TEXT, Key LONG, Index BYTE, CONSTRAINT P PRIMARY KEY ([c d], Key))"}) {
    const sql::Statement first = sql::parse(statement);
    EXPECT_TRUE(sql::equal(first, sql::parse(sql::print(first)))) << statement << " -> " << sql::print(first);
  }
}

/// Every statement of the program runs on stores that the scripts made; a write may be refused by the rows there are.
TEST(ProgramStatements, RunOnTheStoresThatTheScriptsMake) {
  TemporaryFolder folder;
  TestStore::create(folder.path("Dados.MDB"), programScript);
  TestStore::create(folder.path("loja.MDB"), companyScript);
  TestStore program(folder.path("Dados.MDB"));
  TestStore company(folder.path("loja.MDB"));
  for (const ListedStatement& statement : listedStatements()) {
    TestStore& store = statement.program ? program : company;
    store.connection.beginTrans();
    const std::int32_t number = numberOf([&] {
      Recordset rows(statement.text, store.connection, CursorType::dynamic, LockType::readOnly);
      if (rows.isOpen()) {
        EXPECT_GE(rows.recordCount(), 0) << statement.text;
        while (!rows.eof()) rows.moveNext();
      }
    });
    const bool query = statement.text.starts_with("SELECT");
    EXPECT_TRUE(number == 0 || (!query && number == errors::refused)) << statement.text << " -> " << number;
    store.connection.rollbackTrans();
  }
}

}  // namespace
}  // namespace fenvale::test

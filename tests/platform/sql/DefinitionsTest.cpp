// Tables, indexes and relations; the two scripts.

#include "platform/sql/Collation.h"
#include "platform/sql/StoreFixture.h"

namespace fenvale::test {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;

class Definitions : public ::testing::Test {
 protected:
  Definitions() {
    createStore(folder.path("x.MDB"));
    store = std::make_unique<TestStore>(folder.path("x.MDB"));
  }
  std::int32_t number(const std::string& statement) {
    return numberOf([&] { store->run(statement); });
  }

  TemporaryFolder folder;
  std::unique_ptr<TestStore> store;
};

TEST_F(Definitions, EachStatementOfTheScriptsRunsOnceAndIsPassedOverThen) {
  for (const char* script : {programScript, companyScript}) {
    const std::string path = folder.path(std::string(script) + ".MDB");
    createStore(path);
    TestStore fresh(path);
    fresh.connection.beginTrans();
    for (const std::string& statement : scriptStatements(script)) {
      EXPECT_EQ(numberOf([&] { fresh.run(statement); }), 0) << statement;
      EXPECT_THAT(numberOf([&] { fresh.run(statement); }), AnyOf(errors::refused, errors::syntax, errors::columnExists))
          << statement;
    }
    fresh.connection.commitTrans();
    fresh.connection.close();
    fresh.connection.open();
    for (const std::string& statement : scriptStatements(script))
      EXPECT_THAT(numberOf([&] { fresh.run(statement); }), AnyOf(errors::refused, errors::syntax, errors::columnExists))
          << statement;
  }
}

TEST_F(Definitions, EachMistakeHasItsNumber) {
  EXPECT_EQ(number("CREATE TABLE A (k COUNTER CONSTRAINT PK_A PRIMARY KEY, n LONG, t TEXT(10), b YESNO)"), 0);
  EXPECT_EQ(number("CREATE TABLE a (x LONG)"), errors::syntax);
  EXPECT_EQ(number("CREATE TABLE B (x LONG, X BYTE)"), errors::syntax);
  EXPECT_EQ(number("CREATE TABLE B (x COUNTER, y COUNTER)"), errors::syntax);
  EXPECT_EQ(number("CREATE TABLE B (x LONG PRIMARY KEY, y LONG PRIMARY KEY)"), errors::refused);
  EXPECT_EQ(number("CREATE INDEX I ON A (n)"), 0);
  EXPECT_EQ(number("CREATE INDEX i ON A (t)"), errors::syntax);
  EXPECT_EQ(number("CREATE INDEX J ON Nada (n)"), errors::unknownTable);
  EXPECT_EQ(number("CREATE INDEX J ON A (nada)"), errors::unknownColumn);
  EXPECT_EQ(number("ALTER TABLE Nada ADD COLUMN x LONG"), errors::unknownTable);
  EXPECT_EQ(number("ALTER TABLE A ADD COLUMN N TEXT(5)"), errors::columnExists);
  EXPECT_EQ(number("ALTER TABLE A ADD COLUMN k2 COUNTER"), errors::syntax);
  EXPECT_EQ(number("ALTER TABLE A ADD CONSTRAINT PK2 PRIMARY KEY (n)"), errors::refused);
  EXPECT_EQ(number("ALTER TABLE A ADD CONSTRAINT F FOREIGN KEY (n) REFERENCES Nada (k)"), errors::unknownTable);
  EXPECT_EQ(number("ALTER TABLE A ADD CONSTRAINT F FOREIGN KEY (nada) REFERENCES A (k)"), errors::unknownColumn);
  EXPECT_EQ(number("ALTER TABLE A ADD CONSTRAINT F FOREIGN KEY (n) REFERENCES A (n)"), errors::refused);
}

TEST_F(Definitions, ColumnsAndRelationsMayComeLater) {
  store->run("CREATE TABLE A (k COUNTER PRIMARY KEY, n LONG)");
  store->run("INSERT INTO A (n) VALUES (7)");
  store->run("ALTER TABLE A ADD COLUMN sApelido TEXT(3)");
  store->run("ALTER TABLE A ADD sim YESNO");
  EXPECT_THAT(store->rows("SELECT * FROM A"), ElementsAre("1|7|NULL|0"));
  EXPECT_EQ(number("UPDATE A SET sApelido = 'abcd'"), errors::valueOutOfRange);
  EXPECT_EQ(number("ALTER TABLE A ADD COLUMN obrigatorio LONG NOT NULL"), errors::refused);
  store->run("CREATE TABLE B (k COUNTER PRIMARY KEY)");
  EXPECT_EQ(number("ALTER TABLE A ADD CONSTRAINT FK_A FOREIGN KEY (n) REFERENCES B (k)"), errors::refused);
  store->run("UPDATE A SET n = NULL");
  store->run("ALTER TABLE A ADD CONSTRAINT FK_A FOREIGN KEY (n) REFERENCES B (k)");
  EXPECT_EQ(number("ALTER TABLE A ADD CONSTRAINT FK_A FOREIGN KEY (n) REFERENCES B (k)"), errors::syntax);
  EXPECT_EQ(number("UPDATE A SET n = 5"), errors::refused);
  store->connection.close();
  store->connection.open();
  EXPECT_EQ(number("UPDATE A SET n = 5"), errors::refused);
  EXPECT_THAT(store->rows("SELECT * FROM A"), ElementsAre("1|NULL|NULL|0"));
}

TEST_F(Definitions, AKeyThatIsNotCountedMustBeGiven) {
  store->run("CREATE TABLE A (k LONG CONSTRAINT PK PRIMARY KEY, n LONG)");
  EXPECT_EQ(number("INSERT INTO A (n) VALUES (1)"), errors::refused);
  EXPECT_EQ(number("INSERT INTO A (k) VALUES (1)"), 0);
  EXPECT_EQ(number("INSERT INTO A (k) VALUES (1)"), errors::refused);
}

TEST_F(Definitions, AUniqueIndexOverDoubledValuesIsRefusedAndLeavesNothing) {
  store->run("CREATE TABLE A (n LONG)");
  store->run("INSERT INTO A (n) VALUES (1)");
  store->run("INSERT INTO A (n) VALUES (1)");
  EXPECT_EQ(number("CREATE UNIQUE INDEX U ON A (n)"), errors::refused);
  EXPECT_EQ(number("CREATE INDEX U ON A (n)"), 0);
}

TEST_F(Definitions, AnotherConnectionSeesThemAtOnce) {
  TestStore other(folder.path("x.MDB"));
  EXPECT_EQ(numberOf([&] { other.run("SELECT n FROM A"); }), errors::unknownTable);
  store->run("CREATE TABLE A (n LONG)");
  EXPECT_EQ(numberOf([&] { other.run("INSERT INTO A (n) VALUES (1)"); }), 0);
  EXPECT_EQ(numberOf([&] { other.run("CREATE TABLE A (n LONG)"); }), errors::syntax);
  store->run("ALTER TABLE A ADD COLUMN m LONG");
  EXPECT_EQ(other.value("SELECT m FROM A"), "NULL");
}

TEST(Collation, OrdersAsADictionary) {
  const std::vector<std::string> ordered = {"",       " ",      "(",   "1",    "10",        "2",         "açougue",
                                            "Álvaro", "avó",    "Bar", "coop", "co-op",     "Élio",      "JOSE",
                                            "José",   "Jose A", "Sao", "São",  "sao paulo", "são paulo", "Zulmira"};
  for (std::size_t first = 0; first < ordered.size(); ++first)
    for (std::size_t second = 0; second < ordered.size(); ++second) {
      const int result = compareTexts(ordered[first], ordered[second]);
      EXPECT_EQ(result < 0, first < second) << ordered[first] << " / " << ordered[second];
      EXPECT_EQ(result == 0, first == second) << ordered[first] << " / " << ordered[second];
    }
}

TEST(Collation, CaseNeverDecidesAndAccentsDo) {
  EXPECT_EQ(compareTexts("MARIA", "maria"), 0);
  EXPECT_EQ(compareTexts("JOSÉ", "josé"), 0);
  EXPECT_EQ(compareTexts("D'ÁGUA", "d'água"), 0);
  EXPECT_NE(compareTexts("José", "Jose"), 0);
  EXPECT_NE(compareTexts("d'água", "dágua"), 0);
  EXPECT_LT(compareTexts("Caça", "Cacau"), 0);
  EXPECT_GT(compareTexts("Caça", "Caca"), 0);
}

/// All texts of a few signs: the order must be one, whatever stands in them.
TEST(Collation, IsATotalOrderOfClasses) {
  const std::vector<std::string> signs = {"", "a", "A", "á", "b", "'", "-", "1", "\xFF", "€"};
  std::vector<std::string> texts;
  for (const std::string& one : signs)
    for (const std::string& two : signs)
      for (const std::string& three : {std::string(), std::string("a"), std::string("-")})
        texts.push_back(one + two + three);
  for (const std::string& one : texts)
    for (const std::string& two : texts) {
      const int between = compareTexts(one, two);
      ASSERT_EQ(between, -compareTexts(two, one));
      for (const std::string& three : {std::string("a-á"), std::string("b'"), std::string("1A")}) {
        const bool ascending = between <= 0 && compareTexts(two, three) <= 0;
        ASSERT_TRUE(!ascending || compareTexts(one, three) <= 0) << one << two << three;
      }
    }
}

}  // namespace
}  // namespace fenvale::test

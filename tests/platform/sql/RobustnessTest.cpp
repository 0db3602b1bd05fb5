// Death and failure in the middle of a save, other programs on the same store, files that are no stores.

#include <grp.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "platform/sql/Collation.h"
#include "platform/sql/FaultyFiles.h"
#include "platform/sql/OtherPrograms.h"
#include "platform/sql/StoreFixture.h"

namespace fenvale::test {
namespace {

namespace fs = std::filesystem;

constexpr int titlesOfTheSave = 40;

/// One invoice with its titles, as the invoice screen saves it; the titles in an inner transaction.
void saveInvoice(TestStore& store) {
  store.connection.beginTrans();
  store.run(
      "INSERT INTO FaturasCliente (lNumeroFatura, fTotal, fEntrada, lCliente, lCondicoesPagamento, lPortador, "
      "lVendedor, lCentroCusto, "
      "dtEmissao) VALUES (77, 400, 0, 1, 1, 1, 1, 1, #3/15/2026#)");
  store.connection.beginTrans();
  const std::string invoice = store.value("SELECT MAX(lCodigo) AS v FROM FaturasCliente");
  for (int number = 1; number <= titlesOfTheSave; ++number)
    store.run(
        "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
        "lNF, sObs, "
        "lFaturaCliente) VALUES ('9/" +
        std::to_string(number) + "', #4/15/2026#, 10, #4/15/2026#, 0, 0, 0, 0, '" + std::string(200, 'o') + "', " +
        invoice + ")");
  store.connection.commitTrans();
  store.connection.commitTrans();
}

std::string integrityOf(const std::string& path) {
  sqlite3* database = nullptr;
  sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, "unix");
  std::string answer;
  sqlite3_create_collation(database, "FENVALE", SQLITE_UTF8, nullptr,
                           [](void*, int firstSize, const void* first, int secondSize, const void* second) {
                             return compareTexts(
                                 {static_cast<const char*>(first), static_cast<std::size_t>(firstSize)},
                                 {static_cast<const char*>(second), static_cast<std::size_t>(secondSize)});
                           });
  sqlite3_exec(
      database, "PRAGMA foreign_key_check; PRAGMA integrity_check",
      [](void* text, int, char** fields, char**) {
        *static_cast<std::string*>(text) += fields[0];
        return 0;
      },
      &answer, nullptr);
  sqlite3_close(database);
  return answer;
}

class Robustness : public CompanyStore {
 protected:
  Robustness() { store->connection.close(); }

  std::string copy(const std::string& name) const {
    fs::copy_file(path(), folder.path(name), fs::copy_options::overwrite_existing);
    return folder.path(name);
  }

  static void expectAllOrNothing(const std::string& file, bool mayBeThere) {
    TestStore after(file);
    const std::string invoices = after.value("SELECT COUNT(lCodigo) FROM FaturasCliente WHERE lNumeroFatura = 77");
    const std::string titles =
        after.value("SELECT COUNT(lCodigo) FROM TitulosReceber WHERE MID(sCodigoInf, 1, 2) = '9/'");
    if (invoices == "0") {
      EXPECT_EQ(titles, "0");
    } else {
      EXPECT_TRUE(mayBeThere);
      EXPECT_EQ(invoices, "1");
      EXPECT_EQ(titles, std::to_string(titlesOfTheSave));
    }
    after.connection.close();
    EXPECT_EQ(integrityOf(file), "ok");
    TestStore again(file);
    if (invoices == "0") saveInvoice(again);
  }

  void dieAtEveryWrite(Fault fault) {
    for (int number = 1;; ++number) {
      ASSERT_LT(number, 1000);
      const std::string file = copy("morto.MDB");
      const int status = inChild([&] {
        arm(fault, number);
        TestStore dying(file);
        saveInvoice(dying);
      });
      if (WIFEXITED(status)) {
        EXPECT_EQ(WEXITSTATUS(status), 0);
        EXPECT_GT(number, 20);
        return;
      }
      ASSERT_EQ(WTERMSIG(status), SIGKILL);
      SCOPED_TRACE("write " + std::to_string(number));
      expectAllOrNothing(file, true);
    }
  }

  void failAtEveryWrite(Fault fault) {
    for (int number = 1;; ++number) {
      ASSERT_LT(number, 1000);
      const std::string file = copy("falho.MDB");
      // 0: saved; 2: refused, undone, and saved at the second try; 3 and more: what must not be.
      const int status = inChild([&] {
        arm(Fault::none, 0);
        TestStore failing(file);
        arm(fault, number);
        const std::int32_t failure = numberOf([&] { saveInvoice(failing); });
        if (failure == 0) ::_exit(countedWrites() < number ? 0 : 2);
        if (failure != errors::diskFull) ::_exit(3);
        while (failing.connection.transactionLevel() > 0)
          if (numberOf([&] { failing.connection.rollbackTrans(); }) != 0) ::_exit(4);
        if (failing.value("SELECT COUNT(lCodigo) FROM FaturasCliente WHERE lNumeroFatura = 77") != "0") ::_exit(5);
        arm(Fault::none, 0);
        saveInvoice(failing);
        ::_exit(2);
      });
      ASSERT_TRUE(WIFEXITED(status));
      SCOPED_TRACE("write " + std::to_string(number));
      if (WEXITSTATUS(status) == 0) {
        EXPECT_GT(number, 20);
        return;
      }
      EXPECT_EQ(WEXITSTATUS(status), 2);
      EXPECT_EQ(integrityOf(file), "ok");
      TestStore after(file);
      EXPECT_EQ(after.value("SELECT COUNT(lCodigo) FROM TitulosReceber WHERE MID(sCodigoInf, 1, 2) = '9/'"),
                std::to_string(titlesOfTheSave));
    }
  }
};

TEST_F(Robustness, KilledAtAnyWriteASaveIsThereWholeOrNotAtAll) { dieAtEveryWrite(Fault::kill); }
TEST_F(Robustness, KilledWithAWriteHalfDoneToo) { dieAtEveryWrite(Fault::tear); }
TEST_F(Robustness, AFullDiskRefusesTheSaveAndLosesNothing) { failAtEveryWrite(Fault::full); }
TEST_F(Robustness, ABrokenDiskRefusesTheSaveAndLosesNothing) { failAtEveryWrite(Fault::broken); }

TEST_F(Robustness, AStoreIsMadeWholeOrNotAtAll) {
  for (const Fault fault : {Fault::kill, Fault::tear, Fault::full, Fault::broken})
    for (int number = 1;; ++number) {
      ASSERT_LT(number, 200);
      const std::string file =
          folder.path("nova" + std::to_string(static_cast<int>(fault)) + "." + std::to_string(number));
      int counted = 0;
      const int status = inChild([&] {
        arm(fault, number);
        createStore(file);
        counted = countedWrites();
        ::_exit(counted < number ? 7 : 0);
      });
      if (fs::exists(file)) {
        EXPECT_EQ(numberOf([&] { TestStore made(file); }), 0);
      }
      if (WIFEXITED(status) && WEXITSTATUS(status) == 7) break;
    }
}

// Two programs

using TwoPrograms = Robustness;
const char* const addBank = "INSERT INTO Bancos (sNome) VALUES ('x')";

TEST_F(TwoPrograms, ReadersGoOnDuringAnothersOpenTransaction) {
  OtherProgram other(path(), {[](TestStore& one) {
                                one.connection.beginTrans();
                                one.run(addBank);
                              },
                              [](TestStore& one) { one.connection.commitTrans(); }});
  other.next();
  TestStore mine(path());
  EXPECT_EQ(mine.value("SELECT COUNT(lCodigo) FROM Bancos"), "1");
  EXPECT_EQ(numberOf([&] { mine.run(addBank); }), errors::storeLocked);
  EXPECT_EQ(numberOf([&] { mine.connection.beginTrans(); }), errors::storeLocked);
  EXPECT_EQ(mine.connection.transactionLevel(), 0);
  EXPECT_EQ(descriptionOf([&] { mine.run(addBank); }),
            "O banco de dados " + path() + " está em uso por outro programa.");
  other.next();
  EXPECT_EQ(mine.value("SELECT COUNT(lCodigo) FROM Bancos"), "2");
  EXPECT_EQ(mine.run(addBank), 1);
}

TEST_F(TwoPrograms, AWriteWaitsUntilTheOtherIsDone) {
  OtherProgram other(path(), {[](TestStore& one) {
                                one.connection.beginTrans();
                                one.run(addBank);
                              },
                              [](TestStore& one) { one.connection.commitTrans(); }});
  other.next();
  Waiting wait([&](int told) {
    if (told == 2) other.order();
    return told < 100;
  });
  TestStore mine(path(), &wait);
  mine.run(addBank);
  EXPECT_GE(wait.told, 2);
  EXPECT_EQ(mine.value("SELECT COUNT(lCodigo) FROM Bancos"), "3");
}

TEST_F(TwoPrograms, AWaitCanBeGivenUpOrEndTheProgram) {
  OtherProgram other(path(), {[](TestStore& one) { one.connection.beginTrans(); }});
  other.next();
  Waiting givesUp([](int told) { return told < 2; });
  TestStore mine(path(), &givesUp);
  EXPECT_EQ(numberOf([&] { mine.run(addBank); }), errors::storeLocked);
  EXPECT_EQ(givesUp.told, 2);
  Waiting ends([](int) -> bool { throw ProgramEnded{3}; });
  TestStore leaving(path(), &ends);
  EXPECT_THROW(leaving.run(addBank), ProgramEnded);
  EXPECT_EQ(leaving.value("SELECT COUNT(lCodigo) FROM Bancos"), "1");
}

TEST_F(TwoPrograms, AListThatIsHalfReadStopsNobody) {
  TestStore mine(path());
  mine.connection.beginTrans();
  for (int number = 0; number < 500; ++number) mine.run(addBank);
  mine.connection.commitTrans();
  Recordset rows("SELECT lCodigo, sNome FROM Bancos ORDER BY lCodigo", mine.connection);
  for (int number = 0; number < 40; ++number, rows.moveNext()) EXPECT_EQ(rows.field("lCodigo").toLong(), number + 1);
  Recordset groups("SELECT sNome, COUNT(*) AS n FROM Bancos GROUP BY sNome", mine.connection);
  OtherProgram other(path(), {[](TestStore& one) { one.run("DELETE * FROM Bancos WHERE lCodigo > 400"); }});
  other.next();
  int seen = 40;
  for (; !rows.eof(); rows.moveNext(), ++seen) {
    const std::int32_t failure = numberOf([&] { rows.field("lCodigo"); });
    EXPECT_TRUE(failure == 0 || (failure == errors::noCurrentRecord && seen == 400)) << seen;
  }
  EXPECT_LE(seen, 401);
}

// Files

class Files : public Robustness {
 protected:
  std::int32_t openNumber(const std::string& name) {
    return numberOf([&] { TestStore opened(folder.path(name)); });
  }
  void write(const std::string& name, const std::string& bytes) {
    std::ofstream(folder.path(name), std::ios::binary) << bytes;
  }
};

TEST_F(Files, ThatAreNoStoresAreTold) {
  write("texto.MDB", "isto não é um banco de dados, por mais comprido que seja o seu texto");
  write("vazio.MDB", "");
  write("curto.MDB", "SQLite");
  EXPECT_EQ(openNumber("texto.MDB"), errors::fileNotStore);
  EXPECT_EQ(openNumber("vazio.MDB"), errors::fileNotStore);
  EXPECT_EQ(openNumber("curto.MDB"), errors::fileNotStore);
  EXPECT_EQ(openNumber("falta.MDB"), errors::storeNotFound);
  EXPECT_EQ(openNumber("falta/loja.MDB"), errors::storeNotFound);
  fs::create_directory(folder.path("pasta.MDB"));
  EXPECT_EQ(openNumber("pasta.MDB"), errors::storeNotOpened);
  sqlite3* database = nullptr;
  sqlite3_open(folder.path("alheio.MDB").c_str(), &database);
  sqlite3_exec(database, "CREATE TABLE x (y)", nullptr, nullptr, nullptr);
  sqlite3_close(database);
  EXPECT_EQ(openNumber("alheio.MDB"), errors::fileNotStore);
  EXPECT_EQ(descriptionOf([&] { TestStore opened(folder.path("texto.MDB")); }),
            "O arquivo " + folder.path("texto.MDB") + " não é um banco de dados do sistema.");
}

TEST_F(Files, ThatAreDamagedAreTold) {
  const std::string file = copy("mal.MDB");
  fs::resize_file(file, std::uintmax_t{4096} * 3);
  EXPECT_EQ(openNumber("mal.MDB"), errors::storeDamaged);
  const std::string other = copy("pior.MDB");
  std::fstream stream(other, std::ios::in | std::ios::out | std::ios::binary);
  stream.seekp(200);
  stream << std::string(60000, '\xEE');
  stream.close();
  EXPECT_EQ(openNumber("pior.MDB"), errors::storeDamaged);
}

TEST_F(Files, ThatMayNotBeWrittenAreTold) {
  ::chmod(folder.path().c_str(), 0755);
  ::chmod(path().c_str(), 0444);
  const int status = inChild([&] {
    // Root writes everywhere: the test must be somebody else.
    if (::getuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(9);
    if (openNumber("loja.MDB") != errors::storeReadOnly) ::_exit(2);
    if (::getuid() == 65534 && numberOf([&] { createStore(folder.path("nova.MDB")); }) != errors::storeNotOpened)
      ::_exit(3);
  });
  EXPECT_EQ(WEXITSTATUS(status), 0);
  ::chmod(path().c_str(), 0600);
}

TEST_F(Files, AreMadeOnceAndFoundWithoutCase) {
  EXPECT_EQ(numberOf([&] { createStore(folder.path("LOJA.mdb")); }), errors::storeExists);
  EXPECT_EQ(numberOf([&] { createStore(folder.path("falta/x.MDB")); }), errors::storeNotOpened);
  EXPECT_EQ(openNumber("Loja.mdb"), 0);
  TestStore opened(folder.path("LOJA.MDB"));
  EXPECT_EQ(opened.connection.dataSource(), path());
  EXPECT_EQ(fs::status(path()).permissions() & fs::perms::others_all, fs::perms::none);
}

}  // namespace
}  // namespace fenvale::test

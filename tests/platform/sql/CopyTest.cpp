// Copies of stores: true, whole, sound, or not there at all.

#include <fcntl.h>
#include <grp.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/sql/FaultyFiles.h"
#include "platform/sql/OtherPrograms.h"
#include "platform/sql/StoreFixture.h"

namespace {

/// What goes to the disk for good, and what gets a name, in its sequence; nothing is noted while this is null.
std::vector<std::string>* diskDiary = nullptr;

void note(std::string happening) {
  if (diskDiary != nullptr && (diskDiary->empty() || diskDiary->back() != happening))
    diskDiary->push_back(std::move(happening));
}

}  // namespace

// These stand before the system's own in this program, and do the same.
extern "C" int fsync(int descriptor) {
  const std::filesystem::path link = "/proc/self/fd/" + std::to_string(descriptor);
  if (diskDiary != nullptr) note("flush " + std::filesystem::read_symlink(link).filename().string().substr(0, 20));
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
}
extern "C" int link(const char* from, const char* to) noexcept {
  note("name " + std::filesystem::path(to).filename().string());
  return static_cast<int>(::syscall(SYS_linkat, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace fenvale::test {
namespace {

namespace fs = std::filesystem;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::StartsWith;

const char* const addBank = "INSERT INTO Bancos (sNome) VALUES ('x')";
const char* const countBanks = "SELECT COUNT(lCodigo) FROM Bancos";

class Copies : public CompanyStore {
 protected:
  Copies() { fs::create_directory(folder.path("copias")); }

  std::string target() const { return folder.path("copias/loja_260315.MDB"); }
  void copy(const CopyProgress& progress = {}, LockWait* wait = nullptr) {
    copyStore(path(), target(), {clock_, wait}, progress);
  }
  Error refusalOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const Error& failure) {
      return failure;
    }
    return {0, ""};
  }
  /// The names in the folder of the copies.
  std::vector<std::string> copies() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.path("copias")))
      names.push_back(entry.path().filename().string());
    return names;
  }
  /// A store of some megabytes, so that a copy takes many steps.
  void fill() {
    store->connection.beginTrans();
    for (int number = 0; number < 12000; ++number)
      store->run("INSERT INTO Bancos (iCodigoInf, sNome) VALUES (" + std::to_string(number + 2) + ", '" +
                 std::string(200, 'b') + "')");
    store->connection.commitTrans();
  }
  static std::vector<std::string> tables(TestStore& of) {
    std::vector<std::string> rows;
    for (const char* table : {"Cidades", "Bancos", "Categorias", "CentroCusto", "Vendedores", "Portadores",
                              "CondicoesPagamento", "Clientes", "Fornecedores", "FaturasCliente", "FaturasFornecedor",
                              "TitulosReceber", "TitulosPagar", "DadosEmpresa"})
      for (const std::string& row : of.rows("SELECT * FROM " + std::string(table)))
        rows.push_back(std::string(table) + " " + row);
    return rows;
  }
  void damage(const std::string& file, std::streamoff place) {
    std::fstream bytes(file, std::ios::binary | std::ios::in | std::ios::out);
    bytes.seekp(place);
    bytes << std::string(600, 'x');
  }

  FixedClock clock_{makeDate(2026, 3, 15)};
};

TEST_F(Copies, HoldWhatTheStoreHoldsAndNothingLiesBesideThem) {
  copy();
  EXPECT_THAT(copies(), ElementsAre("loja_260315.MDB"));
  EXPECT_EQ(fs::status(target()).permissions(), fs::perms(0660));
  TestStore made(target());
  EXPECT_GT(tables(made).size(), 20u);
  EXPECT_EQ(tables(made), tables(*store));
  made.run(addBank);
  EXPECT_EQ(made.value(countBanks), "2");
  EXPECT_EQ(value(countBanks), "1") << "the copy is a store of its own";
}

TEST_F(Copies, OfAnEmptyStoreAreEmptyStores) {
  createStore(folder.path("vazia.MDB"));
  copyStore(folder.path("vazia.MDB"), target(), {clock_});
  EXPECT_EQ(numberOf([&] { TestStore made(target()); }), 0);
}

TEST_F(Copies, TellHowFarTheyAreUntilAllIsDone) {
  fill();
  std::vector<std::int64_t> told;
  std::int64_t last = 0;
  copy([&](std::int64_t done, std::int64_t whole) {
    told.push_back(done);
    last = whole;
    EXPECT_TRUE(done < whole || fs::exists(target()));
  });
  EXPECT_GT(told.size(), 8u);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  EXPECT_EQ(told.back(), last);
}

TEST_F(Copies, AreOnTheDiskBeforeTheyAreReadBackAndHaveTheirNameLast) {
  std::vector<std::string> diary;
  diskDiary = &diary;
  copy([&](std::int64_t done, std::int64_t whole) {
    if (done >= whole / 3) note(done < whole ? "read" : "done");
  });
  diskDiary = nullptr;
  EXPECT_THAT(diary, ElementsAre("flush loja_260315.MDB.novo", "read", "flush loja_260315.MDB.novo",
                                 "name loja_260315.MDB", "flush copias", "done"));
}

TEST_F(Copies, NeverTakeThePlaceOfAFile) {
  std::ofstream(folder.path("copias/LOJA_260315.mdb")) << "outro";
  const Error refusal = refusalOf([&] { copy(); });
  EXPECT_EQ(refusal.number, errors::storeExists);
  EXPECT_EQ(refusal.description, "O arquivo " + folder.path("copias/LOJA_260315.mdb") + " já existe.");
  EXPECT_EQ(fs::file_size(folder.path("copias/LOJA_260315.mdb")), 5u);
}

TEST_F(Copies, NorOfAFileThatCameMeanwhile) {
  const Error refusal = refusalOf([&] { copy([&](auto, auto) { std::ofstream(target()) << "outro"; }); });
  EXPECT_EQ(refusal.number, errors::storeExists);
  EXPECT_THAT(copies(), ElementsAre("loja_260315.MDB"));
  EXPECT_EQ(fs::file_size(target()), 5u);
}

TEST_F(Copies, OfWhatIsNoStoreAreRefused) {
  std::ofstream(folder.path("texto.MDB")) << "isto não é um banco de dados, por mais comprido que seja";
  EXPECT_EQ(refusalOf([&] { copyStore(folder.path("texto.MDB"), target(), {clock_}); }).description,
            "O arquivo " + folder.path("texto.MDB") + " não é um banco de dados do sistema.");
  const Error missing = refusalOf([&] { copyStore(folder.path("falta.MDB"), target(), {clock_}); });
  EXPECT_EQ(missing.number, errors::storeNotFound);
  EXPECT_EQ(missing.description, "O banco de dados " + folder.path("falta.MDB") + " não foi encontrado.");
  EXPECT_THAT(copies(), ElementsAre());
}

TEST_F(Copies, OfADamagedStoreAreRefusedWhereverTheDamageIs) {
  store->connection.close();
  const auto size = static_cast<std::streamoff>(fs::file_size(path()));
  constexpr std::streamoff page = 4096;
  for (std::streamoff place = page; place < size; place += page) {
    fs::copy_file(path(), folder.path("ruim.MDB"), fs::copy_options::overwrite_existing);
    damage(folder.path("ruim.MDB"), place);
    const Error refusal = refusalOf([&] { copyStore(folder.path("ruim.MDB"), target(), {clock_}); });
    EXPECT_EQ(refusal.number, errors::storeDamaged) << place;
    EXPECT_EQ(refusal.description, "O banco de dados " + folder.path("ruim.MDB") + " está danificado.");
    EXPECT_THAT(copies(), ElementsAre()) << place;
  }
}

TEST_F(Copies, OfAStoreThatMayOnlyBeReadAreMade) {
  store->connection.close();
  fs::create_directory(folder.path("so-leitura"));
  fs::copy_file(path(), folder.path("so-leitura/loja.MDB"));
  ::chmod(folder.path().c_str(), 0755);
  ::chmod(folder.path("so-leitura/loja.MDB").c_str(), 0444);
  ::chmod(folder.path("so-leitura").c_str(), 0555);
  ::chmod(folder.path("copias").c_str(), 0777);
  const int status = inChild([&] {
    // Root writes everywhere: the test must be somebody else.
    if (::getuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(9);
    copyStore(folder.path("so-leitura/loja.MDB"), target(), {clock_});
    TestStore made(target());
    if (made.value(countBanks) != "1") ::_exit(2);
  });
  ::chmod(folder.path("so-leitura").c_str(), 0755);
  EXPECT_EQ(status, 0);
}

TEST_F(Copies, IntoAFolderThatMayNotBeWrittenTellWhy) {
  ::chmod(folder.path().c_str(), 0755);
  ::chmod(path().c_str(), 0666);
  ::chmod(folder.path("copias").c_str(), 0555);
  const int status = inChild([&] {
    if (::getuid() == 0 && (::setgroups(0, nullptr) != 0 || ::setgid(65534) != 0 || ::setuid(65534) != 0)) ::_exit(9);
    const Error refusal = refusalOf([&] { copy(); });
    if (refusal.number != errors::storeNotOpened) ::_exit(2);
    if (refusal.description != "Não foi possível gravar o arquivo " + target() + ": permissão negada.") ::_exit(3);
  });
  ::chmod(folder.path("copias").c_str(), 0755);
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_THAT(copies(), ElementsAre());
  EXPECT_EQ(refusalOf([&] { copyStore(path(), folder.path("falta/x.MDB"), {clock_}); }).description,
            "Não foi possível gravar o arquivo " + folder.path("falta/x.MDB") + ": o caminho não existe.");
}

TEST_F(Copies, WhoseFolderVanishesOnTheWayAreRefused) {
  fill();
  for (int third = 0; third < 3; ++third) {
    fs::create_directories(folder.path("copias"));
    const Error refusal = refusalOf([&] {
      copy([&](std::int64_t done, std::int64_t whole) {
        if (done >= third * whole / 3) fs::remove_all(folder.path("copias"));
      });
    });
    EXPECT_EQ(refusal.number, errors::storeNotOpened);
    EXPECT_EQ(refusal.description, "Não foi possível gravar o arquivo " + target() + ": o caminho não existe.");
  }
}

TEST_F(Copies, ThatAreBrokenOffLeaveNothing) {
  fill();
  for (int third = 0; third < 3; ++third) {
    EXPECT_THROW(copy([&](std::int64_t done, std::int64_t whole) {
                   if (done >= third * whole / 3) throw ProgramEnded{3};
                 }),
                 ProgramEnded);
    EXPECT_THAT(copies(), ElementsAre());
  }
  const Error refusal = refusalOf([&] { copy([](auto, auto) { throw Error(77, "Chega."); }); });
  EXPECT_EQ(refusal.description, "Chega.");
}

// A disk that fails, a process that dies

TEST_F(Copies, OnADiskThatFailsAreRefusedAndLeaveNothing) {
  store->connection.close();
  struct Failure {
    Fault fault;
    std::int32_t number;
    std::string description;
  };
  for (const Failure& each :
       {Failure{Fault::full, errors::diskFull,
                "O banco de dados " + target() + " não pôde ser gravado: o disco está cheio."},
        Failure{Fault::broken, errors::diskFull,
                "O banco de dados " + target() + " não pôde ser gravado: o disco está cheio ou falhou."},
        Failure{Fault::garble, errors::storeDamaged,
                "A cópia " + target() + " não confere com o original: o disco falhou."}})
    for (int number = 1;; ++number) {
      ASSERT_LT(number, 1000);
      SCOPED_TRACE("write " + std::to_string(number));
      const int status = inChild([&] {
        arm(each.fault, number);
        const Error refusal = refusalOf([&] { copy(); });
        if (countedWrites() < number) ::_exit(refusal.number == 0 ? 7 : 2);
        if (refusal.number != each.number) ::_exit(3);
        if (!refusal.description.starts_with(each.description)) ::_exit(4);
        if (!copies().empty()) ::_exit(5);
      });
      ASSERT_TRUE(WIFEXITED(status));
      if (WEXITSTATUS(status) == 7) {
        EXPECT_GT(number, 20);
        fs::remove(target());
        break;
      }
      ASSERT_EQ(WEXITSTATUS(status), 0);
    }
}

TEST_F(Copies, OfAProcessThatIsKilledAreThereWholeOrNotAtAll) {
  store->connection.close();
  for (const Fault fault : {Fault::kill, Fault::tear})
    for (int number = 1;; ++number) {
      ASSERT_LT(number, 1000);
      const int status = inChild([&] {
        arm(fault, number);
        copy();
        ::_exit(countedWrites() < number ? 7 : 0);
      });
      if (WIFEXITED(status)) {
        EXPECT_EQ(WEXITSTATUS(status), 7);
        EXPECT_GT(number, 20);
        fs::remove(target());
        break;
      }
      EXPECT_EQ(WTERMSIG(status), SIGKILL);
      EXPECT_FALSE(fs::exists(target())) << "write " << number;
    }
}

TEST_F(Copies, OfAProcessThatIsKilledHalfwayAreNotThereAndTheNextIsMade) {
  fill();
  store->connection.close();
  for (int third = 0; third < 3; ++third) {
    const int status = inChild([&] {
      copy([&](std::int64_t done, std::int64_t whole) {
        if (done >= third * whole / 3) ::kill(::getpid(), SIGKILL);
      });
    });
    EXPECT_EQ(WTERMSIG(status), SIGKILL);
    EXPECT_FALSE(fs::exists(target()));
    EXPECT_THAT(copies(), Each(StartsWith("loja_260315.MDB.novo-"))) << "a rest that no list of companies shows";
  }
  copy();
  EXPECT_TRUE(fs::exists(target()));
}

// Other programs

TEST_F(Copies, AreOfOneMomentWhileAnotherProgramWrites) {
  fill();
  store->connection.close();
  Waiting patience([](int) { return true; });
  OtherProgram other(path(), {[](TestStore& one) { one.run(addBank); }}, &patience);
  bool ordered = false;
  copy([&](auto, auto) {
    if (!ordered) other.order();
    ordered = true;
  });
  other.expectAnswer();
  EXPECT_EQ(TestStore(target()).value(countBanks), "12001");
  EXPECT_EQ(TestStore(path()).value(countBanks), "12002");
}

TEST_F(Copies, HoldNothingOfATransactionThatIsStillOpen) {
  OtherProgram other(path(), {[](TestStore& one) {
                       one.connection.beginTrans();
                       one.run(addBank);
                     }});
  other.next();
  copy();
  EXPECT_EQ(TestStore(target()).value(countBanks), "1");
}

/// A program that has the store for itself, as in the moment of its commit.
std::function<void(TestStore&)> lockWhole(const std::string& path) {
  return [path](TestStore& one) {
    one.connection.close();
    sqlite3* handle = nullptr;
    sqlite3_open(path.c_str(), &handle);
    sqlite3_exec(handle, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
  };
}

TEST_F(Copies, OfAStoreThatAnotherProgramHasForItselfAreRefused) {
  store->connection.close();
  OtherProgram other(path(), {lockWhole(path())});
  other.next();
  const Error refusal = refusalOf([&] { copy(); });
  EXPECT_EQ(refusal.number, errors::storeLocked);
  EXPECT_EQ(refusal.description, "O banco de dados " + path() + " está em uso por outro programa.");
  Waiting givesUp([](int told) { return told < 2; });
  EXPECT_EQ(refusalOf([&] { copy({}, &givesUp); }).number, errors::storeLocked);
  EXPECT_EQ(givesUp.told, 2);
  EXPECT_THAT(copies(), ElementsAre());
}

TEST_F(Copies, WaitUntilTheOtherProgramIsDone) {
  store->connection.close();
  auto other = std::make_unique<OtherProgram>(path(), std::vector{lockWhole(path())});
  other->next();
  Waiting wait([&](int told) {
    if (told == 2) other.reset();
    return told < 100;
  });
  copy({}, &wait);
  EXPECT_GE(wait.told, 2);
  EXPECT_EQ(TestStore(target()).value(countBanks), "1");
}

TEST_F(Copies, UndoWhatADeadProgramLeftHalfDone) {
  store->connection.close();
  for (int number = 1;; ++number) {
    ASSERT_LT(number, 100);
    const std::string dead = folder.path("morta.MDB");
    fs::copy_file(path(), dead, fs::copy_options::overwrite_existing);
    const int status = inChild([&] {
      arm(Fault::kill, number);
      TestStore(dead).run(addBank);
    });
    if (WIFEXITED(status)) break;
    copyStore(dead, target(), {clock_});
    EXPECT_EQ(TestStore(target()).value(countBanks), TestStore(dead).value(countBanks));
    fs::remove(target());
    EXPECT_FALSE(fs::exists(target() + "-journal"));
  }
}

}  // namespace
}  // namespace fenvale::test

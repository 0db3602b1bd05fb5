#include "platform/os/System.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <filesystem>

#include "platform/base/Error.h"
#include "platform/os/ApplicationPath.h"
#include "platform/os/SingleInstance.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

TEST(SystemClock, TellsTheLocalWallClock) {
  const char* const zone = std::getenv("TZ");
  const std::string before = zone == nullptr ? "" : zone;
  ::setenv("TZ", "XXX3", 1);  // three hours west of Greenwich
  ::tzset();
  const auto west = SystemClock().now();
  ::setenv("TZ", "XXX0", 1);
  ::tzset();
  const auto greenwich = SystemClock().now();
  zone == nullptr ? ::unsetenv("TZ") : ::setenv("TZ", before.c_str(), 1);
  ::tzset();
  EXPECT_NEAR(static_cast<double>((greenwich - west).count()), 3 * 3600, 2);
  EXPECT_EQ(SystemClock().today(), std::chrono::floor<std::chrono::days>(SystemClock().now()));
}

TEST(SystemProcess, EndsAtOnceWithTheExitCode) {
  EXPECT_EXIT(SystemProcess().end(exitRestart), testing::ExitedWithCode(75), "");
}

std::string searchPath() {
  const char* const path = std::getenv("PATH");
  return path == nullptr ? std::string() : path;
}

/// The programs that are found by name, as long as it lives.
class ProgramFolder {
 public:
  explicit ProgramFolder(const std::string& folder) : before_(searchPath()) { ::setenv("PATH", folder.c_str(), 1); }
  ~ProgramFolder() { ::setenv("PATH", before_.c_str(), 1); }
  ProgramFolder(const ProgramFolder&) = delete;
  ProgramFolder& operator=(const ProgramFolder&) = delete;

 private:
  std::string before_;
};

TEST(SystemProcess, HandsAFileToTheDesktopsOwnProgram) {
  const PastaTemporaria folder;
  const std::string answer = folder.arquivo("resposta");
  ASSERT_EQ(::mkfifo(answer.c_str(), 0600), 0);
  folder.gravar("xdg-open", "#!/bin/sh\nprintf '%s|%s' \"$#\" \"$1\" > '" + answer + "'\n");
  std::filesystem::permissions(folder.arquivo("xdg-open"), std::filesystem::perms::owner_all);
  folder.gravar("Relatório 1.txt", "x");
  {
    const ProgramFolder programs(folder.caminho());
    SystemProcess().openFile(folder.caminho() + "\\relatório 1.TXT");
  }
  EXPECT_EQ(folder.ler("resposta"), "1|" + folder.arquivo("Relatório 1.txt")) << "read from the pipe";
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "no child is left behind";
}

TEST(SystemProcess, SaysThatNoProgramOpensAFile) {
  const PastaTemporaria empty;
  const ProgramFolder programs(empty.caminho());
  try {
    SystemProcess().openFile("/a/b.txt");
    FAIL() << "no Error";
  } catch (const Error& failure) {
    EXPECT_EQ(failure.number, errors::fileNotFound);
    EXPECT_EQ(failure.description, "Não há programa que abra o arquivo /a/b.txt.");
  }
}

TEST(SystemNetwork, KnowsThisMachine) {
  SystemNetwork network;
  std::array<char, 256> name{};
  ASSERT_EQ(::gethostname(name.data(), name.size() - 1), 0);
  EXPECT_EQ(network.hostName(), name.data());
  EXPECT_EQ(network.address("127.0.0.1"), "127.0.0.1");
  EXPECT_EQ(network.address("localhost"), "127.0.0.1");
  EXPECT_THROW((void)network.address("nome.invalid"), Error);
}

class OneInstance : public testing::Test {
 protected:
  PastaTemporaria folder;
  std::string lock = folder.arquivo("instancia.lock");
};

TEST_F(OneInstance, TheSecondOneSeesTheFirst) {
  {
    const SingleInstance first(lock);
    EXPECT_TRUE(first.first());
    const SingleInstance second(lock);
    EXPECT_FALSE(second.first());
  }
  const SingleInstance again(lock);
  EXPECT_TRUE(again.first());
}

TEST_F(OneInstance, ThePlaceIsFreeAgainWhenItsHolderWasKilled) {
  std::array<int, 2> ready{};
  ASSERT_EQ(::pipe(ready.data()), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const SingleInstance held(lock);
    const char answer = held.first() ? 'y' : 'n';
    (void)!::write(ready[1], &answer, 1);
    for (;;) ::pause();
  }
  char answer = 0;
  ASSERT_EQ(::read(ready[0], &answer, 1), 1);
  EXPECT_EQ(answer, 'y');
  EXPECT_FALSE(SingleInstance(lock).first());
  ::kill(child, SIGKILL);
  int status = 0;
  ::waitpid(child, &status, 0);
  EXPECT_TRUE(SingleInstance(lock).first());
  ::close(ready[0]);
  ::close(ready[1]);
}

TEST_F(OneInstance, WhereNoLockCanBeMadeTheProgramStarts) {
  EXPECT_TRUE(SingleInstance(folder.arquivo("nada/instancia.lock")).first());
}

class Places : public testing::Test {
 protected:
  Places() {
    folder.gravar("opt/share/SQL.xmlSQL", "<root/>");
    folder.gravar("opt/share/Cidades.XML", "cidades");
    folder.gravar("opt/share/icones/novo.svg", "<svg/>");
    folder.gravar("opt/libexec/programa", "x");
  }
  std::string path() {
    return applicationPath({folder.arquivo("opt/libexec"),
                            {folder.arquivo("opt/nada"), folder.arquivo("opt/share")},
                            folder.arquivo("casa/.local/share/gestor-fenvale")});
  }
  std::string user(const std::string& name) { return "casa/.local/share/gestor-fenvale/" + name; }
  PastaTemporaria folder;
};

TEST_F(Places, AMarkerBesideTheProgramMakesItsFolderTheApplicationPath) {
  for (const char* marker : {"portatil", "Dados.MDB", "init.ini", "dados.mdb"}) {
    folder.gravar(std::string("opt/libexec/") + marker, "");
    EXPECT_EQ(path(), folder.arquivo("opt/libexec")) << marker;
    std::filesystem::remove(folder.arquivo(std::string("opt/libexec/") + marker));
  }
  EXPECT_FALSE(folder.existe("casa"));
}

TEST_F(Places, OtherwiseTheUserGetsAFolderWithTheShippedFiles) {
  EXPECT_EQ(path(), folder.arquivo("casa/.local/share/gestor-fenvale"));
  EXPECT_EQ(folder.ler(user("SQL.xmlSQL")), "<root/>");
  EXPECT_EQ(folder.ler(user("Cidades.XML")), "cidades");
  EXPECT_EQ(folder.ler(user("icones/novo.svg")), "<svg/>");
}

TEST_F(Places, WhatTheUserHasIsKeptButForAnOlderScript) {
  (void)path();
  folder.gravar(user("Cidades.XML"), "revisadas");
  folder.gravar(user("SQL.xmlSQL"), "velho");
  folder.gravar("opt/share/SQL.xmlSQL", "novo");
  (void)path();
  EXPECT_EQ(folder.ler(user("Cidades.XML")), "revisadas");
  EXPECT_EQ(folder.ler(user("SQL.xmlSQL")), "novo");
}

TEST_F(Places, OfThisMachineTheUsersOwnFolderIsTheLastResort) {
  const ProgramPlaces places = systemPlaces();
  EXPECT_TRUE(std::filesystem::is_directory(places.executableFolder));
  EXPECT_TRUE(places.userFolder.ends_with("/gestor-fenvale"));
  EXPECT_EQ(places.userFolder.find(FENVALE_BUILD_DIR), std::string::npos);
}

}  // namespace
}  // namespace fenvale

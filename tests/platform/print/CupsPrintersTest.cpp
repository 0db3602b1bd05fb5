#include "platform/print/cups/CupsPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

/// A print server of our own on a socket in a temporary folder.
class PrintServer {
 public:
  explicit PrintServer(const std::string& queues) {
    const std::string base = folder_.caminho();
    for (const char* name : {"conf", "state", "cache", "spool", "tmp"})
      std::filesystem::create_directories(base + "/" + name);
    folder_.gravar("conf/cupsd.conf", "Listen " + socket() +
                                          "\nBrowsing Off\nLogLevel error\nDefaultAuthType None\n"
                                          "<Location />\nOrder allow,deny\nAllow all\n</Location>\n");
    folder_.gravar("conf/cups-files.conf", "ServerRoot " + base + "/conf\nStateDir " + base + "/state\nCacheDir " +
                                               base + "/cache\nRequestRoot " + base + "/spool\nTempDir " + base +
                                               "/tmp\nFileDevice Yes\nAccessLog " + base + "/access\nErrorLog " + base +
                                               "/errors\nPageLog " + base + "/pages\n");
    folder_.gravar("conf/printers.conf", queues);
    process_ = ::fork();
    if (process_ == 0) {
      const std::string configuration = base + "/conf/cupsd.conf";
      const std::string places = base + "/conf/cups-files.conf";
      ::execlp("cupsd", "cupsd", "-f", "-c", configuration.c_str(), "-s", places.c_str(), nullptr);
      ::execl("/usr/sbin/cupsd", "cupsd", "-f", "-c", configuration.c_str(), "-s", places.c_str(), nullptr);
      ::_exit(127);
    }
    waitUntilItAnswers();
  }
  ~PrintServer() {
    ::kill(process_, SIGKILL);
    int status = 0;
    ::waitpid(process_, &status, 0);
  }
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;
  std::string socket() const { return folder_.arquivo("cups.sock"); }

 private:
  void waitUntilItAnswers() const {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    socket().copy(address.sun_path, sizeof address.sun_path - 1);
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (std::chrono::steady_clock::now() < end) {
      const int probe = ::socket(AF_UNIX, SOCK_STREAM, 0);
      const bool answers = ::connect(probe, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
      ::close(probe);
      if (answers) return;
      std::this_thread::yield();
    }
    throw std::runtime_error("the print server did not start: " + folder_.ler("errors"));
  }

  PastaTemporaria folder_;
  pid_t process_ = 0;
};

/// The printers as a program sees them that starts with this server; the library asks for it once per thread.
std::vector<std::string> printersOf(const std::string& server) {
  std::vector<std::string> names;
  ::setenv("CUPS_SERVER", server.c_str(), 1);
  std::thread([&names] { names = CupsPrinters().printers(); }).join();
  ::unsetenv("CUPS_SERVER");
  return names;
}

std::string queue(const std::string& name) {
  return "<Printer " + name + ">\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\nShared No\n</Printer>\n";
}

TEST(Printers, EveryQueueOfTheMachineAndTheBuiltInEntryLast) {
  const PrintServer server(queue("Recibos") + queue("Laser_do_balcao"));
  EXPECT_THAT(printersOf(server.socket()), ElementsAre("Laser_do_balcao", "Recibos", "Arquivo PDF"));
}

TEST(Printers, AMachineWithoutQueuesHasTheBuiltInEntry) {
  const PrintServer server("");
  EXPECT_THAT(printersOf(server.socket()), ElementsAre("Arquivo PDF"));
}

TEST(Printers, AMachineWithoutAPrintServerHasTheBuiltInEntry) {
  const PastaTemporaria folder;
  EXPECT_THAT(printersOf(folder.arquivo("nada.sock")), ElementsAre("Arquivo PDF"));
}

}  // namespace
}  // namespace fenvale

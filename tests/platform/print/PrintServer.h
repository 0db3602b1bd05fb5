#pragma once

#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <thread>

#include "support/ProgramaDeTeste.h"

namespace fenvale {

/// A print server of our own on a socket in a temporary folder.
/// Its printers are run by the system's own backends; as root it gives them to a user of less rights.
class PrintServer {
 public:
  explicit PrintServer(const std::string& queues) {
    const std::string base = folder_.caminho();
    namespace fs = std::filesystem;
    fs::permissions(base, fs::perms::group_exec | fs::perms::others_exec, fs::perm_options::add);
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
  ~PrintServer() { stop(); }
  void stop() {
    if (process_ == 0) return;
    ::kill(process_, SIGKILL);
    int status = 0;
    ::waitpid(process_, &status, 0);
    process_ = 0;
  }
  PrintServer(const PrintServer&) = delete;
  PrintServer& operator=(const PrintServer&) = delete;
  std::string socket() const { return folder_.arquivo("cups.sock"); }

  /// Runs `action` as a program does that starts with this server; the library asks for it once per thread.
  template <typename Action>
  void serve(Action action) const {
    serve(socket(), action);
  }
  template <typename Action>
  static void serve(const std::string& socket, Action action) {
    std::exception_ptr failure;
    ::setenv("CUPS_SERVER", socket.c_str(), 1);
    std::thread([&] {
      try {
        action();
      } catch (...) {
        failure = std::current_exception();
      }
    }).join();
    ::unsetenv("CUPS_SERVER");
    if (failure) std::rethrow_exception(failure);
  }

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

}  // namespace fenvale

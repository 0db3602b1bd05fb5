#pragma once
// A print server and a printer of the test's own.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <map>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "support/ProgramaDeTeste.h"

namespace fenvale {

/// A print server of our own on a socket in a temporary folder.
/// Its printers are run by the system's own backends; as root it gives them to a user of less rights.
class PrintServer {
 public:
  /// `drivers` are the descriptions of printers (PPD), by the names of their queues; a queue without one is raw.
  explicit PrintServer(const std::string& queues, const std::map<std::string, std::string>& drivers = {}) {
    const std::string base = folder_.caminho();
    namespace fs = std::filesystem;
    fs::permissions(base, fs::perms::group_exec | fs::perms::others_exec, fs::perm_options::add);
    for (const char* name : {"conf/ppd", "state", "cache", "spool", "tmp"})
      std::filesystem::create_directories(base + "/" + name);
    folder_.gravar("conf/cupsd.conf", "Listen " + socket() +
                                          "\nBrowsing Off\nLogLevel error\nDefaultAuthType None\n"
                                          "<Location />\nOrder allow,deny\nAllow all\n</Location>\n");
    folder_.gravar("conf/cups-files.conf", "ServerRoot " + base + "/conf\nStateDir " + base + "/state\nCacheDir " +
                                               base + "/cache\nRequestRoot " + base + "/spool\nTempDir " + base +
                                               "/tmp\nFileDevice Yes\nAccessLog " + base + "/access\nErrorLog " + base +
                                               "/errors\nPageLog " + base + "/pages\n");
    folder_.gravar("conf/printers.conf", queues);
    for (const auto& [queue, driver] : drivers) folder_.gravar("conf/ppd/" + queue + ".ppd", driver);
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

/// A printer at the network's end: keeps what every connection sends, up to its end.
class NetworkPrinter {
 public:
  NetworkPrinter() : listener_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    if (::bind(listener_, reinterpret_cast<const sockaddr*>(&address), size) != 0 || ::listen(listener_, 8) != 0 ||
        ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &size) != 0)
      throw std::runtime_error("no port for the printer");
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { receive(); });
  }
  ~NetworkPrinter() {
    ::shutdown(listener_, SHUT_RDWR);
    thread_.join();
    ::close(listener_);
  }
  NetworkPrinter(const NetworkPrinter&) = delete;
  NetworkPrinter& operator=(const NetworkPrinter&) = delete;

  std::string address() const { return "socket://127.0.0.1:" + std::to_string(port_) + "/"; }

  /// The first `count` prints, as soon as they are whole.
  std::vector<std::string> prints(std::size_t count) {
    std::unique_lock lock(mutex_);
    arrived_.wait_for(lock, std::chrono::seconds(20), [&] { return prints_.size() >= count; });
    return prints_;
  }

 private:
  void receive() {
    for (;;) {
      const int connection = ::accept(listener_, nullptr, nullptr);
      if (connection < 0) return;
      std::string bytes;
      std::string block(65536, '\0');
      for (ssize_t read = 0; (read = ::read(connection, block.data(), block.size())) > 0;)
        bytes.append(block, 0, static_cast<std::size_t>(read));
      ::close(connection);
      const std::lock_guard lock(mutex_);
      prints_.push_back(std::move(bytes));
      arrived_.notify_all();
    }
  }

  int listener_;
  std::uint16_t port_ = 0;
  std::mutex mutex_;
  std::condition_variable arrived_;
  std::vector<std::string> prints_;
  std::thread thread_;
};

inline std::string queueAt(const std::string& name, const std::string& address, const std::string& accepting = "Yes") {
  return "<Printer " + name + ">\nDeviceURI " + address + "\nState Idle\nAccepting " + accepting +
         "\nShared No\n</Printer>\n";
}

}  // namespace fenvale

#include "platform/os/System.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>

#include "platform/base/Error.h"
#include "platform/os/Files.h"

namespace fenvale {

Date SystemClock::today() const { return std::chrono::floor<std::chrono::days>(now()); }

DateTime SystemClock::now() const {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&seconds, &local);
  const Date day =
      makeDate(local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1), static_cast<unsigned>(local.tm_mday));
  return DateTime(day) + std::chrono::hours(local.tm_hour) + std::chrono::minutes(local.tm_min) +
         std::chrono::seconds(local.tm_sec);
}

void SystemProcess::end(int exitCode) {
  std::fflush(nullptr);
  ::_exit(exitCode);
}

void SystemProcess::openFile(const std::string& path) {
  // All that follows the fork is made beforehand: the child of a process with threads may not allocate.
  const std::string native = files::nativePath(path);
  const std::array<const char*, 3> command{"xdg-open", native.c_str(), nullptr};
  std::array<int, 2> report{};
  if (::pipe2(report.data(), O_CLOEXEC) != 0) return Process::openFile(native);
  const pid_t child = ::fork();
  if (child == 0) {
    // The grandchild belongs to nobody here: the program neither waits for it nor takes it along when it ends.
    ::setsid();
    const pid_t opener = ::fork();
    if (opener == 0) ::execvp(command[0], const_cast<char* const*>(command.data()));
    if (opener <= 0) (void)!::write(report[1], "x", 1);
    ::_exit(0);
  }
  ::close(report[1]);
  // A program that started has closed its end without a word.
  char word = 0;
  ssize_t said = 0;
  do said = ::read(report[0], &word, 1);
  while (said < 0 && errno == EINTR);
  ::close(report[0]);
  if (child > 0) ::waitpid(child, nullptr, 0);
  if (child < 0 || said != 0) Process::openFile(native);
}

std::string SystemNetwork::hostName() {
  std::array<char, 256> buffer{};
  if (::gethostname(buffer.data(), buffer.size() - 1) != 0)
    throw Error(errno, "O nome desta máquina não pôde ser obtido.");
  return buffer.data();
}

std::string SystemNetwork::address(const std::string& hostName) {
  addrinfo wanted{};
  wanted.ai_family = AF_INET;
  wanted.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (const int code = ::getaddrinfo(hostName.c_str(), nullptr, &wanted, &found); code != 0)
    throw Error(code, "O nome " + hostName + " não pôde ser resolvido.");
  std::array<char, INET_ADDRSTRLEN> text{};
  const auto* address = reinterpret_cast<const sockaddr_in*>(found->ai_addr);
  ::inet_ntop(AF_INET, &address->sin_addr, text.data(), text.size());
  ::freeaddrinfo(found);
  return text.data();
}

}  // namespace fenvale

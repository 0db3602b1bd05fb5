#include "platform/os/System.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <ctime>

#include "platform/base/Error.h"

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

#pragma once
// Who this machine is on its network.

#include <cstdint>
#include <string>

namespace fenvale {

/// What the machine's socket library says of itself when it is started.
struct SocketLibrary {
  int error = 0;                   ///< 0: it answers
  std::uint16_t version = 0x0101;  ///< major version in the low byte, minor in the high one
  int maximumSockets = 0x7FFF;
};

class Network {
 public:
  virtual ~Network() = default;
  /// Asks for a version of the socket library, written as SocketLibrary::version is. Systems that have the sockets
  /// always at hand answer with what was asked for.
  virtual SocketLibrary start(std::uint16_t version) { return {0, version, 0x7FFF}; }
  /// 0, or the number of the failure.
  virtual int stop() { return 0; }
  /// Error with the socket library's number when it cannot be told.
  virtual std::string hostName() = 0;
  /// First address of the host name, four decimal bytes joined by "."; Error when it cannot be resolved.
  virtual std::string address(const std::string& hostName) = 0;
};

}  // namespace fenvale

#pragma once
// Who this machine is on its network.

#include <string>

namespace fenvale {

class Network {
 public:
  virtual ~Network() = default;
  /// Error with the socket library's number when it cannot be told.
  virtual std::string hostName() = 0;
  /// First address of the host name, four decimal bytes joined by "."; Error when it cannot be resolved.
  virtual std::string address(const std::string& hostName) = 0;
};

}  // namespace fenvale

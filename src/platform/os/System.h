#pragma once
// The machine itself, behind the interfaces by which the program sees it.

#include "platform/base/Date.h"
#include "platform/os/Network.h"
#include "platform/os/Process.h"

namespace fenvale {

/// The wall clock in the machine's time zone.
class SystemClock final : public Clock {
 public:
  Date today() const override;
  DateTime now() const override;
};

/// Ends the process without unwinding or running anything more; opens files by the desktop's own choice.
class SystemProcess final : public Process {
 public:
  [[noreturn]] void end(int exitCode) override;
  void openFile(const std::string& path) override;
};

class SystemNetwork final : public Network {
 public:
  std::string hostName() override;
  std::string address(const std::string& hostName) override;
};

}  // namespace fenvale

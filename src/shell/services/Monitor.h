#pragma once
// The monitor, as far as the program asks for it.

#include <string>

namespace fenvale {

class UiHost;

class Monitor {
 public:
  explicit Monitor(const UiHost& host) : host_(host) {}
  static const char* sGetName() { return "Monitor"; }

  /// "<width>x<height>" in pixels, without blanks: "1024x768".
  std::string sObterResolucaoMonitor() const;

 private:
  const UiHost& host_;
};

}  // namespace fenvale

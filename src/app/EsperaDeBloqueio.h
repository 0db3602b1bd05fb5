#pragma once
// A statement waits for another program's lock: the window stays alive, and after two seconds the user may give up.

#include "platform/sql/Store.h"

namespace fenvale {

class UiHost;

class EsperaDeBloqueio final : public LockWait {
 public:
  explicit EsperaDeBloqueio(UiHost& host) : host_(host) {}
  bool keepWaiting(std::chrono::milliseconds waited) override;

 private:
  UiHost& host_;
  std::chrono::milliseconds proximoAviso_{0};
};

}  // namespace fenvale

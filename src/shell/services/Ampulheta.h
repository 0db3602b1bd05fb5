#pragma once
// The hourglass for as long as a piece of work runs, whatever way it ends.

#include "shell/services/Funcoes.h"

namespace fenvale {

class Ampulheta {
 public:
  explicit Ampulheta(Funcoes& funcoes) : funcoes_(funcoes) { funcoes_.bSetAmpulhetaMouse(false); }
  ~Ampulheta() { funcoes_.bSetAmpulhetaMouse(true); }
  Ampulheta(const Ampulheta&) = delete;
  Ampulheta& operator=(const Ampulheta&) = delete;

 private:
  Funcoes& funcoes_;
};

}  // namespace fenvale

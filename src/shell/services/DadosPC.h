#pragma once
// The machine's own name and address, for the failure report.

#include <cstdint>
#include <string>

namespace fenvale {

class Contexto;

class DadosPC {
 public:
  explicit DadosPC(Contexto& contexto);
  static const char* sGetName() { return "DadosPC"; }

  /// Four decimal bytes joined by "."; an empty text, after a box that says why, when it cannot be told.
  std::string sVerificarIP();
  std::string sVerificarHost();

  /// False, after a box that says why, when there is no usable socket library.
  bool SocketsInitialize();
  void SocketsCleanup();

  static std::uint8_t hibyte(std::uint16_t iValor) { return static_cast<std::uint8_t>(iValor >> 8); }
  static std::uint8_t lobyte(std::uint16_t iValor) { return static_cast<std::uint8_t>(iValor & 0xFF); }

 private:
  Contexto& contexto_;
};

}  // namespace fenvale

#pragma once
// Which of the four lists of the accounts overview are on offer: those that the firm's settings switch on, or all.

namespace fenvale {

class Contexto;

class QuadroGeralContas {
 public:
  /// Reads the settings, once: a change of them counts from the next start of the program. The store's errors.
  explicit QuadroGeralContas(Contexto& contexto);

  bool bGetMostrarContasPagarDia() const { return bMostrarTodas || bMostrarContasPagarDia; }
  bool bGetMostrarContasReceberDia() const { return bMostrarTodas || bMostrarContasReceberDia; }
  bool bGetMostrarContasPagarVencidas() const { return bMostrarTodas || bMostrarContasPagarVencidas; }
  bool bGetMostrarContasReceberVencidas() const { return bMostrarTodas || bMostrarContasReceberVencidas; }
  /// With true all four lists are on offer.
  void vSetMotrarTodas(bool bMostrar) { bMostrarTodas = bMostrar; }
  /// At the start whether any list is switched on, then what was set last.
  bool bGetMostrarTodas() const { return bMostrarTodas; }

 private:
  bool bMostrarContasPagarDia = false;
  bool bMostrarContasReceberDia = false;
  bool bMostrarContasPagarVencidas = false;
  bool bMostrarContasReceberVencidas = false;
  bool bMostrarTodas = false;
};

}  // namespace fenvale

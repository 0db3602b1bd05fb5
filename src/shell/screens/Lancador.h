#pragma once
// The program's entry: what happens, and in which order, from the first line to the main window's event loop.

namespace fenvale {

class Contexto;

class Lancador {
 public:
  explicit Lancador(Contexto& contexto) : contexto_(contexto) {}
  static const char* sGetName() { return "Lancador"; }

  /// Returns when the main window stands and the user may work; every other outcome ends the process.
  /// `bPrimeiraInstancia` tells whether no other copy runs for this user.
  void Main(bool bPrimeiraInstancia);
  /// The store exists and is up to date, and its cities are seeded.
  void vPrepararBancoDados();
  /// Whether the firm's data exist, after the user was asked for them.
  bool bVerificarDadosSistema();

 private:
  void vMostrar(const char* sTela);
  void vExigirPrimeiroUsuario();
  void vMostrarQuadroAoIniciar();
  bool bHaLinhas(const char* sSQL);

  Contexto& contexto_;
};

}  // namespace fenvale

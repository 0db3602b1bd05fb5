#pragma once
// What the measuring programs share: medians of interleaved runs, and lines of name, figure, unit and bar.

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace fenvale::bancada {

using Duracao = std::chrono::duration<double, std::milli>;

/// The middle one of the runs; the first run, which fills the caches, is not counted.
Duracao mediana(int vezes, const std::function<void()>& tarefa);

/// Two ways to one end, run in turns so that whatever else the machine does falls on both.
struct Comparacao {
  Duracao programa{};
  Duracao referencia{};
  double razao() const { return programa / referencia; }
};
Comparacao comparar(int vezes, const std::function<void()>& programa, const std::function<void()>& referencia);

/// Lines of the output. Keeps count of the bars that were missed.
class Relatorio {
 public:
  /// name<TAB>figure<TAB>unit<TAB>bar. The figure should not be above the bar.
  void vLinha(const std::string& sNome, double valor, const std::string& sUnidade, double barra);
  /// A figure without a bar.
  void vLinha(const std::string& sNome, double valor, const std::string& sUnidade);
  /// The ratio with its bar, and below it the two times that it comes from.
  void vLinhas(const std::string& sNome, const Comparacao& comparacao, double barra);

  int iPerdidas() const { return iPerdidas_; }

 private:
  void vEscrever(const std::string& sNome, double valor, const std::string& sUnidade, const std::string& sBarra);
  int iPerdidas_ = 0;
};

/// A real with three significant digits at least and no idle zeros, always with a point.
std::string sNumero(double valor);

/// What a measuring program was asked for: --rapido measures small stores, to see that everything runs.
struct Opcoes {
  bool bRapido = false;
};
/// Ends the process with 2 for anything else.
Opcoes lerOpcoes(int quantos, char** argumentos);

}  // namespace fenvale::bancada

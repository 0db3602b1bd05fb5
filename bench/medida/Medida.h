#pragma once
// What the measuring programs share: medians of interleaved runs, and lines of name, figure, unit and bar.

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace fenvale::bancada {

using Duracao = std::chrono::duration<double, std::milli>;

Duracao cronometrar(const std::function<void()>& tarefa);
/// The middle one.
Duracao meio(std::vector<Duracao> tempos);

/// The middle one of the runs; the first run, which fills the caches, is not counted.
Duracao mediana(int vezes, const std::function<void()>& tarefa);

/// Two ways to one end, run in turns so that whatever else the machine does falls on both.
struct Comparacao {
  Duracao programa{};
  Duracao referencia{};
  double razao() const { return programa / referencia; }
};
Comparacao comparar(int vezes, const std::function<void()>& programa, const std::function<void()>& referencia);

/// The most memory that this process has taken so far.
std::int64_t memoriaMaximaEmKB();

/// Lines of the output.
class Relatorio {
 public:
  /// name<TAB>figure<TAB>unit<TAB>bar. The figure should not be above the bar.
  void vLinha(const std::string& sNome, double valor, const std::string& sUnidade, double barra);
  /// A figure without a bar.
  void vLinha(const std::string& sNome, double valor, const std::string& sUnidade);
  /// The ratio with its bar, and below it the two times that it comes from.
  void vLinhas(const std::string& sNome, const Comparacao& comparacao, double barra);
  /// How many figures were above their bar.
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
/// What main() of a measuring program does: reads the options and measures. Answers what the process ends with: 2 for
/// an unknown option, 1 for an Error and 3 when a figure of the large stores was above its bar, each with a line on
/// standard error.
int executar(int quantos, char** argumentos, const std::function<void(const Opcoes&, Relatorio&)>& medir);
/// The same for a task that takes no options.
int semFalha(const char* programa, const std::function<void()>& tarefa);

}  // namespace fenvale::bancada

#include "medida/Medida.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <iostream>
#include <string_view>

#include "platform/base/Error.h"

namespace fenvale::bancada {

Duracao cronometrar(const std::function<void()>& tarefa) {
  const auto inicio = std::chrono::steady_clock::now();
  tarefa();
  return std::chrono::steady_clock::now() - inicio;
}

Duracao meio(std::vector<Duracao> tempos) {
  const auto lugar = tempos.begin() + static_cast<std::ptrdiff_t>(tempos.size() / 2);
  std::nth_element(tempos.begin(), lugar, tempos.end());
  return *lugar;
}

Duracao mediana(int vezes, const std::function<void()>& tarefa) {
  tarefa();
  std::vector<Duracao> tempos(static_cast<std::size_t>(vezes));
  for (Duracao& tempo : tempos) tempo = cronometrar(tarefa);
  return meio(std::move(tempos));
}

Comparacao comparar(int vezes, const std::function<void()>& programa, const std::function<void()>& referencia) {
  programa();
  referencia();
  std::vector<Duracao> doPrograma;
  std::vector<Duracao> daReferencia;
  for (int i = 0; i < vezes; ++i) {
    doPrograma.push_back(cronometrar(programa));
    daReferencia.push_back(cronometrar(referencia));
  }
  return {meio(std::move(doPrograma)), meio(std::move(daReferencia))};
}

std::int64_t memoriaMaximaEmKB() {
  std::ifstream estado("/proc/self/status");
  for (std::string nome; estado >> nome;) {
    std::int64_t valor = 0;
    if (nome == "VmHWM:" && estado >> valor) return valor;
  }
  return 0;
}

std::string sNumero(double valor) {
  const int casas = valor >= 100 ? 0 : valor >= 10 ? 1 : valor >= 1 ? 2 : 4;
  std::array<char, 64> texto{};
  const auto fim = std::to_chars(texto.data(), texto.data() + texto.size(), valor, std::chars_format::fixed, casas);
  std::string s(texto.data(), fim.ptr);
  if (s.find('.') != std::string::npos) s.erase(s.find_last_not_of('0') + 1);
  if (s.ends_with('.')) s.pop_back();
  return s;
}

void Relatorio::vLinha(const std::string& sNome, double valor, const std::string& sUnidade, double barra) {
  if (valor > barra) ++iPerdidas_;
  vEscrever(sNome, valor, sUnidade, sNumero(barra));
}

void Relatorio::vLinha(const std::string& sNome, double valor, const std::string& sUnidade) {
  vEscrever(sNome, valor, sUnidade, "-");
}

void Relatorio::vLinhas(const std::string& sNome, const Comparacao& comparacao, double barra) {
  vLinha(sNome, comparacao.razao(), "vezes", barra);
  vLinha(sNome + " (programa)", comparacao.programa.count(), "ms");
  vLinha(sNome + " (referência)", comparacao.referencia.count(), "ms");
}

void Relatorio::vEscrever(const std::string& sNome, double valor, const std::string& sUnidade,
                          const std::string& sBarra) {
  std::cout << sNome << '\t' << sNumero(valor) << '\t' << sUnidade << '\t' << sBarra << std::endl;
}

int semFalha(const char* programa, const std::function<void()>& tarefa) try {
  tarefa();
  return 0;
} catch (const Error& falha) {
  std::cerr << programa << ": " << falha.description << "\n";
  return 1;
}

int executar(int quantos, char** argumentos, const std::function<void(const Opcoes&, Relatorio&)>& medir) {
  Opcoes opcoes;
  for (int i = 1; i < quantos; ++i) {
    if (std::string_view(argumentos[i]) != "--rapido") {
      std::cerr << "Uso: " << argumentos[0] << " [--rapido]\n";
      return 2;
    }
    opcoes.bRapido = true;
  }
  Relatorio relatorio;
  const int fim = semFalha(argumentos[0], [&] { medir(opcoes, relatorio); });
  // Small stores are over before a ratio means anything.
  if (fim != 0 || opcoes.bRapido || relatorio.iPerdidas() == 0) return fim;
  std::cerr << argumentos[0] << ": acima da barra: " << relatorio.iPerdidas() << "\n";
  return 3;
}

}  // namespace fenvale::bancada

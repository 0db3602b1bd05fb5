#include "medida/Medida.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace fenvale::bancada {
namespace {

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

}  // namespace

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

Opcoes lerOpcoes(int quantos, char** argumentos) {
  Opcoes opcoes;
  for (int i = 1; i < quantos; ++i) {
    if (std::string_view(argumentos[i]) != "--rapido") {
      std::cerr << "Uso: " << argumentos[0] << " [--rapido]\n";
      std::exit(2);
    }
    opcoes.bRapido = true;
  }
  return opcoes;
}

}  // namespace fenvale::bancada

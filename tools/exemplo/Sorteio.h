#pragma once
// Numbers that look like chance and are the same on every machine: what is drawn depends on the seed alone.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace fenvale::exemplo {

class Sorteio {
 public:
  /// A sequence of its own for each (seed, kind, place): the thousandth customer is the same in a store of any size.
  explicit constexpr Sorteio(std::uint64_t semente, std::uint64_t tipo = 0, std::uint64_t lugar = 0)
      : estado_(misturar(semente + misturar(tipo + misturar(lugar)))) {}

  constexpr std::uint64_t proximo() {
    estado_ += passo;
    return misturar(estado_);
  }
  /// 0 to `limite` - 1.
  constexpr std::uint32_t ate(std::uint32_t limite) {
    return static_cast<std::uint32_t>(((proximo() >> 32) * limite) >> 32);
  }
  /// Both ends included.
  constexpr int entre(int menor, int maior) {
    return menor + static_cast<int>(ate(static_cast<std::uint32_t>(maior - menor + 1)));
  }
  constexpr bool porCento(std::uint32_t chance) { return ate(100) < chance; }

  template <std::size_t N>
  constexpr std::string_view um(const std::array<std::string_view, N>& palavras) {
    return palavras[ate(static_cast<std::uint32_t>(N))];
  }
  /// One of a list that is not empty.
  template <typename T>
  const T& umDe(const std::vector<T>& lista) {
    return lista[ate(static_cast<std::uint32_t>(lista.size()))];
  }

 private:
  static constexpr std::uint64_t passo = 0x9E3779B97F4A7C15U;
  /// The finisher of SplitMix64.
  static constexpr std::uint64_t misturar(std::uint64_t valor) {
    valor = (valor ^ (valor >> 30)) * 0xBF58476D1CE4E5B9U;
    valor = (valor ^ (valor >> 27)) * 0x94D049BB133111EBU;
    return valor ^ (valor >> 31);
  }
  std::uint64_t estado_;
};

}  // namespace fenvale::exemplo

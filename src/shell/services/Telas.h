#pragma once
// The screens by name. There is one instance of each at a time; a screen that was unloaded is made anew when it is next
// asked for, so its state is lost with its window, but whoever showed it can still read what was chosen.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Error.h"

namespace fenvale {

class Contexto;
class Screen;

class Telas {
 public:
  using Fabrica = std::function<std::unique_ptr<Screen>(Contexto&)>;

  explicit Telas(Contexto& contexto);
  ~Telas();

  void registrar(std::string sNome, Fabrica fabrica);
  template <typename T>
  void registrar(std::string sNome) {
    registrar(std::move(sNome),
              [](Contexto& contexto) -> std::unique_ptr<Screen> { return std::make_unique<T>(contexto); });
  }
  bool bExiste(std::string_view sNome) const;
  std::vector<std::string> nomes() const;

  /// Error 91 when no screen has that name.
  Screen& obter(std::string_view sNome);
  /// As one of the interfaces by which folders reach each other's screens. Error 438 when the screen lacks it.
  template <typename Interface>
  Interface& obter(std::string_view sNome) {
    if (auto* tela = dynamic_cast<Interface*>(&obter(sNome))) return *tela;
    throw Error(operacaoInexistente, "A tela " + std::string(sNome) + " não oferece esta operação.");
  }
  /// Drops the instance, if there is one that is not shown.
  void descartar(std::string_view sNome);

  static constexpr std::int32_t operacaoInexistente = 438;

 private:
  struct Entrada {
    Fabrica fabrica;
    std::unique_ptr<Screen> tela;
  };
  Contexto& contexto_;
  std::map<std::string, Entrada, std::less<>> entradas_;
};

}  // namespace fenvale

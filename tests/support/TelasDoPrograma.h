#pragma once
// The screens of a program whose own store is open, each as a clerk finds it over whatever stood before.

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "app/Registro.h"
#include "shell/services/Telas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {

class TelasDoPrograma : public testing::Test {
 protected:
  void SetUp() override { programa.abrirPrograma(); }

  /// The screen that comes up next; `agir` expects its boxes itself, before it presses. Esc leaves it when nothing else
  /// has.
  template <typename T>
  void esperar(const char* nome, const std::function<void(T&)>& agir) {
    host.expectScreen(nome, [this, agir](Screen& tela) {
      agir(dynamic_cast<T&>(tela));
      host.verify();
      if (tela.state() == Screen::State::loaded) tela.userKey(Key::escape);
    });
  }
  /// Shows the screen. The exit code with which it ends the program; nothing when that goes on.
  template <typename T>
  std::optional<int> abrir(const char* nome, const std::function<void(T&)>& agir) {
    esperar<T>(nome, agir);
    const auto codigo = programa.codigoDeSaida([this, nome] { host.showModal(programa.telas().obter(nome)); });
    host.verify();
    return codigo;
  }

  ProgramaDeTeste programa{vRegistrarTelas};
  TestHost& host = programa.hostDeTeste();
};

}  // namespace fenvale

#pragma once
// Shows one picture; a click or a key closes it.

#include "platform/ui/Choices.h"
#include "shell/services/Tela.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

class frmExibirImagem final : public Tela, public TelaImagem {
 public:
  explicit frmExibirImagem(Contexto& contexto);

  Image imgImagem{*this, "imgImagem"};

  void vCarregar(const std::string& sCaminho) override;

 protected:
  bool onKeyDown(Key tecla) override;
};

}  // namespace fenvale

#pragma once
// Who made the program and where they are found.

#include "platform/ui/Choices.h"
#include "shell/services/Tela.h"

namespace fenvale {

class frmSobreApp final : public Tela {
 public:
  explicit frmSobreApp(Contexto& contexto);

  Label lblNomePrograma{*this, "lblNomePrograma", "", Label::Style::title};
  Label lblVersao{*this, "lblVersao", "", Label::Style::muted};
  Label lblDetalhes{*this, "lblDetalhes"};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  void onLoad() override;
  /// Any key closes it.
  bool onKeyDown(Key tecla) override;
};

}  // namespace fenvale

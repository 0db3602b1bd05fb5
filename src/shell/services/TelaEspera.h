#pragma once
// What the splash and the waiting screen share: the program's name and version, a message that blinks, and a least time
// on the screen.

#include <chrono>

#include "platform/ui/Choices.h"
#include "shell/services/Tela.h"

namespace fenvale {

class TelaEspera : public Tela {
 public:
  Label lblNomePrograma{*this, "lblNomePrograma", "", Label::Style::title};
  Label lblVersao{*this, "lblVersao", "", Label::Style::muted};
  Label lblMensagem{*this, "lblMensagem"};
  Timer tmpMensagem{*this, "tmpMensagem"};

 protected:
  TelaEspera(Contexto& contexto, std::string sNome);

  /// Notes the time, fills name and version and shows the screen, without waiting.
  void vAparecer();
  /// Puts up the message and lets it blink.
  void vPiscar(std::string sMensagem);
  void vPararDePiscar();
  /// Stays for the rest of its time, which is one fixed wait however little was missing, and unloads.
  void vDesaparecer();

 private:
  std::chrono::milliseconds inicio_{0};
  bool bPisca_ = false;
};

}  // namespace fenvale

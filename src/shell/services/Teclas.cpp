#include "shell/services/Teclas.h"

#include "platform/ui/Choices.h"
#include "platform/ui/Screen.h"

namespace fenvale {

bool bPressionarBotaoDaTecla(const Screen& tela, Key tecla) {
  if (tecla == Key::none) return false;
  for (Control* controle : tela.controls()) {
    if (controle->kind() != ControlKind::button) continue;
    auto& botao = static_cast<Button&>(*controle);
    if (botao.key() != tecla) continue;
    botao.userClick();
    return true;
  }
  return false;
}

}  // namespace fenvale

#pragma once
// The keys of a screen's buttons.

#include "platform/ui/Keys.h"

namespace fenvale {

class Screen;

/// Presses the button of `tela` that shows this key. False when no button has it; a disabled one swallows its key.
bool bPressionarBotaoDaTecla(const Screen& tela, Key tecla);

}  // namespace fenvale

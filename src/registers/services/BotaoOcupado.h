#pragma once
// A button that cannot be pressed again while its command runs. A disabled control loses the keyboard to its neighbour,
// so afterwards the button has it back.

#include "platform/ui/Choices.h"

namespace fenvale {

class BotaoOcupado {
 public:
  explicit BotaoOcupado(Button& botao) : botao_(botao), bFoco_(botao.hasFocus()) { botao_.setEnabled(false); }
  ~BotaoOcupado() {
    botao_.setEnabled(true);
    if (bFoco_) botao_.setFocus();
  }
  BotaoOcupado(const BotaoOcupado&) = delete;
  BotaoOcupado& operator=(const BotaoOcupado&) = delete;

 private:
  Button& botao_;
  bool bFoco_;
};

}  // namespace fenvale

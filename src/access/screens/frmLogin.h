#pragma once
// Who is about to work: login and password. There is no way past it but out of the program.

#include <cstdint>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"

namespace fenvale {

class frmLogin final : public Tela {
 public:
  explicit frmLogin(Contexto& contexto);

  Label lblMensagem{*this, "lblMensagem", "Escolha um login e indique sua senha de acesso.", Label::Style::help};
  ComboBox cmbLogin{*this, "cmbLogin"};
  TextBox txtSenha{*this, "txtSenha", 0, TextBox::Style::password};
  Button cmdEntrar{*this, "cmdEntrar", "Entrar", "entrar", Key::f3};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

 protected:
  void onLoad() override;
  bool onUnload() override;
  bool onKeyDown(Key tecla) override;

 private:
  void cmdEntrar_Click();
  void cmdFechar_Click();
  void vRecusarSenha();

  Funcoes funcoes_;
  std::int16_t iFalhas_ = 0;
  bool bEntrou_ = false;
};

}  // namespace fenvale

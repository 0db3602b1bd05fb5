#pragma once
// The first thing that the user sees: who made the program, while the company that was open last is opened again.

#include "shell/services/TelaEspera.h"

namespace fenvale {

class frmSplash final : public TelaEspera {
 public:
  explicit frmSplash(Contexto& contexto);

  Label lblDireitos{*this, "lblDireitos", "", Label::Style::help};

  /// Shows itself, reopens the company and returns when it is gone.
  void vCarregar();
};

}  // namespace fenvale

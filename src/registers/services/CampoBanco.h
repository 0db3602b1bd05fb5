#pragma once
// A bank on a screen: its box, the button that opens the list of banks, and the Banco that they stand for. In the box
// Space opens the list, Delete empties it.

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/Layout.h"
#include "registers/services/Cidade.h"

namespace fenvale {

class Contexto;

class CampoBanco {
 public:
  /// `proximo` gets the focus after Space.
  CampoBanco(Screen& tela, Contexto& contexto, Control& proximo);
  CampoBanco(const CampoBanco&) = delete;
  CampoBanco& operator=(const CampoBanco&) = delete;

  LookupBox txtBanco;
  Button cmdBuscarBancos;

  /// -1 when no bank was picked, or none has the name in the box.
  std::int32_t lGetCodigo() const { return banco_.lGetCodigo(); }
  /// Looked up by name, box included.
  void vSetEstado2(const std::string& sNome);
  void vLimpar() { vSetEstado2({}); }
  /// Opens the list; a pick fills bank and box, which has the focus in the end.
  void vBuscar();

  LayoutNode campoPrincipal(const std::string& sRotulo, int largura);

 private:
  Screen& tela_;
  Contexto& contexto_;
  Banco banco_;
};

}  // namespace fenvale

#include "registers/services/TeclasDeBusca.h"

namespace fenvale {

bool bTeclaDeBusca(Control& caixa, Key tecla, const TeclasDeBusca& teclas) {
  switch (tecla) {
    case Key::space:
      teclas.localizar();
      return true;
    case Key::insert:
      if (!teclas.cadastrar) return false;
      teclas.cadastrar();
      return true;
    case Key::del:
      teclas.limpar();
      caixa.setFocus();
      return true;
    default:
      return false;
  }
}

}  // namespace fenvale

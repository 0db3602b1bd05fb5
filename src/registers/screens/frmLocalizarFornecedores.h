#pragma once
// The full search of the suppliers: the boxes of their register, each of which narrows the list when something is in
// it.

#include "registers/screens/FormularioFornecedor.h"
#include "registers/screens/TelaBuscaCompleta.h"

namespace fenvale {

class frmLocalizarFornecedores final : public TelaBuscaCompleta, public FormularioFornecedor {
 public:
  explicit frmLocalizarFornecedores(Contexto& contexto);
};

}  // namespace fenvale

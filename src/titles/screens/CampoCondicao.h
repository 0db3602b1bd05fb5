#pragma once
// The payment condition of an invoice, chosen by one quick search and shown in four boxes: its code, the number of
// instalments, the days between them and whether the first is paid at once.

#include "platform/ui/Boxes.h"
#include "registers/services/CampoBusca.h"

namespace fenvale {

class CampoCondicao {
 public:
  /// `proximo` gets the focus after a search.
  CampoCondicao(Screen& tela, Contexto& contexto, Control& proximo);

  LookupBox txtCondPagCodigoInf;
  LookupBox txtNumeroParcelas;
  LookupBox txtIntervalo;
  CheckBox chkEntrada;
  CampoBusca busca;

  /// What the quick search found. `bitEntrada` is -1 with entry, 0 without.
  void vSet(std::int32_t lChave, std::int32_t btCodigoInf, std::int32_t iNumeroParcelas, std::int32_t iIntervalo,
            std::int32_t bitEntrada);
  LayoutNode grupo();
};

}  // namespace fenvale

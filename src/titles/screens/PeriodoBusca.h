#pragma once
// An optional period in a search: a check box, and two days that count, and can be typed, while it is on.

#include <string>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/Layout.h"
#include "registers/screens/TelaBuscaCompleta.h"

namespace fenvale {

class PeriodoBusca {
 public:
  /// `sNome` stands in the names of the controls ("Emissao": chkEmissao, dtEmissaoInicial, dtEmissaoFinal) and in the
  /// column that is asked for; the check box has `sRotulo`.
  PeriodoBusca(Screen& tela, const std::string& sNome, std::string sRotulo);
  PeriodoBusca(const PeriodoBusca&) = delete;
  PeriodoBusca& operator=(const PeriodoBusca&) = delete;

  CheckBox chk;
  DatePicker dtInicial;
  DatePicker dtFinal;

  /// Off, and both days today.
  void vIniciar(Date dtHoje);
  Criterio criterio() const;
  /// The group, under its caption: beside others of its kind, or all in one row.
  LayoutNode grupo(std::string sLegenda, int largura);
  LayoutNode grupoEmLinha(std::string sLegenda);

 private:
  std::string sCampo_;
};

}  // namespace fenvale

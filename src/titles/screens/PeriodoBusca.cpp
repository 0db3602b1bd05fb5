#include "titles/screens/PeriodoBusca.h"

namespace fenvale {

PeriodoBusca::PeriodoBusca(Screen& tela, const std::string& sNome, std::string sRotulo)
    : chk(tela, "chk" + sNome, std::move(sRotulo)),
      dtInicial(tela, "dt" + sNome + "Inicial"),
      dtFinal(tela, "dt" + sNome + "Final"),
      sCampo_("dt" + sNome) {
  chk.onClick = [this] {
    dtInicial.setEnabled(chk.checked());
    dtFinal.setEnabled(chk.checked());
  };
}

void PeriodoBusca::vIniciar(Date dtHoje) {
  for (DatePicker* dia : {&dtInicial, &dtFinal}) {
    dia->setValue(dtHoje);
    dia->setEnabled(chk.checked());
  }
}

Criterio PeriodoBusca::criterio() const { return periodo(sCampo_, chk, dtInicial, dtFinal); }

LayoutNode PeriodoBusca::grupo(std::string sLegenda, int largura) {
  return quadro(std::move(sLegenda),
                {solto(chk), linha({campo("Incial", dtInicial, cresce), campo("Final", dtFinal, cresce)})}, largura);
}

LayoutNode PeriodoBusca::grupoEmLinha(std::string sLegenda) {
  return quadro(std::move(sLegenda),
                {linha({solto(chk, 6), campo("Incial", dtInicial, 5), campo("Final", dtFinal, 5)})});
}

}  // namespace fenvale

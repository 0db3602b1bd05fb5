#include "titles/screens/TelaBuscaFiltro.h"

#include "shell/services/Contexto.h"

namespace fenvale {

template <typename Formulario>
TelaBuscaFiltro<Formulario>::TelaBuscaFiltro(Contexto& contexto, const Lado& lado, const TelaDoLado& tela)
    : TelaBuscaCompleta(contexto, tela.sBusca, tela.sLegendaBusca), Formulario(*this, contexto, lado) {
  vSetCriterios(Formulario::criterios());
  vMontarTela(Formulario::linhas());
  setPreferredSize(24, 0);
}

template <typename Formulario>
void TelaBuscaFiltro<Formulario>::onLoad() {
  Formulario::vIniciarPeriodos(contexto().relogio().today());
}

template class TelaBuscaFiltro<FormularioBuscaTitulos>;
template class TelaBuscaFiltro<FormularioBuscaFaturas>;

}  // namespace fenvale

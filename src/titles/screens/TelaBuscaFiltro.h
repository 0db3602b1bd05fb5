#pragma once
// The filter searches of titles and of invoices: the boxes of their kind over the screen that opened them, whose list
// they narrow. Opening one changes nothing in that list; it stays open for a further search over what it has refilled.

#include "titles/screens/FormularioBusca.h"

namespace fenvale {

/// One screen of a side, with the boxes of `Formulario`.
template <typename Formulario>
class TelaBuscaFiltro final : public TelaBuscaCompleta, public Formulario {
 public:
  TelaBuscaFiltro(Contexto& contexto, const Lado& lado, const TelaDoLado& tela);

 protected:
  void onLoad() override;
  void vAoAbrir() override {}
};

using TelaBuscaTitulos = TelaBuscaFiltro<FormularioBuscaTitulos>;
using TelaBuscaFaturas = TelaBuscaFiltro<FormularioBuscaFaturas>;

extern template class TelaBuscaFiltro<FormularioBuscaTitulos>;
extern template class TelaBuscaFiltro<FormularioBuscaFaturas>;

}  // namespace fenvale

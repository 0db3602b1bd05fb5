#include "titles/screens/CampoCondicao.h"

namespace fenvale {

CampoCondicao::CampoCondicao(Screen& tela, Contexto& contexto, Control& proximo)
    : txtCondPagCodigoInf(tela, "txtCondPagCodigoInf"),
      txtNumeroParcelas(tela, "txtNumeroParcelas"),
      txtIntervalo(tela, "txtIntervalo"),
      chkEntrada(tela, "chkEntrada", "C&om entrada"),
      busca(tela, contexto, {&txtCondPagCodigoInf, &txtNumeroParcelas, &txtIntervalo, &chkEntrada},
            {"frmLocalizarCondicoesPagamentoRapido", &proximo, "cmdBuscaCondicaoPagamento",
             "Localizar condição de pagamento"}) {
  chkEntrada.setLocked(true);
}

void CampoCondicao::vSet(std::int32_t lChave, std::int32_t btCodigoInf, std::int32_t iNumeroParcelas,
                         std::int32_t iIntervalo, std::int32_t bitEntrada) {
  busca.vSet(lChave, std::to_string(btCodigoInf));
  txtNumeroParcelas.setText(std::to_string(iNumeroParcelas));
  txtIntervalo.setText(std::to_string(iIntervalo));
  chkEntrada.setChecked(-bitEntrada == 1);
}

LayoutNode CampoCondicao::grupo() {
  return quadro("Condição de pagamento",
                {linha({busca.campoPrincipal("&Código", 6), campo("Nº de pa&rcelas", txtNumeroParcelas, 5),
                        campo("&Intervalo de venc.", txtIntervalo, 5), solto(chkEntrada)})});
}

}  // namespace fenvale

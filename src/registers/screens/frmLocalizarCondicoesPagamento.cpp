#include "registers/screens/frmLocalizarCondicoesPagamento.h"

namespace fenvale {

frmLocalizarCondicoesPagamento::frmLocalizarCondicoesPagamento(Contexto& contexto)
    : TelaBuscaCompleta(contexto, "frmLocalizarCondicoesPagamento", "Localizar condição de pagamento") {
  vSetCriterios({[this] { return std::string("bitEntrada = ") + (chkEntrada.checked() ? "-1 " : "0 "); },
                 igual("btCodigoInf", txtCodigoInf), acimaDeZero("iNumeroParcelas", txtNumeroParcelas),
                 acimaDeZero("iIntervalo", txtIntervalo)});
  vMontarTela({linha({campo("&Código", txtCodigoInf, 3), campo("Número de &parcelas", txtNumeroParcelas, 5),
                      campo("&Intervalo de vencimento", txtIntervalo, 6), solto(chkEntrada)})});
  setPreferredSize(22, 0);
}

}  // namespace fenvale

#include "registers/screens/frmCadastroCondicoesPagamento.h"

#include "platform/base/Text.h"

namespace fenvale {

frmCadastroCondicoesPagamento::frmCadastroCondicoesPagamento(Contexto& contexto)
    : TelaCadastro(contexto, "frmCadastroCondicoesPagamento") {
  vDescrever({
      .sLegenda = "Condições de pagamento",
      .sTitulo = "Cadastro de condições de pagamento",
      .sTabela = "CondicoesPagamento",
      .codigo = &txtCodigoInf,
      .sCampoCodigo = "btCodigoInf",
      .campos = {{"btCodigoInf", txtCodigoInf, "Informe o código."},
                 {"iNumeroParcelas", txtNumeroParcelas},
                 {"iIntervalo", txtIntervalo},
                 {"bitEntrada", chkEntrada}},
      .colunas = {{"Código", 1200, Align::right, "btCodigoInf", txtCodigoInf},
                  {"Número de parcelas", 2500, Align::right, "iNumeroParcelas", txtNumeroParcelas},
                  {"Intervalo de vecimento", 2700, Align::right, "iIntervalo", txtIntervalo},
                  {"Com entrada", 1500, Align::centre, "ComEntrada", chkEntrada}},
      .sSelecao = "SELECT lCodigo, btCodigoInf, iNumeroParcelas, iIntervalo, "
                  "IIF(bitEntrada = 0, 'Não', 'Sim') AS ComEntrada FROM CondicoesPagamento ",
      .sOrdem = " ORDER BY btCodigoInf ",
      .sBusca = "frmLocalizarCondicoesPagamento",
  });
  vMontarTela({linha({campo("&Código", txtCodigoInf, 3), campo("Número de &parcelas", txtNumeroParcelas, 5),
                      campo("&Intervalo de vencimento", txtIntervalo, 6), solto(chkEntrada)})});
  setPreferredSize(22, 24);
}

bool frmCadastroCondicoesPagamento::bVerificarDados() {
  if (!TelaCadastro::bVerificarDados()) return false;
  if (txtNumeroParcelas.value() <= 0) txtNumeroParcelas.setValue(1);
  return true;
}

std::string frmCadastroCondicoesPagamento::sRecusa(const std::string& sFrase, const Error& falha) const {
  return sFrase + std::string(lineBreak) + "Informação detalhada: " + falha.description;
}

}  // namespace fenvale

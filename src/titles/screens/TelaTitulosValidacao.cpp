// What the title screen asks and refuses before and while it saves.

#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "titles/screens/TelaTitulosCadastro.h"
#include "titles/services/Lado.h"

namespace fenvale {
namespace {

/// The screen stays after a failure, so the report lets the program go on.
constexpr int iContinuar = 2;

const std::string sQuebra(lineBreak);

std::string sReais(Currency fValor, const char* sMascara = "#,##0.00") {
  return "R$ " + formatNumber(fValor, sMascara);
}

}  // namespace

bool TelaTitulosCadastro::bVerificarDados() try {
  lFaturaAntes_ = lFatura;
  chavesAntes_ = entidades.chaves();
  return bTestarPreenchimento();
} catch (const Error& falha) {
  if (!lado_.bRelataVerificacao) throw;
  vRegistrarFalha(falha, "bTestarPreenchimento", iContinuar);
  return false;
}

bool TelaTitulosCadastro::bTituloPago() const { return lCodigo >= 0 && sPagoGuardado_ == "Sim"; }

Currency TelaTitulosCadastro::fValorGuardado() const { return Currency::fromBrazilian(sValorGuardado_); }

bool TelaTitulosCadastro::bConfirmar(const std::string& sPergunta) {
  if (perguntar(sPergunta)) return true;
  avisar("Operação cancelada.");
  return false;
}

bool TelaTitulosCadastro::bTestarPreenchimento() {
  const bool bPago = bTituloPago();
  if (!bVerificarTituloJaPago(bPago) || !bVerificarAcaoPagamentoAlteracaoValor()) return false;
  if (txtCodigoInf.empty()) return recusar("Informe o código.", txtCodigoInf);
  if (bPago) return true;
  return bTestarFatura() && bTestarValores() && bTestarPagamento();
}

bool TelaTitulosCadastro::bVerificarTituloJaPago(bool bPago) try {
  return !bPago || perguntar("Este título já foi pago e os valores não será atualizados, " + sQuebra +
                             "apenas os campos de identificação do mesmo." + sQuebra + sQuebra + "Deseja continuar?");
} catch (const Error& falha) {
  vRegistrarFalha(falha, "bVerificarTituloJaPago", iContinuar);
  return false;
}

bool TelaTitulosCadastro::bVerificarAcaoPagamentoAlteracaoValor() try {
  if (lCodigo < 0 || bTituloPago() || txtValor.value() == fValorGuardado() || txtValorPago.value() <= Currency())
    return true;
  avisar("Não é possível alterar o valor de um título e realizar o pagamento do mesmo em apenas uma operação.");
  return false;
} catch (const Error& falha) {
  vRegistrarFalha(falha, "bVerificarAcaoPagamentoAlteracaoValor", iContinuar);
  return false;
}

bool TelaTitulosCadastro::bTestarFatura() {
  if (entidades.pessoa.busca.lCodigo == -1)
    return recusar(entidades.pessoa.descricao().sInforme, entidades.pessoa.caixa);
  for (CampoEntidade* entidade : entidades.obrigatoriasDepoisDaPessoa())
    if (entidade->busca.lCodigo == -1) return recusar(entidade->descricao().sInforme, entidade->caixa);
  entidades.vCompletarCentroCusto();

  if (txtTotal.value() <= Currency()) return recusar("Informe o valor da fatura.", txtTotal);
  if (lFatura == -1)
    return txtValor.value() <= txtTotal.value() ||
           perguntar("O valor do título (" + sReais(txtValor.value()) + ") é maior que o valor total da fatura (" +
                         sReais(txtTotal.value()) + ")." + sQuebra +
                         "Assim, o valor total será igualado ao valor do título." + sQuebra + sQuebra +
                         "Deseja continuar?",
                     BoxStyle::exclamation);
  const Currency fTotalGravado = titulos_.fGetValorFatura(lado_.sFaturas, lFatura);
  if (txtTotal.value() == fTotalGravado) return true;
  avisar("O valor total da fatura (" + sReais(fTotalGravado) + ") é diferente do valor informado (" +
         sReais(txtTotal.value(), "#,##.00") + ")." + sQuebra +
         "Para alterar o valor total da fatura, vá até o formulário " + lado_.sOndeMudarTotal + ".");
  return false;
}

bool TelaTitulosCadastro::bTestarValores() {
  if (txtValor.value() <= Currency()) return recusar("Informe o valor do título.", txtValor);
  if (txtValorPago.value() < Currency()) return recusar("Informe o valor pago do título.", txtValorPago);
  if (txtJuros.value() < Currency()) return recusar("Informe o valor dos juros.", txtJuros);
  if (txtDesconto.value() < Currency()) return recusar("Informe o valor dos descontos.", txtDesconto);
  return true;
}

bool TelaTitulosCadastro::bTestarPagamento() {
  const Currency fValor = txtValor.value();
  const Currency fPago = txtValorPago.value();
  if (fPago == fValor && !bConfirmar("O valor pago informado (" + sReais(fPago) + ") é igual ao valor do título." +
                                     sQuebra + "Esta operação determinará o pagamento do título." + sQuebra + sQuebra +
                                     "Confirma o pagamento do título?"))
    return false;
  if (Currency() < fPago && fPago < fValor &&
      !bConfirmar("O valor pago informado (" + sReais(fPago) + ") é menor que o valor do título (" + sReais(fValor) +
                  ")." + sQuebra + "Esta operação criará um título complementar de reajuste no valor de " +
                  sReais(fValor - fPago) + " ." + sQuebra + sQuebra + "Confirma está operação?"))
    return false;
  bPagarFatura = false;
  bAbaterTitulos = false;
  return !bHaExcesso(fValor, fPago, txtJuros.value(), txtDesconto.value()) || bTestarExcesso();
}

bool TelaTitulosCadastro::bTestarExcesso() {
  const Currency fValor = txtValor.value();
  const Currency fPago = txtValorPago.value();
  const Currency fRestante = Currency::fromBrazilian(
      formatNumber(titulos_.fGetValorRestanteRecPagFatura(lado_.sTitulos, lado_.sLigacao, lFatura, txtTotal.value())));
  const std::string sRestante = "O valor total restante para pagamento da fatura é de " + sReais(fRestante) +
                                ", sendo que o valor informado para o pagamento ";

  switch (classificarExcesso(fPago, fRestante,
                             titulos_.iGetNumeroTitulosNaoPagos(lado_.sTitulos, lado_.sLigacao, lFatura))) {
    case Excesso::semOutrosTitulos:
      avisar("O valor pago informado (" + sReais(fPago) + ") é maior que o valor do título (" + sReais(fValor) + ")." +
             sQuebra + "Desta forma, " + sReais(fPago - fValor) +
             " deveriam ser descontados dos outros títulos não pagos desta fatura," + sQuebra +
             "porém não existem outros títulos não pagos para realizar o desconto. Informe um valor igual ou menor a " +
             sReais(fValor) + " para realizar o pagamento do título.");
      return false;
    case Excesso::acimaDoRestante:
      avisar(sRestante + "do título (" + sReais(fPago) + ") ultrapassa o valor da fatura." + sQuebra + sQuebra +
             "Informe um valor igual ou menor a " + sReais(fRestante) + " para o pagamento do título.");
      return false;
    case Excesso::pagaFatura:
      if (!bConfirmar(sRestante + "(" + sReais(fPago) + ") pode pagar toda a fatura." + sQuebra + sQuebra +
                      "Deseja continuar a operação e efetuar o pagamento de toda a fatura?"))
        return false;
      bPagarFatura = true;
      txtValorPago.setValue(fValor);
      return true;
    case Excesso::abateTitulos:
      if (!bConfirmar("O valor pago informado (" + sReais(fPago) + ") é superior ao valor do título." + sQuebra +
                      "Assim, " + sReais(fPago - fValor) +
                      " podem ser abatidos nos demais títulos não pagos desta fatura." + sQuebra + sQuebra +
                      "Deseja continuar a operação, pagando este título e efetuando o desconto nos demais títulos não "
                      "pagos desta fatura?"))
        return false;
      bAbaterTitulos = true;
      return true;
  }
  return false;
}

bool TelaTitulosCadastro::bReajustarTitulos() {
  if (lCodigo < 1) return true;
  const Currency fAntigo = fValorGuardado();
  const Currency fNovo = txtValor.value();
  if (fNovo == fAntigo) return true;
  const Reajuste resultado = gerador_.reajustarTitulos(lFatura, lCodigo, fAntigo, fNovo);
  if (resultado == Reajuste::feito) return true;
  avisar("Você está tentando alterar o valor deste título: " + sQuebra + sQuebra + "Valor antigo: " + sReais(fAntigo) +
         sQuebra + "Novo valor: " + sReais(fNovo, "#,##.00") + sQuebra + sQuebra +
         (resultado == Reajuste::semTitulosAbertos
              ? "porém não existem títulos não pagos nesta fatura, não sendo possível ajustar a diferença."
              : "porém os títulos existentes não pagos nesta fatura não suportam tal desconto, sendo impossível "
                "ajustar a diferença.") +
         sQuebra + sQuebra + "A operação será cancelada.");
  return false;
}

}  // namespace fenvale

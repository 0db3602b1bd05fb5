#include "titles/screens/TelaFaturas.h"

#include "platform/base/Checked.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "store/services/Sistema.h"
#include "titles/screens/ColunasTitulos.h"
#include "titles/services/Lado.h"

namespace fenvale {
namespace {

std::string sReais(Currency fValor) { return "R$ " + formatNumber(fValor); }

}  // namespace

TelaFaturas::TelaFaturas(Contexto& contexto, const Lado& lado)
    : TelaCadastro(contexto, lado.faturas.sNome),
      entidades(*this, contexto, lado, EntidadesFatura::Uso::cadastro, lado.sInformePessoaFatura),
      condicao(*this, contexto, entidades.portador.caixa),
      lado_(lado),
      titulos_(contexto),
      gerador_(contexto, lado) {
  entidades.pessoa.busca.vSetProximo(txtCondPagCodigoInf);
  condicao.busca.vSetCadastro("frmCadastroCondicoesPagamento", "Cadastrar condição de pagamento",
                              cmdNovaCondicaoPagamento);

  std::vector<CampoBusca*> buscas = entidades.buscas();
  buscas.push_back(&condicao.busca);
  vDescrever({
      .sLegenda = lado.faturas.sLegenda,
      .sTitulo = lado.faturas.sTitulo,
      .sTabela = lado.sFaturas,
      .codigo = &txtNumeroFatura,
      .sCampoCodigo = "lNumeroFatura",
      .colunas = colunasDaLista(),
      .sSelecao = lado.faturas.sSelecao,
      .sOrdem = " ORDER BY lNumeroFatura ",
      .sBusca = lado.faturas.sBusca,
      .iColunasImpressao = 130,
      .buscas = buscas,
      .titulos = MenuTitulos::Descricao{lado.titulos.sNome, lado.sTitulos + "." + lado.sLigacao},
  });
  vMontarFormulario();
}

std::vector<ColunaLista> TelaFaturas::colunasDaLista() {
  std::vector<ColunaLista> colunas{{"Nº da fatura", 1500, Align::right, "lNumeroFatura", txtNumeroFatura},
                                   {"Emissão", 1560, Align::centre, "Emissao", dtEmissao},
                                   {"Total da fatura", 1600, Align::right, "TotalFatura", txtTotal},
                                   {"Entrada", 1400, Align::right, "TotalEntrada", txtEntrada}};
  vAcrescentar(colunas, colunasPessoa(lado_));
  vAcrescentar(colunas, {{"Código interno da condição de pagamento", 0, Align::left, "lCondicoesPagamento",
                          condicao.busca.lCodigo},
                         {"Código Cond. Pag.", 1950, Align::right, "CondPagCodigoInf", txtCondPagCodigoInf},
                         {"Nº de parcelas", 1650, Align::right, "iNumeroParcelas", txtNumeroParcelas},
                         {"Intervalo de venc.", 1950, Align::right, "iIntervalo", txtIntervalo},
                         {"Com entrada", 1560, Align::centre, "ComEntrada", chkEntrada}});
  vAcrescentar(colunas, colunasPortador());
  vAcrescentar(colunas, colunasVendedor(lado_));
  vAcrescentar(colunas, colunasCentroCusto());
  entidades.vLigarColunas(colunas);
  return colunas;
}

void TelaFaturas::vMontarFormulario() {
  std::vector<LayoutNode> ultima{entidades.portador.campo(8)};
  if (entidades.vendedor) ultima.push_back(entidades.vendedor->campo(8));
  ultima.push_back(entidades.centroCusto.campo(cresce));
  vMontarTela({linha({campo("Nº da &fatura", txtNumeroFatura, 4), campo("&Emissão", dtEmissao, 4),
                      campo("&Total da fatura", txtTotal, 4), campo("Entr&ada", txtEntrada, 4),
                      entidades.pessoa.campo(cresce)}),
               condicao.grupo(), linha(std::move(ultima))});
  setPreferredSize(24, 36);
}

void TelaFaturas::vSetCondicaoPagamento(std::int32_t lChave, std::int32_t btCodigoInf, std::int32_t iNumeroParcelas,
                                        std::int32_t iIntervalo, std::int32_t bitEntrada) {
  condicao.vSet(lChave, btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada);
}

void TelaFaturas::vSetPortador(std::int32_t lChave, const std::string& sNome) {
  entidades.portador.busca.vSet(lChave, sNome);
}

void TelaFaturas::vSetCentroCusto(std::int32_t lChave, const std::string& sDescricao) {
  entidades.centroCusto.busca.vSet(lChave, sDescricao);
}

bool TelaFaturas::bVerificarDados() {
  lCodigoAntes_ = lCodigo;
  chavesAntes_ = entidades.chaves();
  return bTestarPreenchimento();
}

bool TelaFaturas::bTestarPreenchimento() {
  if (txtNumeroFatura.empty()) return recusar("Informe o número da fatura.", txtNumeroFatura);
  if (txtTotal.value() <= Currency()) return recusar("Informe o valor total.", txtTotal);
  if (const Currency fPago = gerador_.fGetValorPago(lCodigo); txtTotal.value() < fPago) {
    avisar("O valor informado para a fatura (" + sReais(txtTotal.value()) +
           ") é inferior ao valor dos títulos já pagos (" + sReais(fPago) + ")." + std::string(lineBreak) +
           "Informe outro valor.");
    return false;
  }
  if (txtEntrada.value() < Currency()) return recusar("Informe o valor da entrada.", txtEntrada);
  if (txtEntrada.value() > txtTotal.value())
    return recusar(
        "O valor da entrada é superior ao total da fatura." + std::string(lineBreak) + "Verifique os valores.",
        txtTotal);
  if (entidades.pessoa.busca.lCodigo == -1)
    return recusar(entidades.pessoa.descricao().sInforme, entidades.pessoa.caixa);
  if (condicao.busca.lCodigo == -1) return recusar("Informe a condição de pagamento.", txtCondPagCodigoInf);
  if (!bTestarEntrada()) return false;
  for (CampoEntidade* entidade : entidades.obrigatoriasDepoisDaPessoa())
    if (entidade->busca.lCodigo == -1) return recusar(entidade->descricao().sInforme, entidade->caixa);
  entidades.vCompletarCentroCusto();
  return true;
}

bool TelaFaturas::bTestarEntrada() {
  const bool bValor = txtEntrada.value() != Currency();
  if (!chkEntrada.checked() && bValor)
    return recusar(
        "A condição de pagamento selecionada não tem entrada, porém um valor foi informado no campo Entrada (" +
            sReais(txtEntrada.value()) + ")." + std::string(lineBreak) +
            "Selecione outra condição de pagamento com entrada ou deixe o valor da entrada igual a zero.",
        txtEntrada);
  if (chkEntrada.checked() && !bValor)
    return recusar(
        "A condição de pagamento selecionada exige um valor para a entrada, porém o valor informado no campo Entrada "
        "foi zero." +
            std::string(lineBreak) + "Selecione outra condição de pagamento sem entrada ou informe o valor da entrada.",
        txtEntrada);
  return true;
}

bool TelaFaturas::bGravar() {
  transacao_.vIniciar(conexao());
  if (!bTestarTrocaDeCondicao()) {
    avisar("A operação foi cancelada.");
    vDesfazer();
    return false;
  }
  vGravarFatura();
  vGravarTitulos();
  // The titles are shown before the commit: what is changed there stands or falls with the invoice.
  if (perguntar("Deseja visualizar os títulos relacionados à essa fatura?")) vMostrarTitulos();
  transacao_.vConfirmar();
  return true;
}

void TelaFaturas::vDesfazer() {
  if (!transacao_.bDesfazer()) return;
  lCodigo = lCodigoAntes_;
  entidades.vRestaurarChaves(chavesAntes_);
}

bool TelaFaturas::bTestarTrocaDeCondicao() {
  if (lCodigo <= 0 || titulos_.bVerificarCondicaoPagamento(condicao.busca.lCodigo, lado_.sFaturas, lCodigo))
    return true;
  const std::string sQuebra(lineBreak);
  if (!perguntar("A condição de pagamento informada é diferente da que a fatura apresenta." + sQuebra +
                 "Alterar a condição de pagamento fará com que todos os títulos desta fatura sejam excluídos" +
                 sQuebra + "e criados novamente, atendendo as especificações da nova condição de pagamento." + sQuebra +
                 sQuebra + "Deseja continuar?"))
    return false;
  vExecutar("DELETE * FROM " + lado_.sTitulos + " WHERE " + lado_.sLigacao + " = " + std::to_string(lCodigo));
  return true;
}

void TelaFaturas::vGravarFatura() {
  const std::pair<std::string, std::string> emissao{"dtEmissao", Ligacao(dtEmissao).sLiteral()};
  ValoresSQL valores{{"lNumeroFatura", Ligacao(txtNumeroFatura).sLiteral()},
                     {"fTotal", Ligacao(txtTotal).sLiteral()},
                     {"fEntrada", Ligacao(txtEntrada).sLiteral()}};
  for (auto& valor : entidades.valores(condicao.busca.lCodigo)) valores.push_back(std::move(valor));
  const bool bAlterar = lCodigo >= 0;
  valores.insert(bAlterar ? valores.begin() + 1 : valores.end(), emissao);
  vExecutar(bAlterar ? sComandoAlteracao(lado_.sFaturas, valores, lCodigo) : sComandoInclusao(lado_.sFaturas, valores));
}

void TelaFaturas::vGravarTitulos() {
  if (txtTotal.value() <= gerador_.fGetValorPago(lCodigo)) return;
  const bool bReajustar = titulos_.btGetOpcaoReparcelamento() != 0;
  // A series has one instalment at least; re-working one that is there asks for none.
  if (readInt32(txtNumeroParcelas.text()) == 0 && (!bReajustar || gerador_.bSemTitulos(lCodigo)))
    txtNumeroParcelas.setText("1");
  if (bReajustar) {
    gerador_.vReajustarTitulosFatura(lCodigo, serie());
  } else {
    gerador_.vCriarTitulosFatura(lCodigo, serie());
  }
}

DadosSerie TelaFaturas::serie() {
  return {.dtEmissao = dtEmissao.value(),
          .fTotal = txtTotal.value(),
          .fEntrada = txtEntrada.value(),
          .iNumeroParcelas = toInt16(readInt32(txtNumeroParcelas.text())),
          .iIntervalo = toInt16(readInt32(txtIntervalo.text())),
          .bEntrada = chkEntrada.checked()};
}

void TelaFaturas::vMostrarTitulos() {
  auto& tela = contexto().telas().obter<TelaTitulos>(lado_.titulos.sNome);
  tela.vSetFaturaPreview(lCodigo);
  tela.vMontarLista(0, "WHERE " + lado_.sTitulos + "." + lado_.sLigacao + " = " + std::to_string(lCodigo) + " ");
  vMostrarFormModal(lado_.titulos.sNome);
  tela.vSetFaturaPreview(0);
}

}  // namespace fenvale

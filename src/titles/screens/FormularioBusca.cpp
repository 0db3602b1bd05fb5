#include "titles/screens/FormularioBusca.h"

#include "shell/services/Validacoes.h"

namespace fenvale {
namespace {

/// "<campo> = <v> " when an amount was typed.
Criterio valor(std::string sCampo, const MoneyBox& caixa) {
  return [sCampo = std::move(sCampo), &caixa] {
    return caixa.value() == Currency() ? std::string() : sCampo + " = " + Validacoes::sGetFloatSQL(caixa.value()) + " ";
  };
}

void vAcrescentar(std::vector<Criterio>& criterios, std::vector<Criterio> outros) {
  for (Criterio& criterio : outros) criterios.push_back(std::move(criterio));
}

}  // namespace

FormularioBuscaLado::FormularioBuscaLado(Screen& tela, Contexto& contexto, const Lado& lado)
    : lado_(lado),
      txtNumeroFatura(tela, "txtNumeroFatura"),
      entidades(tela, contexto, lado, EntidadesFatura::Uso::filtro),
      emissao(tela, "Emissao", "Filtrar por emi&ssão") {}

void FormularioBuscaLado::vSetCliente(std::int32_t lChave, const std::string& sNome) {
  entidades.pessoa.busca.vSet(lChave, sNome);
}
void FormularioBuscaLado::vSetFornecedor(std::int32_t lChave, const std::string& sNome) {
  entidades.pessoa.busca.vSet(lChave, sNome);
}
void FormularioBuscaLado::vSetPortador(std::int32_t lChave, const std::string& sNome) {
  entidades.portador.busca.vSet(lChave, sNome);
}
void FormularioBuscaLado::vSetVendedor(std::int32_t lChave, const std::string& sNome) {
  if (entidades.vendedor) entidades.vendedor->busca.vSet(lChave, sNome);
}
void FormularioBuscaLado::vSetCentroCusto(std::int32_t lChave, const std::string& sDescricao) {
  entidades.centroCusto.busca.vSet(lChave, sDescricao);
}

Criterio FormularioBuscaLado::escolhida(std::string sCampo, const CampoBusca& busca) {
  return [sCampo = std::move(sCampo), &busca] {
    return busca.lCodigo < 1 ? std::string() : sCampo + " = " + std::to_string(busca.lCodigo) + " ";
  };
}

std::vector<Criterio> FormularioBuscaLado::criteriosDasOutras() const {
  std::vector<Criterio> criterios{escolhida("lPortador", entidades.portador.busca)};
  if (entidades.vendedor) criterios.push_back(escolhida(lado_.sFaturas + ".lVendedor", entidades.vendedor->busca));
  criterios.push_back(escolhida(lado_.sFiltroCentroCusto, entidades.centroCusto.busca));
  return criterios;
}

FormularioBuscaTitulos::FormularioBuscaTitulos(Screen& tela, Contexto& contexto, const Lado& lado)
    : FormularioBuscaLado(tela, contexto, lado),
      txtCodigoInf(tela, "txtCodigoInf", 15),
      txtNF(tela, "txtNF"),
      chkPago(tela, "chkPago", "Pa&go"),
      vencimento(tela, "Vencimento", "Filtrar por &vencimento"),
      pagamento(tela, "Pagamento", "Filtrar por paga&mento") {}

void FormularioBuscaTitulos::vIniciarPeriodos(Date dtHoje) {
  for (PeriodoBusca* periodoBuscado : {&emissao, &vencimento, &pagamento}) periodoBuscado->vIniciar(dtHoje);
}

std::vector<Criterio> FormularioBuscaTitulos::criterios() const {
  return criteriosCom([this] { return std::string(chkPago.checked() ? "(fValorPago > 0) " : "(fValorPago <= 0) "); });
}

std::vector<Criterio> FormularioBuscaTitulos::criteriosDeAbertos() const {
  return criteriosCom([] { return std::string("(fValorPago <= 0) "); });
}

std::vector<Criterio> FormularioBuscaTitulos::criteriosCom(Criterio situacao) const {
  // The beginning of the code is always asked for: an empty box is the beginning of every one.
  std::vector<Criterio> todos{
      igual("lNumeroFatura", txtNumeroFatura), [this] { return sPrefixo("sCodigoInf", txtCodigoInf); },
      [this] {
        return txtNF.value() < Currency::fromInteger(1) ? std::string() : "lNF = " + txtNF.value().toDecimal() + " ";
      },
      std::move(situacao), escolhida(lado_.sChavePessoa, entidades.pessoa.busca)};
  vAcrescentar(todos, criteriosDasOutras());
  vAcrescentar(todos, {emissao.criterio(), vencimento.criterio(), pagamento.criterio()});
  return todos;
}

std::vector<LayoutNode> FormularioBuscaTitulos::linhas(std::vector<LayoutNode> aposNotaFiscal) {
  std::vector<LayoutNode> primeira{campo("Nº da &fatura", txtNumeroFatura, 4), campo("&Código", txtCodigoInf, 4),
                                   campo("Nota f&iscal", txtNF, 4)};
  for (LayoutNode& no : aposNotaFiscal) primeira.push_back(std::move(no));
  primeira.push_back(solto(chkPago));
  std::vector<LayoutNode> nos{linha(std::move(primeira))};
  for (LayoutNode& no : entidades.linhas()) nos.push_back(std::move(no));
  nos.push_back(
      linha({emissao.grupo("Emissão", 8), vencimento.grupo("Vencimento", 8), pagamento.grupo("Pagamento", cresce)}));
  return nos;
}

FormularioBuscaFaturas::FormularioBuscaFaturas(Screen& tela, Contexto& contexto, const Lado& lado)
    : FormularioBuscaLado(tela, contexto, lado),
      txtTotal(tela, "txtTotal"),
      txtEntrada(tela, "txtEntrada"),
      condicao(tela, contexto, entidades.portador.caixa) {
  entidades.pessoa.busca.vSetProximo(condicao.txtCondPagCodigoInf);
}

void FormularioBuscaFaturas::vSetCondicaoPagamento(std::int32_t lChave, std::int32_t btCodigoInf,
                                                   std::int32_t iNumeroParcelas, std::int32_t iIntervalo,
                                                   std::int32_t bitEntrada) {
  condicao.vSet(lChave, btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada);
}

std::vector<Criterio> FormularioBuscaFaturas::criterios() const {
  std::vector<Criterio> todos{igual("lNumeroFatura", txtNumeroFatura),
                              emissao.criterio(),
                              valor("fTotal", txtTotal),
                              valor("fEntrada", txtEntrada),
                              escolhida(lado_.sChavePessoa, entidades.pessoa.busca),
                              escolhida("lCondicoesPagamento", condicao.busca)};
  vAcrescentar(todos, criteriosDasOutras());
  return todos;
}

std::vector<LayoutNode> FormularioBuscaFaturas::linhas() {
  std::vector<LayoutNode> ultima{entidades.portador.campo(8)};
  if (entidades.vendedor) ultima.push_back(entidades.vendedor->campo(8));
  ultima.push_back(entidades.centroCusto.campo(cresce));
  return {linha({campo("Nº da &fatura", txtNumeroFatura, 4), campo("&Total da fatura", txtTotal, 4),
                 campo("Entr&ada", txtEntrada, 4), entidades.pessoa.campo(cresce)}),
          emissao.grupoEmLinha("Emissão"), condicao.grupo(), linha(std::move(ultima))};
}

}  // namespace fenvale

#include "titles/screens/TelaTitulosCadastro.h"

#include "access/services/Permissoes.h"
#include "platform/base/Checked.h"
#include "platform/sql/Store.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "shell/services/Validacoes.h"
#include "store/services/Sistema.h"
#include "titles/screens/ColunasTitulos.h"
#include "titles/services/Juros.h"
#include "titles/services/Lado.h"

namespace fenvale {
namespace {

/// The screen stays after a failure, so the report lets the program go on.
constexpr int iContinuar = 2;

}  // namespace

TelaTitulosCadastro::TelaTitulosCadastro(Contexto& contexto, const Lado& lado)
    : TelaCadastro(contexto, lado.titulos.sNome),
      txtFilial(lado.bFilial ? std::make_unique<TextBox>(*this, "txtFilial", 3) : nullptr),
      cmdCalcularJuros(lado.bJuros ? std::make_unique<Button>(*this, "cmdCalcularJuros", "Calcular &juros", "calcular")
                                   : nullptr),
      entidades(*this, contexto, lado, EntidadesFatura::Uso::cadastro, lado.sInformePessoaTitulo),
      lado_(lado),
      titulos_(contexto),
      gerador_(contexto, lado) {
  if (cmdCalcularJuros) cmdCalcularJuros->onClick = [this] { cmdCalcularJuros_Click(); };
  cmdLocalizarBaixa.onClick = [this] { cmdLocalizarBaixa_Click(); };
  vDescrever({
      .sLegenda = lado.titulos.sLegenda,
      .sTitulo = lado.titulos.sTitulo,
      .sTabela = lado.sTitulos,
      .codigo = &txtCodigoInf,
      .colunas = colunasDaLista(),
      .sSelecao = lado.titulos.sSelecao,
      .sOrdem = " ORDER BY sCodigoInf ",
      .sBusca = lado.titulos.sBusca,
      .iColunasImpressao = 130,
      .buscas = entidades.buscas(),
  });
  vMontarFormulario();
}

std::vector<ColunaLista> TelaTitulosCadastro::colunasDaLista() {
  std::vector<ColunaLista> colunas = colunasTitulos(lado_);
  entidades.vLigarColunas(colunas);
  if (txtFilial) vLigar(colunas, "sFilial", *txtFilial);
  vLigar(colunas, "sCodigoInf", txtCodigoInf);
  vLigar(colunas, "Emissao", dtEmissao);
  vLigar(colunas, "Vencimento", dtVencimento);
  vLigar(colunas, "ValorFatura", txtTotal);
  vLigar(colunas, "ValorTitulo", txtValor);
  vLigar(colunas, "ValorPago", txtValorPago);
  vLigar(colunas, "Juros", txtJuros);
  vLigar(colunas, "Desconto", txtDesconto);
  vLigar(colunas, "lNF", txtNF);
  vLigar(colunas, "sObs", txtObs);
  return colunas;
}

void TelaTitulosCadastro::vMontarFormulario() {
  std::vector<LayoutNode> primeira{campo("&Emissão", dtEmissao, 4), entidades.pessoa.campo(cresce)};
  std::vector<LayoutNode> segunda;
  if (entidades.vendedor) {
    primeira.push_back(entidades.portador.campo(7));
    segunda.push_back(entidades.vendedor->campo(12));
  } else {
    segunda.push_back(entidades.portador.campo(12));
  }
  primeira.push_back(campo("Valor da fatu&ra", txtTotal, 4));
  segunda.push_back(entidades.centroCusto.campo(cresce));

  std::vector<LayoutNode> titulo{campo("&Código", txtCodigoInf, 4)};
  if (txtFilial) titulo.push_back(campo("F&ilial", *txtFilial, 3));
  titulo.push_back(campo("&Vencimento", dtVencimento, 4));
  titulo.push_back(campo("Valor do &título", txtValor, 4));
  titulo.push_back(campo("Nota &fiscal", txtNF, 3));
  titulo.push_back(campo("&Observação", txtObs, cresce));

  std::vector<LayoutNode> pagamento{campo("Pa&gamento", dtPagamento, 4), campo("Juro co&brado", txtJuros, 4),
                                    campo("&Desconto", txtDesconto, 4), campo("Valor p&ago", txtValorPago, 4)};
  if (cmdCalcularJuros) pagamento.push_back(solto(*cmdCalcularJuros));

  vMontarTela({quadro("Fatura", {linha(std::move(primeira)), linha(std::move(segunda))}),
               quadro("Título", {linha(std::move(titulo)), linha(std::move(pagamento))})},
              {&cmdLocalizarBaixa}, {solto(chkManterFatura)});
  setPreferredSize(24, 40);
}

void TelaTitulosCadastro::onLoad() {
  cmdLocalizarBaixa.setEnabled(contexto().telas().bExiste(lado_.titulos.sBuscaBaixa));
  TelaCadastro::onLoad();
}

void TelaTitulosCadastro::vSetPortador(std::int32_t lChave, const std::string& sNome) {
  entidades.portador.busca.vSet(lChave, sNome);
}

void TelaTitulosCadastro::vSetCentroCusto(std::int32_t lChave, const std::string& sDescricao) {
  entidades.centroCusto.busca.vSet(lChave, sDescricao);
}

std::string TelaTitulosCadastro::sFiltro(const std::string& sWhere) const {
  return sWhere.empty() ? "WHERE (fValorPago <= 0) " : sWhere;
}

std::string TelaTitulosCadastro::sFiltroDaFatura(std::int32_t lChave) const {
  return "WHERE " + lado_.sTitulos + "." + lado_.sLigacao + " = " + std::to_string(lChave) + " ";
}

void TelaTitulosCadastro::vAposNovo() { lFatura = -1; }

void TelaTitulosCadastro::vSetTituloBaixa(const ListItem& item) { vCarregarLinha(item); }

void TelaTitulosCadastro::vAposCarregar(const ListItem& item) {
  const auto celula = [&](std::string_view sCampo) -> const std::string& {
    std::size_t i = 0;
    while (colunas()[i].sCampo != sCampo) ++i;
    return item.subItem(i);
  };
  sValorGuardado_ = celula("ValorTitulo");
  sPagoGuardado_ = celula("Pago");
  dtPagamento.setValue(readDate(celula("Pagamento")).value_or(contexto().relogio().today()));
  lFatura = -1;  // not that of the title before, should this one be gone from the store
  lFatura = (titulos_.*lado_.lGetCodigoFatura)(txtCodigoInf.text());
}

void TelaTitulosCadastro::cmdCalcularJuros_Click() try {
  txtJuros.setValue(Juros(contexto()).fCalcularJuros(txtValor.value(), dtVencimento.value(), txtJuros.value()));
  txtValorPago.setValue(txtValor.value() + txtJuros.value() - txtDesconto.value());
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdCalcularJuros_Click", iContinuar);
}

void TelaTitulosCadastro::cmdLocalizarBaixa_Click() try {
  if (!permissoes().bGetPesquisar()) return;
  contexto().telas().obter<TelaBusca>(lado_.titulos.sBuscaBaixa).vLocalizar(*this);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdLocalizarBaixa_Click", iContinuar);
}

bool TelaTitulosCadastro::bGravar() {
  lFaturaLembrada_ = lFatura;
  transacao_.vIniciar(conexao());
  vSalvarFaturaTitulo();
  vSalvarTitulo();
  if (bPagarFatura) {
    gerador_.vPagarTitulosFatura(lFatura, txtValorPago.value());
  } else if (bAbaterTitulos) {
    gerador_.vAbaterTitulos(lFatura, lCodigo);
  } else {
    gerador_.vCriarTituloComplementar(lFatura, dtVencimento.value(), txtValor.value(), txtValorPago.value());
  }
  if (!bReajustarTitulos()) {
    vDesfazer();
    return false;
  }
  transacao_.vConfirmar();
  return true;
}

void TelaTitulosCadastro::vDesfazer() {
  if (!transacao_.bDesfazer()) return;
  lFatura = lFaturaAntes_;
  entidades.vRestaurarChaves(chavesAntes_);
}

void TelaTitulosCadastro::vSalvarFaturaTitulo() {
  if (lFatura > 0 && Recordset("SELECT lCodigo FROM " + lado_.sFaturas + " WHERE lCodigo = " + std::to_string(lFatura),
                               conexao(), CursorType::dynamic, LockType::pessimistic)
                         .eof())
    lFatura = 0;

  ValoresSQL valores{{"dtEmissao", Ligacao(dtEmissao).sLiteral()}};
  const auto acrescentar = [&valores](ValoresSQL outros) {
    for (auto& valor : outros) valores.push_back(std::move(valor));
  };
  if (lFatura >= 1) {
    acrescentar(entidades.valores());
    return vExecutar(sComandoAlteracao(lado_.sFaturas, valores, lFatura));
  }
  Sistema sistema(contexto());
  const std::int32_t lCondicao = sistema.lGetCondicaoPagamentoPadrao();
  valores.insert(valores.begin(),
                 {"lNumeroFatura", sistema.sGetProximoCodigoNumerico(lado_.sFaturas, "lNumeroFatura", 0, true)});
  valores.emplace_back("fTotal", Ligacao(txtTotal).sLiteral());
  valores.emplace_back("fEntrada", "0");
  acrescentar(entidades.valores(lCondicao));
  vExecutar(sComandoInclusao(lado_.sFaturas, valores));
  lFatura = gerador_.lGetCodigoUltimaFatura();
}

void TelaTitulosCadastro::vSalvarTitulo() {
  const auto valor = [](const char* sColuna, const Ligacao& lugar) { return std::pair(sColuna, lugar.sLiteral()); };
  const bool bResumido = bTituloPago();
  ValoresSQL valores{valor("sCodigoInf", txtCodigoInf)};
  if (bResumido) {
    if (txtFilial) valores.push_back(valor("sFilial", *txtFilial));
    valores.push_back(valor("dtPagamento", dtPagamento));
  } else {
    valores.push_back(valor("dtVencimento", dtVencimento));
    valores.push_back(valor("fValor", txtValor));
    valores.push_back(valor("dtPagamento", dtPagamento));
    valores.push_back(valor("fValorPago", txtValorPago));
    valores.push_back(valor("fJuros", txtJuros));
    valores.push_back(valor("fDesconto", txtDesconto));
  }
  valores.push_back(valor("lNF", txtNF));
  valores.push_back(valor("sObs", txtObs));
  if (!bResumido) {
    valores.emplace_back(lado_.sLigacao, std::to_string(lFatura));
    if (txtFilial) valores.push_back(valor("sFilial", *txtFilial));
  }
  vExecutar(lCodigo >= 0 ? sComandoAlteracao(lado_.sTitulos, valores, lCodigo)
                         : sComandoInclusao(lado_.sTitulos, valores));
}

void TelaTitulosCadastro::vNovoMantendoFatura() {
  const bool bManter = chkManterFatura.checked();
  cmdNovo_Click();
  chkManterFatura.setChecked(bManter);
  if (bManter) {
    vMontarLista(0, sFiltroDaFatura(lFaturaLembrada_));
  } else if (lFaturaPreview > 0) {
    vMontarLista(0, sFiltroDaFatura(lFaturaPreview));
  }
}

void TelaTitulosCadastro::vAposGravar() { vNovoMantendoFatura(); }

bool TelaTitulosCadastro::bPodeExcluir() {
  const Recordset rs("SELECT " + lado_.sTitulos + ".lCodigo FROM " + lado_.sTitulos + " WHERE " + lado_.sLigacao +
                         " = " + std::to_string(lFatura),
                     conexao(), CursorType::dynamic, LockType::pessimistic);
  if (rs.recordCount() > 1) return true;
  avisar("Não será possível excluir este título pois é o único relacionado com a fatura de " + lado_.sPessoaMinuscula +
         " nº " + std::to_string(lFatura) + ".");
  return false;
}

void TelaTitulosCadastro::vExcluir() {
  lFaturaLembrada_ = lFaturaAntes_ = lFatura;
  chavesAntes_ = entidades.chaves();
  transacao_.vIniciar(conexao());
  vExecutar(sExclusao());
  const Currency fSoma = titulos_.fGetValorTotalTitulosFatura(lado_.sTitulos, lado_.sLigacao, lFatura);
  vExecutar(sComandoAlteracao(lado_.sFaturas, {{"fTotal", Validacoes::sGetFloatSQL(fSoma)}}, lFatura));
  transacao_.vConfirmar();
}

void TelaTitulosCadastro::vAposExcluir() { vNovoMantendoFatura(); }

}  // namespace fenvale

// The paged lists: filling a page, sorting, marking, widths, and the clearing of a screen.

#include <charconv>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/sql/Collation.h"
#include "platform/sql/Store.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Screen.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"
#include "shell/services/TelaComLista.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "store/services/DBConectar.h"
#include "store/services/XML.h"

namespace fenvale {
namespace {

constexpr std::int32_t lTamanhoPaginaPadrao = 100;
constexpr Colour corSelecionado = 192;
constexpr std::string_view sPrefixoChave = "00000";
/// Wider than any window; a file that says more is damaged.
constexpr float fMaiorLargura = 10'000'000;
/// What goes wrong with a list is reported, and the screen stays.
constexpr int iOpcaoContinuar = 2;

std::string sResumo(std::int32_t lPagina, std::int32_t lRegistros) {
  return "Página " + std::to_string(lPagina) + " · " + formatNumber(Currency::fromInteger(lRegistros), "#,##0") +
         (lRegistros == 1 ? " registro" : " registros");
}

std::string sArquivoColunas(const Contexto& contexto, const std::string& sNome) {
  return contexto.sGetCaminhoAplicacao() + "/list/" + sNome + ".XML";
}

/// The shortest text that reads back as the same number, with the comma of Brazil.
std::string sLargura(float largura) {
  char texto[64];
  const auto [fim, erro] = std::to_chars(texto, texto + sizeof texto, largura, std::chars_format::fixed);
  return replaceAll(std::string(texto, fim), ".", ",");
}

float fLargura(const std::string& sTexto) {
  const std::string sNumero = replaceAll(trim(sTexto), ",", ".");
  float largura = 0;
  const char* const final = sNumero.data() + sNumero.size();
  const auto [fim, erro] = std::from_chars(sNumero.data(), final, largura);
  // The comparisons fail for what is no number, too.
  if (erro != std::errc() || fim != final || !(largura >= 0 && largura <= fMaiorLargura))
    throw Error(errors::typeMismatch, "A largura \"" + sTexto + "\" é inválida.");
  return largura;
}

}  // namespace

std::string sChaveLista(std::int32_t lCodigo) { return std::string(sPrefixoChave) + std::to_string(lCodigo); }
std::int32_t lCodigoDaChave(std::string_view sChave) { return readInt32(sChave); }

void Funcoes::vMontarLista(TelaListaPaginada& frm, std::int16_t iInicio, Recordset& rs) {
  try {
    vPreencherPagina(frm, iInicio, rs);
  } catch (const Error& falha) {
    // The page selector stays inert and the progress stands where it was until the next successful fill.
    frm.telaDaLista().setEnabled(true);
    bSetAmpulhetaMouse(true);
    if (falha.number != errors::invalidCall && falha.number != errors::divisionByZero)
      vRegistrarFalha(falha, "vMontarLista", iOpcaoContinuar);
  }
}

void Funcoes::vPreencherPagina(TelaListaPaginada& frm, std::int16_t iInicio, Recordset& rs) {
  ConfiguracoesPrograma& configuracoes = contexto_.configuracoes();
  ProgressBar& pb = frm.pbDaLista();
  PageScroll& scr = frm.scrDaLista();
  bSetAmpulhetaMouse(false);
  if (configuracoes.lGetTamanhoPagina() == 0) configuracoes.vSetTamanhoPagina(lVerificarTamanhoPagina());
  configuracoes.vSetMostrarNovaPagina(false);
  frm.lstDaLista().clear();
  pb.setValue(0);
  scr.setMaximum(0);
  scr.setSummary({});
  frm.telaDaLista().setEnabled(false);

  const std::int32_t lRegistros = rs.recordCount();
  if (lRegistros != 0) {
    rs.moveFromFirst(iInicio);
    pb.setMaximum(lRegistros);
    const std::int32_t lTamanho = configuracoes.lGetTamanhoPagina();
    for (std::int32_t linha = 0; linha < lTamanho; ++linha) {
      const bool bInserida = frm.bInserirLista(rs);
      if (pb.value() + 1 < pb.maximum()) pb.setValue(pb.value() + 1);
      if (bInserida) rs.moveNext();
    }
    if (lTamanho == 0) throw Error(errors::divisionByZero, "Divisão por zero.");
    scr.setMaximum(roundToInt16(static_cast<double>(lRegistros) / lTamanho));
    scr.setValue(roundToInt16(static_cast<double>(iInicio) / lTamanho));
  }
  frm.lstDaLista().sortAgain();
  scr.setSummary(sResumo(scr.value() + 1, lRegistros));

  configuracoes.vSetMostrarNovaPagina(true);
  frm.telaDaLista().setEnabled(true);
  pb.setValue(0);
  bSetAmpulhetaMouse(true);
}

std::int32_t Funcoes::lVerificarTamanhoPagina() try {
  const Recordset rs("SELECT lTamanhoPagina FROM Configuracoes ", contexto_.dbConectar().Dados());
  return rs.eof() ? lTamanhoPaginaPadrao : rs["lTamanhoPagina"].toLong();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "lVerificarTamanhoPagina");
  return lTamanhoPaginaPadrao;
}

void Funcoes::vOrdenarListView(ListView& lst, std::size_t coluna) {
  const bool bCrescente = iOrdem_ == 0;
  iOrdem_ = bCrescente ? 1 : 0;
  lst.sort(coluna - 1, bCrescente, compareTexts);
}

void Funcoes::vSelecionarItem(bool bSelecionar, ListItem* item) {
  if (item != nullptr) item->setMark(bSelecionar, bSelecionar ? corSelecionado : 0);
}

void Funcoes::vSetTamanhoColunasList(ListView& lst, const std::string& sNome) try {
  std::string sConteudo = "<root>" + std::string(lineBreak);
  for (const ListColumn& coluna : lst.columns())
    sConteudo += "<size>" + sLargura(coluna.width) + "</size>" + std::string(lineBreak);
  sConteudo += "</root>" + std::string(lineBreak);
  files::createFolder(contexto_.sGetCaminhoAplicacao() + "/list");
  files::write(sArquivoColunas(contexto_, sNome), sConteudo);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vSetTamanhoColunasList", iOpcaoContinuar);
}

void Funcoes::vGetTamanhoColunasList(ListView& lst, const std::string& sNome) try {
  const std::string sArquivo = sArquivoColunas(contexto_, sNome);
  if (!files::isFile(sArquivo)) return;
  const XmlDocument documento = XML(contexto_).docPrepararArquivoXML(sArquivo);
  const auto tamanhos = documento.elements("size");
  // A file with too few or too many sizes is applied as far as it goes.
  for (std::size_t coluna = 0; coluna < tamanhos.size() && coluna < lst.columns().size(); ++coluna) {
    contexto_.host().doEvents();
    if (tamanhos[coluna].children.empty()) return;
    lst.setColumnWidth(coluna + 1, fLargura(tamanhos[coluna].children.front()));
  }
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vGetTamanhoColunasList", iOpcaoContinuar);
}

void Funcoes::vHabilitarModuloConsultaFiltragem(Screen& frm) try {
  const auto* chkFiltrar = dynamic_cast<const CheckBox*>(frm.control("chkFiltrar"));
  auto* comLista = dynamic_cast<TelaComLista*>(&frm);
  if (chkFiltrar == nullptr || comLista == nullptr)
    throw Error(errors::objectNotSet, "A tela " + frm.sGetName() + " não tem filtro.");
  for (const char* sBotao : {"cmdNovo", "cmdSalvar", "cmdExcluir"})
    if (Control* botao = frm.control(sBotao)) botao->setEnabled(!chkFiltrar->checked());
  comLista->vMontarLista(0, "");
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vHabilitarModuloConsultaFiltragem", iOpcaoContinuar);
}

void Funcoes::vLimparTudo(const std::vector<Control*>& controles) {
  const Date hoje = contexto_.relogio().today();
  for (Control* controle : controles) {
    controle->reset(hoje);
    contexto_.host().doEvents();
  }
}

}  // namespace fenvale

#include "reports/screens/frmOpcoesRelList.h"

#include "access/services/Permissoes.h"
#include "platform/base/Checked.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/xml/XmlDocument.h"
#include "reports/services/ImpressaoList.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"

namespace fenvale {
namespace {

constexpr std::int16_t iSaidaTexto = 1;
constexpr int iPelaLista = 1;
/// With the endings of the text and of the PDF file and that of a file in the making it stays below the 255 bytes of a
/// file system.
constexpr std::size_t maximoNome = 230;

/// The title as a name for a file, on any system.
std::string sTituloLimpo(std::string sTitulo) {
  for (char& letra : sTitulo)
    if (std::string_view("/\\:*?\"<>|").find(letra) != std::string_view::npos) letra = '-';
  std::string sNome = left(sTitulo, maximoNome);
  while (sNome.size() > maximoNome) sNome = left(sNome, length(sNome) - 1);
  return sNome;
}

/// The choice that a file tells; -1 when it tells none that there is.
int iSaidaLembrada(const std::string& sArquivo, std::size_t saidas) {
  for (const XmlElement& elemento : XmlDocument::load(sArquivo).elements("opt"))
    for (const std::string& sTexto : elemento.children)
      for (std::size_t saida = 0; saida < saidas; ++saida)
        if (trim(sTexto) == std::to_string(saida)) return static_cast<int>(saida);
  return -1;
}

}  // namespace

frmOpcoesRelList::frmOpcoesRelList(Contexto& contexto) : Tela(contexto, "frmOpcoesRelList"), funcoes_(contexto) {
  setCaption("Impressão");
  setTitle("Opções para impressão de listagem");
  setLayout({
      linha({campo("Selecione o tipo de saída para o relatório", cmbSaida, cresce)}),
      linha({campo("Opção de dimensionamento das colunas do relatório", cmbOpcaoDimensionamento, cresce)}),
      linha({campo("Título do relatório", txtTitulo, cresce), campo("Número de colunas", cmbColunas, 5)}),
      botoes({&cmdEmitir}, {&cmdFechar}),
  });
  setPreferredSize(16, 0);
  cmdEmitir.setPrimary();
  for (ComboBox* combo : {&cmbSaida, &cmbOpcaoDimensionamento, &cmbColunas})
    combo->onKeyPress = [this, combo](std::string_view sCaractere) {
      return funcoes_.vComboMagico(*combo, sCaractere);
    };
  cmbColunas.onLostFocus = [this] { cmbColunas_LostFocus(); };
  cmbOpcaoDimensionamento.onLostFocus = [this] { cmbOpcaoDimensionamento_LostFocus(); };
  txtTitulo.onLostFocus = [this] { opcoes_.vSetTitulo(txtTitulo.text()); };
  cmdEmitir.onClick = [this] { cmdEmitir_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

void frmOpcoesRelList::onLoad() try {
  for (const char* sColunas : {"80", "130"}) cmbColunas.addItem(sColunas);
  for (const char* sOpcao : {"Tamanho máximo do texto do cabeçalho das colunas", "Tamanho das colunas da listagem"})
    cmbOpcaoDimensionamento.addItem(sOpcao);
  for (const char* sSaida :
       {"Direto para a impressora (porta LPT1)", "Arquivo de texto puro (.txt)", "Arquivo em formato PDF (.pdf)"})
    cmbSaida.addItem(sSaida);
  cmbOpcaoDimensionamento.setListIndex(iPelaLista);
  if (files::isFile(sCaminhoSaida())) cmbSaida.setListIndex(iSaidaLembrada(sCaminhoSaida(), cmbSaida.items().size()));
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Load");
}

bool frmOpcoesRelList::onUnload() {
  vLembrarSaida();
  opcoes_ = {};
  return true;
}

bool frmOpcoesRelList::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

void frmOpcoesRelList::vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) {
  OpcoesImpressaoList opcoes;
  opcoes.vSetTitulo(sTitulo);
  opcoes.vSetColunas(iColunas);
  opcoes.vSetList(lst);
  opcoes.vSetCaminhoArquivo(contexto().sGetCaminhoAplicacao() + "/buffer.rep");
  vSetOpcoes(opcoes);
  vMostrarFormModal(*this);
}

void frmOpcoesRelList::vSetOpcoes(const OpcoesImpressaoList& opcoes) {
  ensureLoaded();
  opcoes_ = opcoes;
  // The list's own widths are the rule; whoever wants the other way chooses it each time.
  opcoes_.vSetOpcaoDimensionamento(iPelaLista);
  cmbOpcaoDimensionamento.setListIndex(iPelaLista);
  txtTitulo.setText(opcoes_.sGetTitulo());
  funcoes_.bLookCombo(cmbColunas, std::to_string(opcoes_.iGetColunas()));
}

std::int16_t frmOpcoesRelList::iColunasEscolhidas() const { return toInt16(readInt32(cmbColunas.text())); }

void frmOpcoesRelList::cmbColunas_LostFocus() {
  if (cmbColunas.listIndex() >= 0) opcoes_.vSetColunas(iColunasEscolhidas());
}

void frmOpcoesRelList::cmbOpcaoDimensionamento_LostFocus() {
  if (cmbOpcaoDimensionamento.listIndex() >= 0)
    opcoes_.vSetOpcaoDimensionamento(toInt16(cmbOpcaoDimensionamento.listIndex()));
}

void frmOpcoesRelList::cmdEmitir_Click() try {
  if (!contexto().permissoes().bGetImprimir()) return;
  if (txtTitulo.empty()) {
    recusar("Informe o título.", txtTitulo);
    return;
  }
  if (cmbColunas.listIndex() < 0) {
    recusar("Informe o número de colunas.", cmbColunas);
    return;
  }
  opcoes_.vSetOpcaoSaida(cmbSaida.listIndex() < 0 ? iSaidaTexto : toInt16(cmbSaida.listIndex()));
  opcoes_.vSetCaminhoArquivo(contexto().sGetCaminhoAplicacao() + files::separator + sTituloLimpo(txtTitulo.text()) +
                             ".txt");
  opcoes_.vSetColunas(iColunasEscolhidas());
  opcoes_.vSetTitulo(left(txtTitulo.text(), static_cast<std::size_t>(opcoes_.iGetColunas())));
  ImpressaoList(contexto()).vContruirArquivoImpressao(opcoes_);
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdEmitir_Click");
}

std::string frmOpcoesRelList::sCaminhoSaida() const { return contexto().sGetCaminhoAplicacao() + "/outputRep.XML"; }

void frmOpcoesRelList::vLembrarSaida() try {
  if (cmbSaida.listIndex() < 0) return;
  files::write(sCaminhoSaida(),
               "<root><opt>" + std::to_string(cmbSaida.listIndex()) + "</opt></root>" + std::string(lineBreak));
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Unload");
}

}  // namespace fenvale

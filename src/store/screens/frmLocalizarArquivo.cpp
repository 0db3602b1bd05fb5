#include "store/screens/frmLocalizarArquivo.h"

#include "platform/base/Checked.h"
#include "platform/base/Format.h"
#include "platform/os/Files.h"
#include "shell/services/Ampulheta.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "shell/services/Telas.h"
#include "store/screens/ArvoreDiretorios.h"

namespace fenvale {
namespace {

constexpr std::int32_t dispositivoNaoPronto = 68;

std::string sDetalhe(const std::string& sFrase, const Error& falha) {
  return sFrase + "\r\n\r\nInformação detalhada: - " + falha.description;
}

}  // namespace

frmLocalizarArquivo::frmLocalizarArquivo(Contexto& contexto)
    : Tela(contexto, "frmLocalizarArquivo"),
      chkSubDiretorios(*this, "chkSubDiretorios",
                       "Consulta avançada - Selecionando esta opção, o sistema realizará uma busca avançada pelo local "
                       "informado, varrendo os sub-diretórios à procura de arquivos que contenham possíveis "
                       "importações"),
      lstLista(*this, "lstLista", {{"Arquivos", 5600, Align::left}}),
      funcoes_(contexto) {
  setCaption("Localizar arquivo");
  setTitle("Localizar arquivo");
  flstListaArquivos.setVisible(false);
  setLayout({
      solto(lbLabel),
      linha({coluna({campo("Unidade", drvlstListaDiretorios, cresce), lista(drvArvoreDiretorios, "Pastas")}, 7),
             coluna({lista(lstLista, "Arquivos encontrados"), solto(pbBarra1, cresce, "Andamento na pasta"),
                     solto(pbBarra2, cresce, "Andamento nas pastas")},
                    13)}),
      solto(chkSubDiretorios),
      botoes({&cmdMostrarImportacoesPossivel}, {&cmdFechar}),
  });
  setPreferredSize(20, 30);
  cmdMostrarImportacoesPossivel.setPrimary();
  mnuPopUp.setItems({{"mnuExibirImagem",
                      "Exibir item como uma imagem",
                      {},
                      [this] { mnuExibirImagem_Click(); },
                      "imagem",
                      true,
                      true}});

  flstListaArquivos.setPath(drvArvoreDiretorios.path());
  drvlstListaDiretorios.onChange = [this] { drvArvoreDiretorios_Change(); };
  lstLista.onMouseDown = [this](MouseButton botao) { botao_ = botao; };
  lstLista.onItemClick = [this](const std::shared_ptr<ListItem>& item) { lstLista_ItemClick(item); };
  lstLista.onColumnClick = [this](std::size_t coluna) { funcoes_.vOrdenarListView(lstLista, coluna); };
  cmdMostrarImportacoesPossivel.onClick = [this] { cmdMostrarImportacoesPossivel_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

void frmLocalizarArquivo::vCarregar(const std::string& sPadrao) {
  flstListaArquivos.setPattern(sPadrao);
  lbLabel.setCaption("Localizar arquivos " + sPadrao);
  vMostrarFormModal(*this);
}

bool frmLocalizarArquivo::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

void frmLocalizarArquivo::drvArvoreDiretorios_Change() try {
  drvArvoreDiretorios.setPath(drvlstListaDiretorios.drive());
} catch (const Error& falha) {
  if (falha.number != dispositivoNaoPronto) return vRegistrarFalha(falha, "drvArvoreDiretorios_Change");
  avisar(sDetalhe("O dispositivo não está pronto.", falha));
}

void frmLocalizarArquivo::cmdMostrarImportacoesPossivel_Click() {
  const Ampulheta ampulheta(funcoes_);
  bVerificarArquivosPossiveis();
}

void frmLocalizarArquivo::bVerificarArquivosPossiveis() try {
  lstLista.clear();
  pbBarra2.setValue(0);
  const std::string sRaiz = drvArvoreDiretorios.path();
  if (!chkSubDiretorios.checked()) return vListarPasta(sRaiz);
  ArvoreDiretorios arvore(contexto());
  arvore.vMontarArvoreTotal(sRaiz);
  if (!files::isFile(arvore.sGetArquivo())) return;
  const auto pastas = files::lines(files::read(arvore.sGetArquivo()));
  pbBarra2.setMaximum(toInt32(static_cast<std::int64_t>(pastas.size())));
  for (const std::string& sPasta : pastas) {
    vListarPasta(sPasta);
    pbBarra2.setValue(pbBarra2.value() + 1);
  }
  pbBarra2.setValue(0);
} catch (const Error& falha) {
  if (falha.number != dispositivoNaoPronto) return vRegistrarFalha(falha, "bVerificarArquivosPossiveis");
  avisar(sDetalhe("O dispostivo não está pronto.", falha));
}

void frmLocalizarArquivo::vListarPasta(const std::string& sPasta) {
  if (!files::isFolder(sPasta)) throw Error(dispositivoNaoPronto, "A pasta " + sPasta + " não pode ser lida.");
  flstListaArquivos.setPath(sPasta);
  const std::string sInicio = files::endsWithSeparator(sPasta) ? sPasta : sPasta + files::separator;
  const auto nomes = flstListaArquivos.files();
  pbBarra1.setValue(0);
  pbBarra1.setMaximum(std::max<std::int32_t>(1, toInt32(static_cast<std::int64_t>(nomes.size()))));
  for (const std::string& sNome : nomes) {
    host().doEvents();
    vIncluirNaLista(sInicio + sNome);
    pbBarra1.setValue(pbBarra1.value() + 1);
  }
  pbBarra1.setValue(0);
}

void frmLocalizarArquivo::vIncluirNaLista(const std::string& sCaminho) {
  lstLista.addItem(formatNumber(static_cast<std::int64_t>(lstLista.items().size() + 1), "00000"), sCaminho);
}

void frmLocalizarArquivo::lstLista_ItemClick(const std::shared_ptr<ListItem>& item) {
  const MouseButton botao = botao_;
  botao_ = MouseButton::left;
  if (botao == MouseButton::right) return mnuPopUp.show();
  sArquivo_ = item->text();
  unload();
}

void frmLocalizarArquivo::mnuExibirImagem_Click() {
  if (const auto item = lstLista.selectedItem())
    contexto().telas().obter<TelaImagem>("frmExibirImagem").vCarregar(item->text());
}

}  // namespace fenvale

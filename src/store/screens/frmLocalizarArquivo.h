#pragma once
// Finds files by a pattern, in one folder or in all folders below it too.

#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Places.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

class frmLocalizarArquivo final : public Tela, public BuscaArquivo {
 public:
  explicit frmLocalizarArquivo(Contexto& contexto);

  Label lbLabel{*this, "lbLabel", "Localizar arquivos", Label::Style::help};
  CheckBox chkSubDiretorios;
  FileList flstListaArquivos{*this, "flstListaArquivos"};
  DriveList drvlstListaDiretorios{*this, "drvlstListaDiretorios"};
  FolderTree drvArvoreDiretorios{*this, "drvArvoreDiretorios"};
  ProgressBar pbBarra1{*this, "pbBarra1"};
  ProgressBar pbBarra2{*this, "pbBarra2"};
  ListView lstLista;
  Button cmdMostrarImportacoesPossivel{*this, "cmdMostrarImportacoesPossivel", "Procurar", "localizar", Key::f6};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};
  PopupMenu mnuPopUp{*this, "mnuPopUp"};

  void vCarregar(const std::string& sPadrao) override;
  const std::string& sGetArquivo() const override { return sArquivo_; }

 protected:
  bool onKeyDown(Key tecla) override;

 private:
  void drvArvoreDiretorios_Change();
  void cmdMostrarImportacoesPossivel_Click();
  void bVerificarArquivosPossiveis();
  void vListarPasta(const std::string& sPasta);
  void vIncluirNaLista(const std::string& sCaminho);
  void lstLista_ItemClick(const std::shared_ptr<ListItem>& item);
  void mnuExibirImagem_Click();

  Funcoes funcoes_;
  MouseButton botao_ = MouseButton::left;
  std::string sArquivo_;
};

}  // namespace fenvale

#pragma once
// Makes a company's file, or makes one that exists known to the program; takes one off the list without touching its
// file.

#include "platform/ui/Boxes.h"
#include "platform/ui/Places.h"
#include "store/screens/TelaEmpresas.h"

namespace fenvale {

class frmEmpresaNova final : public TelaEmpresas {
 public:
  explicit frmEmpresaNova(Contexto& contexto);

  TextBox txtNomeArquivo{*this, "txtNomeArquivo", 255};
  TextBox txtCaminho{*this, "txtCaminho", 255};
  Label lblLocal{*this, "lblLocal", "Informe o local onde será criado o arquivo da nova empresa", Label::Style::help};
  DriveList drvlstListaDiretorios{*this, "drvlstListaDiretorios"};
  FolderTree drvArvoreDiretorios{*this, "drvArvoreDiretorios"};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};
  Button cmdLocalizar{*this, "cmdLocalizar", "Localizar", "localizar", Key::f6};

 protected:
  void onLoad() override;
  void vClicarLinha(const std::shared_ptr<ListItem>& item) override;

 private:
  void cmdSalvar_Click();
  void vMostrarMenu();
  bool bVerificarDados();
  void vCriarEmpresa();
  /// False when the file could not be made; the reference is then taken back.
  bool bIncluirECriar();
  void vLimpar();
  void vAtualizarCampo();
  void vExcluirCampo();
};

}  // namespace fenvale

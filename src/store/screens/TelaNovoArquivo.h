#pragma once
// A screen of the companies' list that makes a file: its name, and its folder, which a list of drives and a tree of
// folders help to find.

#include <vector>

#include "platform/ui/Boxes.h"
#include "platform/ui/Layout.h"
#include "platform/ui/Places.h"
#include "store/screens/TelaEmpresas.h"

namespace fenvale {

class TelaNovoArquivo : public TelaEmpresas {
 public:
  TextBox txtNomeArquivo{*this, "txtNomeArquivo", 255};
  TextBox txtCaminho{*this, "txtCaminho", 255};
  Label lblLocal;
  DriveList drvlstListaDiretorios{*this, "drvlstListaDiretorios"};
  FolderTree drvArvoreDiretorios{*this, "drvArvoreDiretorios"};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};

 protected:
  TelaNovoArquivo(Contexto& contexto, std::string sNome, const std::string& sLocal, ListView::CheckBoxes marcas);

  /// The whole picture over these commands.
  void vMontarTela(const std::vector<Control*>& comandos);
  void onLoad() override;
  /// Whether name and folder are good for a new file; completes both, and tells what is wrong first.
  bool bVerificarArquivo();
  std::string sGetArquivo() const { return txtCaminho.text() + txtNomeArquivo.text(); }
  void vLimpar();
};

}  // namespace fenvale

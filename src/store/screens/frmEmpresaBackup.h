#pragma once
// Copies a company's file to a folder: a true copy that was read back and found sound, or none.

#include "store/screens/TelaNovoArquivo.h"

namespace fenvale {

class frmEmpresaBackup final : public TelaNovoArquivo {
 public:
  explicit frmEmpresaBackup(Contexto& contexto);

 protected:
  void vClicarLinha(const std::shared_ptr<ListItem>&) override {}  // a row is chosen by its tick alone

 private:
  void lstLista_ItemCheck(const ListItem& item);
  /// The ticked row, when everything is ready for its copy.
  std::shared_ptr<ListItem> bTestarPreechimento();
  void cmdSalvar_Click();
  void vCopiar(const std::string& sOrigem);
};

}  // namespace fenvale

#pragma once
// Makes a company's file, or makes one that exists known to the program; takes one off the list without touching its
// file.

#include "store/screens/TelaNovoArquivo.h"

namespace fenvale {

class frmEmpresaNova final : public TelaNovoArquivo {
 public:
  explicit frmEmpresaNova(Contexto& contexto);

  Button cmdLocalizar{*this, "cmdLocalizar", "Localizar", "localizar", Key::f6};

 protected:
  void vClicarLinha(const std::shared_ptr<ListItem>& item) override;

 private:
  void cmdSalvar_Click();
  void vMostrarMenu();
  void vCriarEmpresa();
  /// False when the file could not be made; the reference is then taken back.
  bool bIncluirECriar();
  void vAtualizarCampo();
  void vExcluirCampo();
};

}  // namespace fenvale

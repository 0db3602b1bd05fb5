#pragma once
// The frame of the program: menu, toolbar, status bar and a picture. It routes each command to its screen, which opens
// modally above it.

#include <map>

#include "platform/ui/Choices.h"
#include "platform/ui/Menu.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/Tela.h"

namespace fenvale {

struct EntradaMenu;

class frmMDIPrincipal final : public Tela, public JanelaPrincipal {
 public:
  explicit frmMDIPrincipal(Contexto& contexto);

  MenuBar mnuPrincipal{*this, "mnuPrincipal"};
  ToolBar Toolbar1;
  StatusBar sttStatusBar;
  /// Keeps the date in the status bar right for those who never leave.
  Timer tmrBarraEstado{*this, "tmrBarraEstado"};

  std::string sGetLegenda() const override { return caption(); }
  void vSetLegenda(std::string sLegenda) override;
  void vSetDireitoMenu(std::string_view sEntrada, bool bDireito) override;
  void vSetDireitoBotao(int iLugar, bool bDireito) override;
  void vHabilitar(bool bHabilitar) override { setEnabled(bHabilitar); }
  void vSetFiguraFundo(std::string sCaminho) override { setBackground(std::move(sCaminho)); }
  void vAtualizarBarraEstado() override;

 protected:
  void onLoad() override;
  /// Closed otherwise than by mnuSair: the program ends and the last company is not remembered.
  bool onUnload() override;

 private:
  void vExecutar(const EntradaMenu& entrada);
  void mnuSair_Click();
  void vMostrarQuadroGeral();
  /// Whether what the entry opens is there; menus and the way out always are.
  bool bTelaExiste(std::string_view sEntrada) const;
  std::string sEmpresaAberta() const;

  bool bAtualizandoBarra_ = false;
};

}  // namespace fenvale

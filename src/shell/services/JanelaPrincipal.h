#pragma once
// The main window, as far as services speak to it.

#include <string>
#include <string_view>

namespace fenvale {

class JanelaPrincipal {
 public:
  virtual ~JanelaPrincipal() = default;
  virtual std::string sGetLegenda() const = 0;
  virtual void vSetLegenda(std::string sLegenda) = 0;
  /// An entry is enabled when its right is given and its screen exists.
  virtual void vSetDireitoMenu(std::string_view sEntrada, bool bDireito) = 0;
  /// By the button's place in the toolbar, counted from 1 with the separators.
  virtual void vSetDireitoBotao(int iLugar, bool bDireito) = 0;
  virtual void vHabilitar(bool bHabilitar) = 0;
  virtual void vSetFiguraFundo(std::string sCaminho) = 0;
  /// Brings user, company, store and date in the status bar up to date.
  virtual void vAtualizarBarraEstado() = 0;
};

}  // namespace fenvale

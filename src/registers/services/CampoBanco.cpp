#include "registers/services/CampoBanco.h"

#include "platform/ui/Screen.h"
#include "registers/services/TeclasDeBusca.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

CampoBanco::CampoBanco(Screen& tela, Contexto& contexto, Control& proximo)
    : txtBanco(tela, "txtBanco"),
      cmdBuscarBancos(tela, "cmdBuscarBancos", "", "lupa"),
      tela_(tela),
      contexto_(contexto) {
  txtBanco.setToolTip(sDicaBusca);
  cmdBuscarBancos.setLabel("Localizar banco");
  cmdBuscarBancos.setToolTip("Localizar banco");
  cmdBuscarBancos.onClick = [this] { vBuscar(); };
  txtBanco.onKeyDown = [this, &proximo](Key tecla) {
    return bTeclaDeBusca(txtBanco, tecla,
                         {.localizar =
                              [this, &proximo] {
                                vBuscar();
                                proximo.setFocus();
                              },
                          .limpar = [this] { vLimpar(); }});
  };
}

void CampoBanco::vSetEstado2(const std::string& sNome) {
  banco_.vSetEstado2(contexto_, sNome);
  txtBanco.setText(sNome);
}

void CampoBanco::vBuscar() {
  contexto_.telas().obter<BuscaBanco>("frmLocalizarBancos").vLocalizarBanco(tela_, banco_, txtBanco);
  txtBanco.setFocus();
}

LayoutNode CampoBanco::campoPrincipal(const std::string& sRotulo, int largura) {
  return campo(sRotulo, txtBanco, largura, {&cmdBuscarBancos});
}

}  // namespace fenvale

#include "shell/screens/frmSobreApp.h"

#include "shell/services/Contexto.h"
#include "shell/services/TratadorExcessoes.h"

namespace fenvale {

frmSobreApp::frmSobreApp(Contexto& contexto) : Tela(contexto, "frmSobreApp") {
  setCaption("Sobre o Programa");
  setLayout({solto(lblNomePrograma), solto(lblVersao), solto(lblDetalhes), botoes({}, {&cmdFechar})});
  setPreferredSize(12, 0);
  cmdFechar.onClick = [this] { unload(); };
}

void frmSobreApp::onLoad() try {
  lblNomePrograma.setCaption(contexto().tratadorExcessoes().sGetNomePrograma());
  lblVersao.setCaption("Versão " + TratadorExcessoes::sGetVersao());
  lblDetalhes.setCaption(
      "Rua das Palmeiras, 120, sala 4\r\n"
      "89010-000\r\n"
      "Blumenau - SC\r\n"
      "(47) 3300-0100\r\n"
      "www.norvane.example\r\n" +
      std::string(sEmailSuporte));
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Load");
}

bool frmSobreApp::onKeyDown(Key) {
  unload();
  return true;
}

}  // namespace fenvale

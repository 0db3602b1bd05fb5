#include "shell/screens/frmSplash.h"

#include "shell/services/Contexto.h"
#include "store/services/Empresas.h"

namespace fenvale {

frmSplash::frmSplash(Contexto& contexto) : TelaEspera(contexto, "frmSplash") {
  setLayout({solto(lblNomePrograma), solto(lblVersao), solto(lblMensagem), solto(lblDireitos)});
  setPreferredSize(12, 12);
}

void frmSplash::vCarregar() try {
  lblDireitos.setCaption(
      "Desenvolvido por Norvane Sistemas\r\nDistribuído por Quelora Ltda\r\nTodos os direitos reservados");
  vAparecer();
  Empresas& empresas = contexto().empresas();
  // The names are not known before the company is opened: the label shows the bare words.
  vPiscar("Abrindo a empresa " + empresas.sGetNomeArquivo() + empresas.sGetCaminho());
  empresas.bSetEmpresaXML();
  vPararDePiscar();
  lblMensagem.setCaption({});
  vDesaparecer();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vCarregar");
}

}  // namespace fenvale

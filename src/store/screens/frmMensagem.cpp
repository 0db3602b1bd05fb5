#include "store/screens/frmMensagem.h"

#include "shell/services/Contexto.h"
#include "store/services/Sistema.h"

namespace fenvale {

frmMensagem::frmMensagem(Contexto& contexto) : TelaEspera(contexto, "frmMensagem") {
  setLayout({solto(lblNomePrograma), solto(lblVersao), solto(lblMensagem)});
  setPreferredSize(12, 9);
}

void frmMensagem::vCarregar(const std::string& sMensagem, bool bEmpresa) try {
  bCarregando_ = true;
  vAparecer();
  vPiscar(sMensagem);
  Sistema(contexto()).vPovoarRelacaoCidades(contexto().sGetCaminhoAplicacao() + "/Cidades.XML", bEmpresa);
  vPararDePiscar();
  bCarregando_ = false;
  vDesaparecer();
} catch (const Error& falha) {
  bCarregando_ = false;
  vRegistrarFalha(falha, "vCarregar");
}

void frmMensagem::vFechar() {
  // While it runs, vCarregar itself takes the screen away, once it was long enough to be read.
  if (!bCarregando_) unload();
}

}  // namespace fenvale

#include "app/Registro.h"

#include "access/screens/frmCadastroUsuarios.h"
#include "access/screens/frmLocalizarUsuarios.h"
#include "access/screens/frmLogin.h"
#include "overview/screens/frmMostrarContas.h"
#include "registers/screens/TelasDosCadastros.h"
#include "reports/screens/frmOpcoesRelList.h"
#include "shell/screens/frmLocalizarBD.h"
#include "shell/screens/frmMDIPrincipal.h"
#include "shell/screens/frmSobreApp.h"
#include "shell/screens/frmSplash.h"
#include "shell/services/Telas.h"
#include "store/screens/frmEmpresa.h"
#include "store/screens/frmEmpresaAbrir.h"
#include "store/screens/frmEmpresaBackup.h"
#include "store/screens/frmEmpresaNova.h"
#include "store/screens/frmExibirImagem.h"
#include "store/screens/frmLocalizarArquivo.h"
#include "store/screens/frmLocalizarCidades.h"
#include "store/screens/frmMensagem.h"
#include "store/screens/frmSistema.h"
#include "titles/screens/TelasDosTitulos.h"

namespace fenvale {

void vRegistrarTelas(Telas& telas) {
  vRegistrarTelasDosCadastros(telas);
  vRegistrarTelasDosTitulos(telas);
  telas.registrar<frmCadastroUsuarios>("frmCadastroUsuarios");
  telas.registrar<frmEmpresa>("frmEmpresa");
  telas.registrar<frmEmpresaAbrir>("frmEmpresaAbrir");
  telas.registrar<frmEmpresaBackup>("frmEmpresaBackup");
  telas.registrar<frmEmpresaNova>("frmEmpresaNova");
  telas.registrar<frmExibirImagem>("frmExibirImagem");
  telas.registrar<frmLocalizarArquivo>("frmLocalizarArquivo");
  telas.registrar<frmLocalizarBD>("frmLocalizarBD");
  telas.registrar<frmLocalizarCidades>("frmLocalizarCidades");
  telas.registrar<frmLocalizarUsuarios>("frmLocalizarUsuarios");
  telas.registrar<frmLogin>("frmLogin");
  telas.registrar<frmMDIPrincipal>("frmMDIPrincipal");
  telas.registrar<frmMensagem>("frmMensagem");
  telas.registrar<frmMostrarContas>("frmMostrarContas");
  telas.registrar<frmOpcoesRelList>("frmOpcoesRelList");
  telas.registrar<frmSistema>("frmSistema");
  telas.registrar<frmSobreApp>("frmSobreApp");
  telas.registrar<frmSplash>("frmSplash");
}

}  // namespace fenvale

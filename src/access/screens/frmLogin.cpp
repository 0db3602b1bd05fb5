#include "access/screens/frmLogin.h"

#include "access/services/Permissoes.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "shell/services/TratadorExcessoes.h"
#include "shell/services/Validacoes.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr std::int16_t iMaximoFalhas = 4;
constexpr const char* sUsuarios = "SELECT sLogin, lCodigo FROM Usuarios ";

}  // namespace

frmLogin::frmLogin(Contexto& contexto) : Tela(contexto, "frmLogin"), funcoes_(contexto) {
  setCaption("Norvane Sistemas - Gestor Fenvale Fenvale " + TratadorExcessoes::sGetVersao());
  setLayout({
      solto(lblMensagem),
      linha({campo("Login", cmbLogin, cresce)}),
      linha({campo("Senha", txtSenha, cresce)}),
      botoes({&cmdEntrar}, {&cmdFechar}),
  });
  setPreferredSize(14, 0);
  cmdEntrar.setPrimary();
  cmbLogin.onKeyPress = [this](std::string_view sCaractere) { return funcoes_.vComboMagico(cmbLogin, sCaractere); };
  cmdEntrar.onClick = [this] { cmdEntrar_Click(); };
  cmdFechar.onClick = [this] { cmdFechar_Click(); };
}

void frmLogin::onLoad() try {
  Connection& dados = contexto().dbConectar().Dados();
  Recordset rs(sUsuarios, dados, CursorType::keyset, LockType::optimistic);
  if (rs.recordCount() == 0) vMostrarFormModal("frmCadastroUsuarios");
  rs.closeIfOpen();
  rs.open(sUsuarios, dados, CursorType::keyset, LockType::optimistic);
  funcoes_.vMontarCombo(cmbLogin, rs, "lCodigo", "sLogin");
  rs.closeIfOpen();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Load");
}

/// Whatever road closes it without a sign-in leads out of the program.
bool frmLogin::onUnload() {
  if (!bEntrou_) cmdFechar_Click();
  return true;
}

bool frmLogin::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

void frmLogin::cmdEntrar_Click() try {
  if (cmbLogin.listIndex() < 0) {
    recusar("Login ou senha inválidos.", cmbLogin);
    return;
  }
  if (txtSenha.empty()) {
    recusar("Login ou senha inválidos.", txtSenha);
    return;
  }
  const std::int32_t lCodigo = cmbLogin.itemData();
  Recordset rs("SELECT * FROM Usuarios WHERE lCodigo = " + std::to_string(lCodigo) + "  AND sSenha = '" +
                   Validacoes::sGetStringSQL(txtSenha.text()) + "' ",
               contexto().dbConectar().Dados(), CursorType::dynamic, LockType::optimistic);
  const bool bEncontrado = rs.recordCount() != 0;
  rs.closeIfOpen();
  if (!bEncontrado) return vRecusarSenha();
  contexto().permissoes().vSetPermissoes(lCodigo);
  bEntrou_ = true;
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdEntrar_Click");
}

void frmLogin::vRecusarSenha() {
  avisar("Usuário não cadastrado no sistema.");
  if (++iFalhas_ == iMaximoFalhas) contexto().processo().end(0);
  cmbLogin.setFocus();
}

void frmLogin::cmdFechar_Click() {
  BancoDados(contexto()).vFecharConexaoADO();
  contexto().processo().end(0);
}

}  // namespace fenvale

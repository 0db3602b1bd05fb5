#include "access/screens/frmCadastroUsuarios.h"

#include "access/screens/frmLocalizarUsuarios.h"
#include "access/services/Permissoes.h"
#include "platform/base/Checked.h"
#include "platform/base/Text.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "shell/services/Ampulheta.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "shell/services/Telas.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/Sistema.h"

namespace fenvale {
namespace {

constexpr const char* sAdministrador = "ADMINISTRADOR";

}  // namespace

frmCadastroUsuarios::frmCadastroUsuarios(Contexto& contexto)
    : Tela(contexto, "frmCadastroUsuarios"),
      direitos_{{{&chkSalvar, "bPoderSalvar"},
                 {&chkExcluir, "bPoderExcluir"},
                 {&chkPesquisar, "bPoderPesquisar"},
                 {&chkImprimir, "bPoderImprimir"},
                 {&chkAtualizar, "bPoderAtualizar"}}},
      funcoes_(contexto) {
  setCaption("Usuários");
  setTitle("Cadastro de usuários");
  txtCodigo.setLocked(true);
  setLayout({
      linha({campo("Código", txtCodigo, 3), campo("Nome", txtNome, cresce), campo("Login", txtLogin, 6)}),
      linha({campo("Senha", txtSenha, 6), campo("Confirmação da senha", txtConfirma, 6)}),
      quadro("Ações permitidas ao usuário", {linha({solto(chkSalvar), solto(chkExcluir), solto(chkPesquisar),
                                                    solto(chkImprimir), solto(chkAtualizar)})}),
      lista(trwMenu, "Opções do menu permitidas ao usuário"),
      botoes({&cmdNovo, &cmdSalvar, &cmdExcluir, &cmdLocalizar}, {&cmdFechar}),
  });
  setPreferredSize(18, 32);
  cmdSalvar.setPrimary();
  txtLogin.onLostFocus = [this] { txtLogin.setText(toUpper(txtLogin.text())); };
  cmdNovo.onClick = [this] { cmdNovo_Click(); };
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  cmdExcluir.onClick = [this] { cmdExcluir_Click(); };
  cmdLocalizar.onClick = [this] { cmdLocalizar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

void frmCadastroUsuarios::onLoad() try {
  {
    const Ampulheta ampulheta(funcoes_);
    vMontarArvore();
  }
  if (!bHaUsuarios()) return vIniciarPrimeiroUso();
  vLimpar();
  txtNome.setFocus();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Load");
}

bool frmCadastroUsuarios::onUnload() {
  if (bHaUsuarios()) return true;
  criticar("Nenhum usuário foi cadatrado.");
  BancoDados(contexto()).vFecharConexaoADO();
  contexto().processo().end(0);
  return true;
}

bool frmCadastroUsuarios::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

bool frmCadastroUsuarios::bHaUsuarios() const {
  Recordset rs("SELECT COUNT(lCodigo) AS CONTADOR FROM Usuarios ", contexto().dbConectar().Dados(), CursorType::keyset,
               LockType::optimistic);
  return rs["CONTADOR"].toLong() != 0;
}

void frmCadastroUsuarios::vMontarArvore() {
  std::vector<TreeView::Node> nos;
  for (const ChaveMenu& chave : chavesMenu())
    nos.push_back({std::string(chave.sChave), std::string(chave.sLegenda), std::string(chave.sPai), "chave", false});
  trwMenu.setNodes(std::move(nos));
}

void frmCadastroUsuarios::vIniciarPrimeiroUso() {
  bPrimeiroUso_ = true;
  setCaption("Cadastrando o usuário ADMINISTRADOR");
  criticar(
      "Não há usuários cadastrados no sistema.\r\n"
      "Você deve cadastrar um usuário que terá acesso a todas\r\n"
      "as funcionalidades do programa (ADMINISTRADOR).\r\n"
      "Para garantir a estabilidade do sistema,\r\n"
      "este usuário não poderá ser excluído mais tarde.");
  for (const ChaveMenu& chave : chavesMenu()) trwMenu.setChecked(chave.sChave, true);
  trwMenu.setEnabled(false);
  for (TextBox* caixa : {&txtNome, &txtLogin}) {
    caixa->setText(sAdministrador);
    caixa->setLocked(true);
  }
  for (Button* botao : {&cmdNovo, &cmdExcluir, &cmdLocalizar}) botao->setEnabled(false);
  for (const Direito& direito : direitos_) {
    direito.caixa->setChecked(true);
    direito.caixa->setEnabled(false);
  }
  txtSenha.setFocus();
}

void frmCadastroUsuarios::vLimpar() {
  for (TextBox* caixa : {&txtCodigo, &txtNome, &txtLogin, &txtSenha, &txtConfirma}) caixa->setText({});
  for (const Direito& direito : direitos_) direito.caixa->setChecked(false);
  for (const ChaveMenu& chave : chavesMenu()) trwMenu.setChecked(chave.sChave, false);
}

void frmCadastroUsuarios::cmdNovo_Click() try {
  vLimpar();
  txtNome.setFocus();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdNovo_Click");
}

void frmCadastroUsuarios::vCarregarCampos(std::int32_t lCodigo) {
  Recordset rs("SELECT * FROM Usuarios WHERE lCodigo = " + std::to_string(lCodigo), contexto().dbConectar().Dados(),
               CursorType::keyset, LockType::optimistic);
  if (rs.recordCount() == 0 || rs["sNomeUsuario"].toText() == sAdministrador) return;
  txtCodigo.setText(rs["lCodigo"].toText());
  txtNome.setText(rs["sNomeUsuario"].toText());
  txtLogin.setText(toUpper(rs["sLogin"].toText()));
  txtSenha.setText(rs["sSenha"].toText());
  txtConfirma.setText(rs["sSenha"].toText());
  for (const Direito& direito : direitos_) direito.caixa->setChecked(rs[direito.sCampo].toBoolean());
  for (const ChaveMenu& chave : chavesMenu()) trwMenu.setChecked(chave.sChave, rs[chave.sChave].toBoolean());
}

void frmCadastroUsuarios::cmdLocalizar_Click() try {
  if (!contexto().permissoes().bGetPesquisar()) return;
  const std::int32_t lCodigo = contexto().telas().obter<frmLocalizarUsuarios>("frmLocalizarUsuarios").lLocalizar();
  if (lCodigo >= 0) vCarregarCampos(lCodigo);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdLocalizar_Click");
}

bool frmCadastroUsuarios::bVerificarDados() {
  const bool bBrancos = txtLogin.text().find(' ') != std::string::npos;
  if (txtNome.empty()) return recusar("O nome do usuário deve ser informado.", txtNome);
  if (txtLogin.empty()) return recusar("O login do usuário deve ser informado.", txtLogin);
  if (bBrancos) return recusar("O nome para login não pode conter espaços.", txtLogin);
  if (txtSenha.empty()) return recusar("A senha do usuário deve ser informada.", txtSenha);
  if (txtConfirma.empty()) return recusar("A senha do usuário deve ser confirmada.", txtConfirma);
  if (txtSenha.text() != txtConfirma.text())
    return recusar("A senha confirmada não corresponde a que foi informada.", txtConfirma);
  return true;
}

void frmCadastroUsuarios::cmdSalvar_Click() try {
  Permissoes& permissoes = contexto().permissoes();
  if (!(txtCodigo.empty() ? permissoes.bGetSalvar() : permissoes.bGetAtualizar())) return;
  if (!bVerificarDados()) return;
  const std::int32_t lCodigo = lGravarUsuario();
  vGravarMenu(lCodigo);
  if (bPrimeiroUso_) {
    informar("Usuário ADMINISTRADOR foi cadastrado corretamente.");
    unload();
    return;
  }
  if (lCodigo == permissoes.lGetCodigoUsuario())
    criticar("Você deve sair do sistema para que as alterações entrem em vigor.");
  informar("Operação concluída.");
  cmdNovo_Click();
} catch (const Error& falha) {
  if (falha.number != errors::refused) return vRegistrarFalha(falha, "cmdSalvar_Click");
  avisar("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: " + falha.description);
}

/// The key of the row that was written.
std::int32_t frmCadastroUsuarios::lGravarUsuario() {
  ValoresSQL valores{{"sNomeUsuario", sTextoSQL(txtNome.text())},
                     {"sLogin", sTextoSQL(txtLogin.text())},
                     {"sSenha", sTextoSQL(txtSenha.text())}};
  for (const Direito& direito : direitos_) valores.emplace_back(direito.sCampo, sLogicoSQL(direito.caixa->checked()));
  if (!txtCodigo.empty()) {
    const std::int32_t lCodigo = readInt32(txtCodigo.text());
    vExecutar(sComandoAlteracao("Usuarios", valores, lCodigo));
    return lCodigo;
  }
  vExecutar(sComandoInclusao("Usuarios", valores));
  return readInt32(Sistema(contexto()).sGetProximoCodigoNumerico("Usuarios", "lCodigo", 0, false)) - 1;
}

/// The rights of the menu are fields, not rows: one statement each.
void frmCadastroUsuarios::vGravarMenu(std::int32_t lCodigo) {
  for (const TreeView::Node& no : trwMenu.nodes()) {
    vExecutar(sComandoAlteracao("Usuarios", {{no.key, sLogicoSQL(no.checked)}}, lCodigo));
    host().doEvents();
  }
}

bool frmCadastroUsuarios::bTestarPreenchimento() try {
  if (txtCodigo.empty()) {
    avisar("Selecione o registro que deseja excluir.");
    return false;
  }
  if (readInt32(txtCodigo.text()) == contexto().permissoes().lGetCodigoUsuario()) {
    criticar("Você não tem privilégios para excluir esta conta.");
    vLimpar();
    txtNome.setFocus();
    return false;
  }
  return true;
} catch (const Error& falha) {
  vRegistrarFalha(falha, "bTestarPreenchimento");
  return false;
}

void frmCadastroUsuarios::cmdExcluir_Click() try {
  if (!contexto().permissoes().bGetExcluir() || !bTestarPreenchimento()) return;
  if (!perguntar("Você deseja mesmo excluir este usuário?", BoxStyle::question, "Excluir")) return;
  vExecutar("DELETE * FROM Usuarios WHERE lCodigo = " + txtCodigo.text());
  vLimpar();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdExcluir_Click");
}

void frmCadastroUsuarios::vExecutar(const std::string& sSQL) const {
  Recordset rs;
  rs.open(sSQL, contexto().dbConectar().Dados(), CursorType::keyset, LockType::optimistic);
}

}  // namespace fenvale

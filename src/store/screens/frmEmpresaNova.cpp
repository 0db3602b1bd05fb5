#include "store/screens/frmEmpresaNova.h"

#include "access/services/Permissoes.h"
#include "platform/os/Files.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "store/services/BancoDados.h"

namespace fenvale {

frmEmpresaNova::frmEmpresaNova(Contexto& contexto)
    : TelaNovoArquivo(contexto, "frmEmpresaNova", "Informe o local onde será criado o arquivo da nova empresa",
                      ListView::CheckBoxes::none) {
  setTitle("Nova empresa");
  vMontarTela({&cmdSalvar, &cmdEmitir, &cmdLocalizar});
  mnuPopUp.setItems({
      {"mnuLocalizarEmpresa",
       "Localizar uma empresa já criada",
       {},
       [this] { vAtualizarCampo(); },
       "localizar",
       true,
       true},
      {"mnuSep1", "-", {}, {}, {}, true, true},
      {"mnuExcluirEmpresa", "Excluir empresa", {}, [this] { vExcluirCampo(); }, "excluir", true, true},
  });
  lstLista.onEmptyRightClick = [this] { vMostrarMenu(); };
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  cmdLocalizar.onClick = [this] { vAtualizarCampo(); };
}

void frmEmpresaNova::cmdSalvar_Click() {
  if (permissoes().bGetSalvar() && bVerificarArquivo()) vCriarEmpresa();
}

void frmEmpresaNova::vCriarEmpresa() try {
  const std::string sNome = txtNomeArquivo.text();
  try {
    if (!bIncluirECriar()) return avisar("Erro ao criar a empresa.");
  } catch (const Error& falha) {
    if (conexao().transactionLevel() > 0) conexao().rollbackTrans();
    if (falha.number != errors::refused) throw;
    if (!perguntar("Já existe uma referência para a empresa " + sNome +
                   ".\r\nDeseja remover essa referência e criar um novo arquivo?"))
      return avisar("Informe outro nome para a empresa.");
    vExecutar("DELETE * FROM Empresas WHERE sNomeArquivo = " + sTextoSQL(sNome) + " ");
    return vCriarEmpresa();
  }
  informar("Empresa criada com sucesso.");
  vLimpar();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdSalvar_Click");
}

bool frmEmpresaNova::bIncluirECriar() {
  conexao().beginTrans();
  vExecutar(sComandoInclusao("Empresas", Arquivo{txtNomeArquivo.text(), txtCaminho.text()}.valores()));
  if (BancoDados(contexto()).bCriarArquivoMDB(sGetArquivo())) {
    conexao().commitTrans();
    return true;
  }
  conexao().rollbackTrans();
  return false;
}

void frmEmpresaNova::vClicarLinha(const std::shared_ptr<ListItem>&) {
  if (botaoDoMouse() != MouseButton::right) return;
  vEsquecerBotaoDoMouse();
  vMostrarMenu();
}

void frmEmpresaNova::vMostrarMenu() {
  const bool bLinha = lstLista.selectedItem() != nullptr;
  for (const char* sEntrada : {"mnuSep1", "mnuExcluirEmpresa"}) mnuPopUp.setItemVisible(sEntrada, bLinha);
  mnuPopUp.show();
}

void frmEmpresaNova::vAtualizarCampo() {
  const auto arquivo = escolherArquivo();
  if (!arquivo) return;
  if (!perguntar("O arquivo " + arquivo->sCaminho() +
                 " será incluído no sistema, criando referência a uma nova empresa.\r\nConfirma a operação?"))
    return;
  vAlterarLista(sComandoInclusao("Empresas", arquivo->valores()), "vAtualizarCampo");
}

void frmEmpresaNova::vExcluirCampo() {
  const auto item = lstLista.selectedItem();
  if (!item) return;
  const Arquivo arquivo = arquivoDaLinha(*item);
  const std::string sPergunta =
      files::isFolder(arquivo.sPasta)
          ? "A referência ao registro " + arquivo.sNome +
                " será removida do sistema.\r\n"
                "Confirma a operação?\r\n"
                "Observação: apenas a referência será removida.\r\n"
                "O arquivo continuará no seu local atual, podendo ser referenciado novamente mais tarde."
          : sCaminhoInvalido(arquivo.sPasta) + "\r\nDeseja prosseguir e remover a referência?";
  if (!perguntar(sPergunta)) return;
  vAlterarLista("DELETE * FROM Empresas WHERE lCodigo = " + std::to_string(lCodigoDaChave(item->key())),
                "vExcluirCampo");
}

}  // namespace fenvale

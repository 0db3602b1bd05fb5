#include "store/screens/frmEmpresaAbrir.h"

#include "shell/services/Ampulheta.h"
#include "shell/services/Contexto.h"
#include "store/services/Empresas.h"

namespace fenvale {

frmEmpresaAbrir::frmEmpresaAbrir(Contexto& contexto)
    : TelaEmpresas(contexto, "frmEmpresaAbrir", ListView::CheckBoxes::perRow) {
  setTitle("Abrir empresa");
  setLayout({
      solto(lblMensagem),
      lista(lstLista, "Empresas criadas"),
      paginas(scrPaginas, pbBarrra),
      linha({campo("Empresa selecionada", txtCampo, cresce)}),
      botoes({&cmdSalvar, &cmdEmitir}, {&cmdFechar}),
  });
  setPreferredSize(18, 22);
  txtCampo.setLocked(true);
  cmdSalvar.setPrimary();
  mnuPopUp.setItems(
      {{"mnuEditarEmpresa", "Editar registro", {}, [this] { mnuEditarEmpresa_Click(); }, "editar", true, true}});
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  lstLista.onItemCheck = [this](const std::shared_ptr<ListItem>& item) { lstLista_ItemCheck(item); };
}

void frmEmpresaAbrir::lstLista_ItemCheck(const std::shared_ptr<ListItem>& item) {
  if (item->checked()) vMarcarSomente(*item);
  txtCampo.setText(item->checked() ? arquivoDaLinha(*item).sCaminho() : std::string());
}

void frmEmpresaAbrir::vClicarLinha(const std::shared_ptr<ListItem>& item) {
  vMarcarSomente(*item);
  txtCampo.setText(arquivoDaLinha(*item).sCaminho());
  if (botaoDoMouse() != MouseButton::right) return;
  vEsquecerBotaoDoMouse();
  mnuPopUp.show();
}

void frmEmpresaAbrir::cmdSalvar_Click() try {
  const auto item = linhaMarcada();
  if (!item) return;
  const Arquivo arquivo = arquivoDaLinha(*item);
  Empresas& empresas = contexto().empresas();
  bool bAberta = false;
  {
    const Ampulheta ampulheta(funcoes());
    bAberta = empresas.bSetEmpresa(lCodigoDaChave(item->key()), arquivo.sNome, arquivo.sPasta, true);
  }
  if (!bAberta) return;
  empresas.vVerificarDadosEmpresa();
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdSalvar_Click");
}

void frmEmpresaAbrir::mnuEditarEmpresa_Click() {
  const auto item = lstLista.selectedItem();
  if (!item) return;
  const auto novo = escolherArquivo();
  if (!novo) return;
  if (!perguntar("O registro " + arquivoDaLinha(*item).sNome + " será autalizado para\r\n" + novo->sCaminho() +
                 "\r\nConfirma a operação?"))
    return;
  vAlterarLista(sComandoAlteracao("Empresas", novo->valores(), lCodigoDaChave(item->key())), "mnuEditarEmpresa_Click");
}

}  // namespace fenvale

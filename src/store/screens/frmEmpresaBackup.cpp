#include "store/screens/frmEmpresaBackup.h"

#include "platform/base/Date.h"
#include "platform/base/Text.h"
#include "platform/sql/Store.h"
#include "shell/services/Ampulheta.h"
#include "shell/services/Contexto.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"

namespace fenvale {
namespace {

std::string sSemExtensao(const std::string& sNome) {
  const std::string_view sExtensao = sExtensaoEmpresa;
  return endsWithNoCase(sNome, sExtensao) ? sNome.substr(0, sNome.size() - sExtensao.size()) : sNome;
}

}  // namespace

frmEmpresaBackup::frmEmpresaBackup(Contexto& contexto)
    : TelaNovoArquivo(contexto, "frmEmpresaBackup", "Informe o local onde será criado o arquivo de backup da empresa",
                      ListView::CheckBoxes::perRow) {
  setTitle("Backup de empresas");
  vMontarTela({&cmdSalvar, &cmdEmitir});
  lstLista.onItemCheck = [this](const std::shared_ptr<ListItem>& item) { lstLista_ItemCheck(*item); };
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
}

void frmEmpresaBackup::lstLista_ItemCheck(const ListItem& item) {
  if (!item.checked()) return;
  vMarcarSomente(item);
  const std::string sMomento = formatMoment(contexto().relogio().now(), "yymmdd_hhnnss");
  txtNomeArquivo.setText(sSemExtensao(arquivoDaLinha(item).sNome) + "_" + sMomento + sExtensaoEmpresa);
}

std::shared_ptr<ListItem> frmEmpresaBackup::bTestarPreechimento() {
  return bVerificarArquivo() ? linhaMarcada() : nullptr;
}

void frmEmpresaBackup::cmdSalvar_Click() try {
  const auto item = bTestarPreechimento();
  if (!item) return;
  Empresas& empresas = contexto().empresas();
  const std::int32_t lCodigo = empresas.lGetCodigo();
  const std::string sNome = empresas.sGetNomeArquivo();
  const std::string sPasta = empresas.sGetCaminho();
  {
    const Ampulheta ampulheta(funcoes());
    Connection& aberta = contexto().dbEmpresa().Dados();
    if (aberta.isOpen()) aberta.close();
    vCopiar(arquivoDaLinha(*item).sCaminho());
    empresas.bSetEmpresa(lCodigo, sNome, sPasta, false);
  }
  informar("Operação concluída.");
  vLimpar();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdSalvar_Click");
}

void frmEmpresaBackup::vCopiar(const std::string& sOrigem) {
  constexpr std::int32_t lPassos = 1000;
  pbBarrra.setMaximum(lPassos);
  BancoDados(contexto()).vCopiarArquivoMDB(sOrigem, sGetArquivo(), [this](std::int64_t lFeito, std::int64_t lTodo) {
    pbBarrra.setValue(static_cast<std::int32_t>(lFeito * lPassos / lTodo));
    host().doEvents();
  });
  pbBarrra.setValue(0);
}

}  // namespace fenvale

#include "registers/screens/TelaCadastro.h"

#include "access/services/Permissoes.h"
#include "platform/ui/UiHost.h"
#include "registers/services/CampoBusca.h"
#include "registers/services/CampoCidade.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "store/services/Sistema.h"

namespace fenvale {
namespace {

/// The form stays after a failure, so the report lets the program go on.
constexpr int iContinuar = 2;

}  // namespace

TelaCadastro::TelaCadastro(Contexto& contexto, std::string sNome) : TelaPaginada(contexto, std::move(sNome)) {
  cmdNovo.onClick = [this] { cmdNovo_Click(); };
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  cmdExcluir.onClick = [this] { cmdExcluir_Click(); };
  cmdEmitir.onClick = [this] { cmdEmitir_Click(); };
  cmdLocalizar.onClick = [this] { cmdLocalizar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
  cmdSalvar.setPrimary();
}

void TelaCadastro::vDescrever(DescricaoCadastro descricao) {
  descricao_ = std::move(descricao);
  setCaption(descricao_.sLegenda);
  setTitle(descricao_.sTitulo);
  vSetColunas(descricao_.colunas);
  if (descricao_.titulos) {
    menuTitulos_.emplace(
        *this, contexto(), *descricao_.titulos, [this] { return lCodigo; }, [this] { cmdNovo_Click(); });
  }
}

void TelaCadastro::vMontarTela(std::vector<LayoutNode> formulario, const std::vector<Control*>& outros,
                               std::vector<LayoutNode> abaixoDaLista) {
  std::vector<LayoutNode> nos = std::move(formulario);
  nos.push_back(lista(lstLista, "Registros"));
  nos.push_back(paginas(scrPaginas, pbBarrra));
  for (LayoutNode& no : abaixoDaLista) nos.push_back(std::move(no));
  std::vector<Control*> comandos{&cmdNovo, &cmdSalvar, &cmdExcluir, &cmdEmitir, &cmdLocalizar};
  comandos.insert(comandos.end(), outros.begin(), outros.end());
  nos.push_back(botoes(comandos, {&cmdFechar}));
  setLayout(std::move(nos));
}

void TelaCadastro::onLoad() {
  cmdEmitir.setEnabled(bPodeEmitir());
  cmdLocalizar.setEnabled(contexto().telas().bExiste(descricao_.sBusca));
  cmdNovo_Click();
  vRestaurarColunas();
}

bool TelaCadastro::onUnload() {
  TelaPaginada::onUnload();
  lCodigo = 0;
  itemSelecionado_.reset();
  return true;
}

std::string TelaCadastro::sFiltro(const std::string& sWhere) const {
  if (descricao_.sCondicao.empty()) return sWhere;
  return (sWhere.empty() ? "WHERE " : sWhere + "AND ") + descricao_.sCondicao;
}

std::string TelaCadastro::sConsulta(const std::string& sWhere) const {
  return descricao_.sSelecao + sFiltro(sWhere) + descricao_.sOrdem;
}

std::string TelaCadastro::sInclusao() const {
  ValoresSQL valores;
  for (const CampoCadastro& campoGravado : descricao_.campos)
    valores.emplace_back(campoGravado.sColuna, campoGravado.valor.sLiteral());
  return sComandoInclusao(descricao_.sTabela, valores);
}

std::string TelaCadastro::sAlteracao() const {
  ValoresSQL valores;
  for (const CampoCadastro& campoGravado : descricao_.campos)
    valores.emplace_back(campoGravado.sColuna, campoGravado.naAlteracao.value_or(campoGravado.valor).sLiteral());
  return sComandoAlteracao(descricao_.sTabela, valores, lCodigo);
}

std::string TelaCadastro::sExclusao() const {
  return "DELETE * FROM " + descricao_.sTabela + " WHERE lCodigo = " + std::to_string(lCodigo);
}

void TelaCadastro::vMontarLista(std::int16_t iInicio, const std::string& sWhere) try {
  ensureLoaded();
  if (!permissoes().bGetPesquisar()) return;
  vPreencherLista(iInicio, sConsulta(sWhere));
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vMontarLista", iContinuar);
}

void TelaCadastro::cmdNovo_Click() try {
  funcoes().vLimparTudo(controls());
  if (!descricao_.sCampoCodigo.empty())
    descricao_.codigo->setText(
        Sistema(contexto()).sGetProximoCodigoNumerico(descricao_.sTabela, descricao_.sCampoCodigo, 0, true));
  lCodigo = -1;
  itemSelecionado_.reset();
  for (CampoBusca* busca : descricao_.buscas) busca->vLimpar();
  for (CampoCidade* cidade : descricao_.cidades) cidade->vLimpar();
  setNote({});
  vAposNovo();
  pbBarrra.setValue(0);
  vMontarLista(0, {});
  descricao_.codigo->setFocus();
} catch (const Error& falha) {
  if (falha.number != errors::invalidCall) vRegistrarFalha(falha, "cmdNovo_Click", iContinuar);
}

bool TelaCadastro::bVerificarDados() {
  for (const CampoCadastro& campoGravado : descricao_.campos)
    if (!campoGravado.sExigencia.empty() && campoGravado.valor.bVazio())
      return recusar(campoGravado.sExigencia, *campoGravado.valor.controle());
  return true;
}

bool TelaCadastro::bVerificarRepetido(TextControl& caixa, const std::string& sCampo, const std::string& sMensagem) {
  if (!Sistema(contexto()).bExisteCampo(caixa.text(), descricao_.sTabela, sCampo, lCodigo)) return true;
  return recusar(sMensagem, caixa);
}

bool TelaCadastro::bGravar() {
  vExecutar(lCodigo >= 0 ? sAlteracao() : sInclusao());
  return true;
}

void TelaCadastro::cmdSalvar_Click() try {
  if (!(lCodigo >= 0 ? permissoes().bGetAtualizar() : permissoes().bGetSalvar())) return;
  if (!bVerificarDados()) return;
  if (!bGravar()) return;
  informar("Operação concluída.");
  vAposGravar();
} catch (const Error& falha) {
  vRecusar(falha, "Os dados informados já existem no sistema.", "cmdSalvar_Click");
}

void TelaCadastro::vExcluir() { vExecutar(sExclusao()); }

void TelaCadastro::cmdExcluir_Click() try {
  if (!permissoes().bGetExcluir()) return;
  if (lCodigo < 0) return static_cast<void>(recusar("Selecione o registro que deseja excluir.", lstLista));
  if (!bPodeExcluir()) return;
  if (!perguntar("Confirma a remoção do registro?")) return;
  vExcluir();
  vAposExcluir();
} catch (const Error& falha) {
  vRecusar(falha, "O registro não pode ser excluído.", "cmdExcluir_Click");
}

std::string TelaCadastro::sRecusa(const std::string& sFrase, const Error& falha) const {
  return sTextoRecusa(sFrase, falha);
}

void TelaCadastro::vRecusar(const Error& falha, const char* sFrase, const char* sProcedimento) {
  vDesfazer();
  if (falha.number != errors::refused) return vRegistrarFalha(falha, sProcedimento, iContinuar);
  criticar(sRecusa(sFrase, falha));
  descricao_.codigo->setFocus();
}

void TelaCadastro::cmdEmitir_Click() { vEmitirLista(descricao_.sTitulo, descricao_.iColunasImpressao); }

void TelaCadastro::cmdLocalizar_Click() try {
  if (!permissoes().bGetPesquisar()) return;
  contexto().telas().obter<TelaBusca>(descricao_.sBusca).vLocalizar(*this);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdLocalizar_Click", iContinuar);
}

void TelaCadastro::vCarregarLinha(const ListItem& item) {
  const Date dtHoje = contexto().relogio().today();
  lCodigo = lCodigoDaChave(item.key());
  for (std::size_t i = 0; i < colunas().size(); ++i)
    colunas()[i].destino.vCarregar(i == 0 ? item.text() : item.subItem(i), dtHoje);
  // The list tells a city by name and state; its key is looked up.
  for (CampoCidade* cidade : descricao_.cidades) cidade->vSetEstado2(cidade->txtCidade.text(), cidade->txtUF.text());
  vAposCarregar(item);
  contexto().configuracoes().vSetClickAnterior(lCodigo);
  setNote("Editando o registro " + item.text());
}

void TelaCadastro::vClicarLinha(const std::shared_ptr<ListItem>& item) try {
  if (const auto anterior = itemSelecionado_.lock()) Funcoes::vSelecionarItem(false, anterior.get());
  itemSelecionado_ = item;
  Funcoes::vSelecionarItem(true, item.get());
  vCarregarLinha(*item);
  const bool bDireito = botaoDoMouse() == MouseButton::right;
  vEsquecerBotaoDoMouse();
  if (bDireito && menuTitulos_) menuTitulos_->vAbrir();
} catch (const Error& falha) {
  if (falha.number != errors::objectNotSet) vRegistrarFalha(falha, "lstLista_itemClick", iContinuar);
}

}  // namespace fenvale

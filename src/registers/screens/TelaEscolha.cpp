#include "registers/screens/TelaEscolha.h"

#include "access/services/Permissoes.h"
#include "registers/services/BotaoOcupado.h"
#include "shell/services/Contexto.h"
#include "store/services/ConfiguracoesPrograma.h"

namespace fenvale {

TelaEscolha::TelaEscolha(Contexto& contexto, std::string sNome, std::string sLegenda)
    : TelaPaginada(contexto, std::move(sNome)) {
  setCaption(sLegenda);
  setTitle(std::move(sLegenda));
  cmdLocalizar.setPrimary();
  cmdLocalizar.onClick = [this] { cmdLocalizar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

void TelaEscolha::vMontarTela(std::vector<LayoutNode> formulario, const std::vector<Control*>& comandos) {
  std::vector<LayoutNode> nos = std::move(formulario);
  nos.push_back(lista(lstLista, "Registros"));
  nos.push_back(paginas(scrPaginas, pbBarrra));
  nos.push_back(botoes(comandos, {&cmdFechar}));
  setLayout(std::move(nos));
  setPreferredSize(18, 20);
}

void TelaEscolha::onLoad() {
  contexto().configuracoes().vSetClickAnterior(-1);
  pbBarrra.setValue(0);
  vRestaurarColunas();
}

void TelaEscolha::vAbrir() {
  ensureLoaded();
  cmdLocalizar_Click();
  vMostrarFormModal(*this);
}

void TelaEscolha::cmdLocalizar_Click() try {
  if (!permissoes().bGetPesquisar()) return;
  const BotaoOcupado ocupado(cmdLocalizar);
  vMontarLista(0);
} catch (const Error& falha) {
  if (falha.number != errors::invalidPropertyValue) vRegistrarFalha(falha, "cmdLocalizar_Click", 2);
}

void TelaEscolha::vMontarLista(std::int16_t iInicio) { vPreencherLista(iInicio, sConsulta()); }

void TelaEscolha::vMostrarAPartirDe(std::int16_t iInicio) try { vMontarLista(iInicio); } catch (const Error& falha) {
  vRegistrarFalha(falha, "vMontarLista", 2);
}

void TelaEscolha::vClicarLinha(const std::shared_ptr<ListItem>& item) try {
  ConfiguracoesPrograma& configuracoes = contexto().configuracoes();
  const std::int32_t lChave = lCodigoDaChave(item->key());
  if (lChave != configuracoes.lGetClickAnterior()) return configuracoes.vSetClickAnterior(lChave);
  vEscolher(lChave);
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "lstLista_itemClick", 2);
}

}  // namespace fenvale

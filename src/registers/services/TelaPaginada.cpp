#include "registers/services/TelaPaginada.h"

#include "access/services/Permissoes.h"
#include "platform/base/Checked.h"
#include "platform/base/Format.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr const char* sTelaEmissao = "frmOpcoesRelList";

std::string sCelula(const Recordset& rs, const ColunaLista& coluna) {
  const Value valor = rs.field(coluna.sCampo);
  if (coluna.sMascara.empty() || valor.isNull()) return valor.toText();
  return formatNumber(std::int64_t{valor.toLong()}, coluna.sMascara);
}

}  // namespace

TelaPaginada::TelaPaginada(Contexto& contexto, std::string sNome, ListView::CheckBoxes marcas)
    : Tela(contexto, std::move(sNome)),
      lstLista(*this, "lstLista", {}, marcas),
      scrPaginas(*this, "scrPaginas"),
      pbBarrra(*this, "pbBarrra") {
  lstLista.onMouseDown = [this](MouseButton botao) { botaoDoMouse_ = botao; };
  lstLista.onItemClick = [this](const std::shared_ptr<ListItem>& item) { vClicarLinha(item); };
  lstLista.onColumnClick = [this](std::size_t coluna) { funcoes().vOrdenarListView(lstLista, coluna); };
  scrPaginas.onChange = [this] { scrPaginas_Change(); };
}

void TelaPaginada::vSetColunas(std::vector<ColunaLista> colunas) {
  colunas_ = std::move(colunas);
  std::vector<ListColumn> cabecalhos;
  for (const ColunaLista& coluna : colunas_)
    cabecalhos.push_back({coluna.sCabecalho, coluna.fLargura, coluna.alinhamento});
  lstLista.setColumns(std::move(cabecalhos));
}

Funcoes& TelaPaginada::funcoes() {
  if (!funcoes_) funcoes_.emplace(contexto());
  return *funcoes_;
}

Permissoes& TelaPaginada::permissoes() const { return contexto().permissoes(); }
Connection& TelaPaginada::conexao() const { return contexto().dbEmpresa().Dados(); }

void TelaPaginada::vExecutar(const std::string& sSQL) const {
  Recordset rs;
  rs.open(sSQL, conexao(), CursorType::dynamic, LockType::pessimistic);
}

bool TelaPaginada::bInserirLista(Recordset& rs) try {
  const std::int32_t lCodigo = rs.field("lCodigo").toLong();
  const auto item = lstLista.addItem(sChaveLista(lCodigo), sCelula(rs, colunas_.front()));
  for (std::size_t i = 1; i < colunas_.size(); ++i) item->setSubItem(i, sCelula(rs, colunas_[i]));
  return true;
} catch (const Error& falha) {
  if (falha.number != errors::noCurrentRecord) vRegistrarFalha(falha, sNomeInserir(), 2);
  return false;
}

void TelaPaginada::vPreencherLista(std::int16_t iInicio, const std::string& sSQL) {
  Recordset rs;
  rs.open(sSQL, conexao(), CursorType::keyset, LockType::optimistic);
  funcoes().vMontarLista(*this, iInicio, rs);
  iPagina_ = scrPaginas.value();
}

void TelaPaginada::scrPaginas_Change() {
  ConfiguracoesPrograma& configuracoes = contexto().configuracoes();
  if (!configuracoes.bGetMostrarNovaPagina()) return;
  const std::int64_t lInicio = multiplyChecked(scrPaginas.value(), configuracoes.lGetTamanhoPagina());
  if (lInicio <= INT16_MAX) return vMostrarAPartirDe(static_cast<std::int16_t>(lInicio));
  // Record numbers have 16 bits: the selector goes back to the page that shows.
  configuracoes.vSetMostrarNovaPagina(false);
  scrPaginas.setValue(iPagina_);
  configuracoes.vSetMostrarNovaPagina(true);
  criticar("A lista só pode ser percorrida até o registro 32.768; use Localizar para ver os demais.");
}

void TelaPaginada::vRestaurarColunas() { funcoes().vGetTamanhoColunasList(lstLista, sGetName() + ".lstList"); }
void TelaPaginada::vGuardarColunas() { funcoes().vSetTamanhoColunasList(lstLista, sGetName() + ".lstList"); }

bool TelaPaginada::onUnload() {
  vGuardarColunas();
  lstLista.clear();
  funcoes_.reset();
  return true;
}

bool TelaPaginada::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

bool TelaPaginada::bPodeEmitir() const { return contexto().telas().bExiste(sTelaEmissao); }

void TelaPaginada::vEmitirLista(const std::string& sTitulo, std::int16_t iColunas) {
  if (!permissoes().bGetImprimir()) return;
  contexto().telas().obter<OpcoesRelatorioLista>(sTelaEmissao).vCarregar(sTitulo, iColunas, lstLista);
}

}  // namespace fenvale

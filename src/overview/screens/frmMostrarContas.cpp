#include "overview/screens/frmMostrarContas.h"

#include <algorithm>

#include "access/services/Permissoes.h"
#include "overview/services/QuadroGeralContas.h"
#include "platform/base/Format.h"
#include "platform/sql/Store.h"
#include "shell/services/Ampulheta.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "shell/services/TelaComLista.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr int iContinuar = 2;
constexpr std::int16_t iLarguraEmissao = 130;
constexpr const char* sTelaEmissao = "frmOpcoesRelList";
constexpr const char* sEntradaTitulo = "mnuMotrarTitulo";

std::vector<ListColumn> cabecalhos(const ListaDoQuadro& lista) {
  std::vector<ListColumn> colunas;
  for (const ColunaLista& coluna : lista.colunas)
    colunas.push_back({coluna.sCabecalho, coluna.fLargura, coluna.alinhamento});
  return colunas;
}

/// The blank is the place of a number's sign.
std::string sChave(std::int32_t lCodigo) { return "00000 " + std::to_string(lCodigo); }

std::string sTotal(Currency crcTotal) { return "Total R$ " + formatNumber(crcTotal, "#,##0.00"); }

}  // namespace

frmMostrarContas::Quadro::Quadro(Screen& tela, const ListaDoQuadro& lista)
    : descricao(lista),
      lst(tela, "lst" + lista.sNome, cabecalhos(lista)),
      lblContas(tela, "lblContas" + lista.sNome, sTotal(Currency()), Label::Style::total),
      cmdEmitir(tela, "cmdEmitir" + lista.sNome, "&Imprimir", "imprimir") {}

frmMostrarContas::frmMostrarContas(Contexto& contexto)
    : Tela(contexto, "frmMostrarContas"),
      quadros{{{*this, listasDoQuadro()[0]},
               {*this, listasDoQuadro()[1]},
               {*this, listasDoQuadro()[2]},
               {*this, listasDoQuadro()[3]}}},
      funcoes_(contexto) {
  setCaption("Gestor Fenvale");
  setTitle("Quadro geral de contas");
  std::vector<LayoutNode> partes;
  for (Quadro& quadro : quadros) {
    quadro.lst.setFixedPitch();
    quadro.lst.onMouseDown = [this](MouseButton botao) { iBotaoMouse = static_cast<std::int16_t>(botao); };
    quadro.lst.onItemClick = [this, &quadro](const std::shared_ptr<ListItem>& item) { vClicarItem(quadro, item); };
    quadro.lst.onColumnClick = [this, &quadro](std::size_t coluna) { funcoes_.vOrdenarListView(quadro.lst, coluna); };
    quadro.cmdEmitir.onClick = [this, &quadro] { vEmitir(quadro); };
    quadro.cmdEmitir.setEnabled(contexto.telas().bExiste(sTelaEmissao));
    partes.push_back(aba(quadro.descricao.sAba, {lista(quadro.lst, quadro.descricao.sAba),
                                                 linha({solto(quadro.cmdEmitir, 4), solto(quadro.lblContas)})}));
  }
  partes.push_back(botoes({}, {&cmdFechar}));
  setLayout(std::move(partes));
  setPreferredSize(24, 28);
  mnuPopUp.setItems({{sEntradaTitulo, "&Mostrar título", {}, [this] { mnuMotrarTitulo_Click(); }}});
  cmdFechar.onClick = [this] { unload(); };
}

bool frmMostrarContas::bGetMostrarTodas() { return contexto().quadroGeralContas().bGetMostrarTodas(); }
void frmMostrarContas::vSetMotrarTodas(bool bTodas) { contexto().quadroGeralContas().vSetMotrarTodas(bTodas); }

void frmMostrarContas::onLoad() {
  const Ampulheta ampulheta(funcoes_);
  setNote(formatDate(contexto().relogio().today()));
  for (Quadro& quadro : quadros) {
    if (!(contexto().quadroGeralContas().*quadro.descricao.bGetMostrar)()) {
      // A tab without anything to show is not there.
      for (Control* controle : std::initializer_list<Control*>{&quadro.lst, &quadro.lblContas, &quadro.cmdEmitir})
        controle->setVisible(false);
      continue;
    }
    vMontarLista(quadro);
    funcoes_.vGetTamanhoColunasList(quadro.lst, sGetName() + quadro.descricao.sLargurasLidas);
  }
}

void frmMostrarContas::vMontarLista(Quadro& quadro) try {
  quadro.lst.clear();
  Recordset rs(quadro.descricao.sConsulta, contexto().dbEmpresa().Dados(), CursorType::forwardOnly, LockType::readOnly);
  quadro.crcTotal = Currency();
  for (; !rs.eof(); rs.moveNext()) vInserirLista(quadro, rs);
  quadro.lst.sortAgain();
  quadro.lblContas.setCaption(sTotal(quadro.crcTotal));
} catch (const Error& falha) {
  vRegistrarFalha(falha, ("vMontarListaContas" + quadro.descricao.sNome).c_str(), iContinuar);
}

void frmMostrarContas::vInserirLista(Quadro& quadro, const Recordset& rs) const try {
  std::vector<std::string> celulas;
  celulas.reserve(quadro.descricao.colunas.size());
  for (const ColunaLista& coluna : quadro.descricao.colunas) celulas.push_back(rs.field(coluna.sCampo).toText());
  quadro.lst.addItem(sChave(rs.field("lCodigo").toLong()), std::move(celulas));
  quadro.crcTotal += Currency::fromBrazilian(rs.field("ValorTitulo").toText());
} catch (const Error& falha) {
  vRegistrarFalha(falha, ("bInserirListaContas" + quadro.descricao.sNome).c_str(), iContinuar);
}

void frmMostrarContas::vClicarItem(const Quadro& quadro, const std::shared_ptr<ListItem>& item) {
  iListaAtual = quadro.descricao.iCodigo;
  vSelecionarItem(item);
  if (iBotaoMouse != static_cast<std::int16_t>(MouseButton::right)) return;
  mnuPopUp.setItemEnabled(sEntradaTitulo, contexto().telas().bExiste(quadro.descricao.sTelaTitulos));
  mnuPopUp.show();
  iBotaoMouse = static_cast<std::int16_t>(MouseButton::left);
}

void frmMostrarContas::vSelecionarItem(const std::shared_ptr<ListItem>& item) {
  Funcoes::vSelecionarItem(false, itemAtual.lock().get());
  itemAtual = item;
  Funcoes::vSelecionarItem(true, item.get());
}

void frmMostrarContas::mnuMotrarTitulo_Click() try {
  const auto item = itemAtual.lock();
  if (item == nullptr) return;
  Quadro& quadro = quadroAtual();
  const auto& itens = quadro.lst.items();
  const auto lugar = static_cast<std::size_t>(std::find(itens.begin(), itens.end(), item) - itens.begin());
  Telas& telas = contexto().telas();
  const std::string& sTela = quadro.descricao.sTelaTitulos;
  telas.obter<TelaTitulos>(sTela).vMontarLista(
      0, "WHERE " + quadro.descricao.sTitulos + ".lCodigo = " + std::to_string(lCodigoDaChave(item->key())) + " ");
  vMostrarFormModal(sTela);
  telas.descartar(sTela);

  const Ampulheta ampulheta(funcoes_);
  vMontarLista(quadro);
  // Whoever settles one title after another goes on where the last one stood.
  quadro.lst.moveCursor(lugar);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "mnuMotrarTitulo_Click", iContinuar);
}

frmMostrarContas::Quadro& frmMostrarContas::quadroAtual() {
  return *std::find_if(quadros.begin(), quadros.end(),
                       [this](const Quadro& quadro) { return quadro.descricao.iCodigo == iListaAtual; });
}

void frmMostrarContas::vEmitir(Quadro& quadro) {
  if (!contexto().permissoes().bGetImprimir()) return;
  contexto()
      .telas()
      .obter<OpcoesRelatorioLista>(sTelaEmissao)
      .vCarregar(quadro.descricao.sEmissao + formatDate(contexto().relogio().today(), "dd/mm/yyyy"), iLarguraEmissao,
                 quadro.lst);
}

bool frmMostrarContas::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

bool frmMostrarContas::onUnload() {
  for (Quadro& quadro : quadros)
    funcoes_.vSetTamanhoColunasList(quadro.lst, sGetName() + quadro.descricao.sLargurasGravadas);
  vLimparListas();
  return true;
}

void frmMostrarContas::vLimparListas() {
  for (Quadro& quadro : quadros) {
    quadro.lst.clear();
    quadro.crcTotal = Currency();
  }
  iBotaoMouse = 0;
  iListaAtual = 0;
}

}  // namespace fenvale

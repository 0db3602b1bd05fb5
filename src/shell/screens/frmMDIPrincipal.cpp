#include "shell/screens/frmMDIPrincipal.h"

#include "access/services/Permissoes.h"
#include "platform/os/Process.h"
#include "shell/screens/MenuPrincipal.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"

namespace fenvale {
namespace {

constexpr const char* sSair = "mnuSair";
constexpr std::int32_t lUmMinuto = 60000;

std::vector<ToolBar::Item> itensDaBarra() {
  std::vector<ToolBar::Item> itens;
  for (const BotaoBarra& botao : botoesBarra())
    itens.push_back({std::string(botao.sChave), std::string(botao.sDica), std::string(botao.sIcone),
                     std::string(botao.sDica), true});
  return itens;
}

/// The entries of one menu, with the menus below it.
std::vector<MenuItem> itensDoMenu(std::string_view sPai, const std::function<void(const EntradaMenu&)>& vExecutar) {
  std::vector<MenuItem> itens;
  for (const EntradaMenu& entrada : entradasMenu()) {
    if (entrada.sPai != sPai) continue;
    MenuItem item;
    item.name = entrada.sNome;
    item.caption = entrada.sLegenda;
    if (!item.isSeparator()) item.children = itensDoMenu(entrada.sNome, vExecutar);
    item.onClick = [&entrada, vExecutar] { vExecutar(entrada); };
    itens.push_back(std::move(item));
  }
  return itens;
}

}  // namespace

frmMDIPrincipal::frmMDIPrincipal(Contexto& contexto)
    : Tela(contexto, "frmMDIPrincipal", ScreenStyle::mainWindow),
      Toolbar1(*this, "Toolbar1", itensDaBarra()),
      sttStatusBar(*this, "sttStatusBar", {{"usuario", ""}, {"empresa", ""}, {"base", ""}, {"data", ""}}) {
  mnuPrincipal.setItems(itensDoMenu({}, [this](const EntradaMenu& entrada) { vExecutar(entrada); }));
  for (const EntradaMenu& entrada : entradasMenu())
    mnuPrincipal.setItemEnabled(entrada.sNome, bTelaExiste(entrada.sNome));
  for (std::size_t lugar = 1; lugar <= botoesBarra().size(); ++lugar)
    Toolbar1.setItemEnabled(lugar, bTelaExiste(botoesBarra()[lugar - 1].sEntrada));
  Toolbar1.onButtonClick = [this](const std::string& sChave) {
    for (const BotaoBarra& botao : botoesBarra())
      if (botao.sChave == sChave) vExecutar(*entradaMenu(botao.sEntrada));
  };
  tmrBarraEstado.onTick = [this] { vAtualizarBarraEstado(); };
}

void frmMDIPrincipal::onLoad() {
  setCaption(contexto().tratadorExcessoes().sGetNomePrograma());
  Funcoes(contexto()).vColocarFiguraFundo();
  vAtualizarBarraEstado();
  tmrBarraEstado.setInterval(lUmMinuto);
}

bool frmMDIPrincipal::onUnload() {
  BancoDados(contexto()).vFecharConexaoADO();
  contexto().processo().end(0);
  return true;
}

void frmMDIPrincipal::vSetLegenda(std::string sLegenda) {
  // A company may be opened before the window shows; its own first caption must not replace that one later.
  ensureLoaded();
  setCaption(std::move(sLegenda));
  vAtualizarBarraEstado();
}

bool frmMDIPrincipal::bTelaExiste(std::string_view sEntrada) const {
  const EntradaMenu* entrada = entradaMenu(sEntrada);
  return entrada == nullptr || entrada->sTela.empty() || contexto().telas().bExiste(entrada->sTela);
}

void frmMDIPrincipal::vSetDireitoMenu(std::string_view sEntrada, bool bDireito) {
  mnuPrincipal.setItemEnabled(sEntrada, bDireito && bTelaExiste(sEntrada));
}

void frmMDIPrincipal::vSetDireitoBotao(int iLugar, bool bDireito) {
  const auto lugar = static_cast<std::size_t>(iLugar);
  const bool bExiste = lugar >= 1 && lugar <= botoesBarra().size() && bTelaExiste(botoesBarra()[lugar - 1].sEntrada);
  Toolbar1.setItemEnabled(lugar, bDireito && bExiste);
}

void frmMDIPrincipal::vExecutar(const EntradaMenu& entrada) {
  if (entrada.sNome == sSair) return mnuSair_Click();
  switch (entrada.guarda) {
    case Guarda::quadro:
      return vMostrarQuadroGeral();
    case Guarda::empresa:
      if (!contexto().empresas().bSelecionouEmpresa(true)) return;
      break;
    case Guarda::nenhuma:
      break;
  }
  vMostrarFormModal(entrada.sTela);
  vAtualizarBarraEstado();
}

void frmMDIPrincipal::mnuSair_Click() {
  BancoDados(contexto()).vFecharConexaoADO();
  contexto().empresas().vSetUltimaEmpresaSelecionada();
  contexto().processo().end(0);
}

void frmMDIPrincipal::vMostrarQuadroGeral() {
  if (!contexto().permissoes().bGetPesquisar()) return;
  if (!contexto().empresas().bSelecionouEmpresa(true)) return;
  contexto().telas().obter<TelaQuadroGeral>("frmMostrarContas").vSetMotrarTodas(true);
  vMostrarFormModal("frmMostrarContas");
}

std::string frmMDIPrincipal::sEmpresaAberta() const {
  Empresas& empresas = contexto().empresas();
  if (!empresas.bSelecionouEmpresa(false)) return "Nenhuma empresa aberta: escolha Cadastros, Abrir Empresa";
  return "Empresa: " + empresas.sGetCaminho() + empresas.sGetNomeArquivo();
}

void frmMDIPrincipal::vAtualizarBarraEstado() {
  // What is asked here may be made by the asking and bring the bar up to date in its turn.
  if (state() != State::loaded || bAtualizandoBarra_) return;
  bAtualizandoBarra_ = true;
  const Permissoes& permissoes = contexto().permissoes();
  sttStatusBar.setPanel("usuario", permissoes.lGetCodigoUsuario() == 0 ? "Sem usuário identificado"
                                                                       : "Usuário: " + permissoes.sGetNomeUsuario());
  sttStatusBar.setPanel("empresa", sEmpresaAberta());
  sttStatusBar.setPanel("base", "Base de dados: " + contexto().dbConectar().sGetCaminhoBD());
  sttStatusBar.setPanel("data", formatDate(contexto().relogio().today()));
  bAtualizandoBarra_ = false;
}

}  // namespace fenvale

#include "titles/screens/frmZerarTitulos.h"

#include <algorithm>

#include "access/services/Permissoes.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "registers/services/BotaoOcupado.h"
#include "shell/services/Ampulheta.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

/// A sweep lets the window paint this often: enough to see it go on, too seldom to cost anything.
constexpr std::int32_t lPinturas = 200;

/// No input and no way out for as long as the purge runs, whatever way it ends.
class Trabalho {
 public:
  Trabalho(Screen& tela, bool& bTrabalhando) : tela_(tela), bTrabalhando_(bTrabalhando) { vDizer(true); }
  ~Trabalho() { vDizer(false); }
  Trabalho(const Trabalho&) = delete;
  Trabalho& operator=(const Trabalho&) = delete;

 private:
  void vDizer(bool bSim) {
    bTrabalhando_ = bSim;
    tela_.setEnabled(!bSim);
  }

  Screen& tela_;
  bool& bTrabalhando_;
};

struct Palavras {
  const char* sTipo;
  const char* sData;
};

Palavras palavras(ZeramentoTitulos::Escolha escolha) {
  switch (escolha) {
    case ZeramentoTitulos::Escolha::pagos:
      return {"Pagos", "pagamento"};
    case ZeramentoTitulos::Escolha::recebidos:
      return {"Recebidos", "recebimento"};
    case ZeramentoTitulos::Escolha::pagosRecebidos:
      break;
  }
  return {"Pagos e Recebidos", "pagamento ou recebimento"};
}

}  // namespace

frmZerarTitulos::frmZerarTitulos(Contexto& contexto) : Tela(contexto, "frmZerarTitulos"), funcoes_(contexto) {
  setCaption("Zeramento de títulos (Pagos/Recebidos)");
  setTitle("Zeramento de títulos");
  setLayout({
      solto(optPagosRecebidos),
      solto(optRecebidos),
      solto(optPagos),
      quadro("Apagar os títulos entre o período",
             {linha({campo("&Incial", dtInicial, 6), campo("Fi&nal", dtFinal, 6)})}),
      solto(pbBarrra, cresce, "Faturas examinadas"),
      botoes({&cmdSalvar}, {&cmdFechar}),
  });
  setPreferredSize(14, 0);
  cmdSalvar.setPrimary();
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

void frmZerarTitulos::onLoad() {
  optPagosRecebidos.choose();
  const Date dtHoje = contexto().relogio().today();
  dtInicial.setValue(dtHoje);
  dtFinal.setValue(dtHoje);
}

bool frmZerarTitulos::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

ZeramentoTitulos::Escolha frmZerarTitulos::escolha() const {
  if (optPagos.chosen()) return ZeramentoTitulos::Escolha::pagos;
  if (optRecebidos.chosen()) return ZeramentoTitulos::Escolha::recebidos;
  return ZeramentoTitulos::Escolha::pagosRecebidos;
}

std::string frmZerarTitulos::sPergunta() const {
  const std::string sQuebra(lineBreak);
  const Palavras p = palavras(escolha());
  return std::string("Confirma a eliminação todos títulos ") + p.sTipo + sQuebra + "com data de " + p.sData +
         " realizadas entre " + sQuebra + formatDate(dtInicial.value(), "dd/mm/yyyy") + " e " +
         formatDate(dtFinal.value(), "dd/mm/yyyy") + "?";
}

void frmZerarTitulos::cmdSalvar_Click() try {
  if (!contexto().permissoes().bGetExcluir()) return;
  if (!perguntar(sPergunta())) return;
  vZerar();
  informar("Operação concluída.");
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdSalvar_Click");
  // The program ends with the report. Only one that could not be made lets it go on: then without what was begun.
  transacao_.bDesfazer();
}

void frmZerarTitulos::vZerar() {
  const Ampulheta ampulheta(funcoes_);
  const BotaoOcupado salvar(cmdSalvar), fechar(cmdFechar);
  const Trabalho trabalho(*this, bTrabalhando_);
  host().doEvents();
  transacao_.vIniciar(contexto().dbEmpresa().Dados());
  ZeramentoTitulos(contexto(), [this](std::int32_t lVistas, std::int32_t lFaturas) {
    vMostrarProgresso(lVistas, lFaturas);
  }).vZerar(escolha(), dtInicial.value(), dtFinal.value());
  transacao_.vConfirmar();
}

void frmZerarTitulos::vMostrarProgresso(std::int32_t lVistas, std::int32_t lFaturas) {
  if (pbBarrra.maximum() != lFaturas) pbBarrra.setMaximum(lFaturas);
  pbBarrra.setValue(lVistas);
  if (lVistas % std::max(lFaturas / lPinturas, 1) == 0) host().doEvents();
}

}  // namespace fenvale

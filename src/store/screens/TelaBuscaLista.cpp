#include "store/screens/TelaBuscaLista.h"

#include "access/services/Permissoes.h"
#include "platform/base/Text.h"
#include "registers/services/BotaoOcupado.h"
#include "shell/services/Validacoes.h"

namespace fenvale {
namespace {

constexpr std::int16_t iColunasImpressao = 80;

}  // namespace

TelaBuscaLista::TelaBuscaLista(Contexto& contexto, std::string sNome, std::string sTituloImpressao)
    : TelaPaginada(contexto, std::move(sNome)) {
  setLayout({
      linha({campo("Nome", txtNome, cresce)}),
      lista(lstLista, "Resultado da busca"),
      paginas(scrPaginas, pbBarrra),
      botoes({&cmdLocalizar, &cmdEmitir}, {&cmdFechar}),
  });
  setPreferredSize(14, 24);
  cmdLocalizar.setPrimary();
  cmdLocalizar.onClick = [this] { cmdLocalizar_Click(); };
  cmdEmitir.onClick = [this, sTituloImpressao = std::move(sTituloImpressao)] {
    vEmitirLista(sTituloImpressao, iColunasImpressao);
  };
  cmdFechar.onClick = [this] { unload(); };
}

void TelaBuscaLista::onLoad() {
  cmdEmitir.setEnabled(bPodeEmitir());
  vRestaurarColunas();
}

void TelaBuscaLista::vBuscarEMostrar() {
  ensureLoaded();
  cmdLocalizar_Click();
  vMostrarFormModal(*this);
}

void TelaBuscaLista::cmdLocalizar_Click() {
  if (!permissoes().bGetPesquisar()) return;
  const BotaoOcupado ocupado(cmdLocalizar);
  vMostrarAPartirDe(0);
}

void TelaBuscaLista::vMostrarAPartirDe(std::int16_t iInicio) try {
  const std::string& sTexto = txtNome.text();
  vPreencherLista(
      iInicio, sConsulta(sTexto.empty() ? std::string()
                                        : "Mid$(" + sCampoNome() + ", 1, " + std::to_string(length(sTexto)) + ") = '" +
                                              Validacoes::sGetStringSQL(sTexto) + "' "));
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vMontarLista");
}

void TelaBuscaLista::vClicarLinha(const std::shared_ptr<ListItem>& item) { vEscolher(lCodigoDaChave(item->key())); }

}  // namespace fenvale

#include "shell/services/TelaEspera.h"

#include "shell/services/Contexto.h"
#include "shell/services/TratadorExcessoes.h"

namespace fenvale {
namespace {

using std::chrono::milliseconds;

constexpr std::int32_t lIntervaloPisca = 650;
constexpr milliseconds tempoMinimo{3000};

}  // namespace

TelaEspera::TelaEspera(Contexto& contexto, std::string sNome) : Tela(contexto, std::move(sNome), ScreenStyle::splash) {
  tmpMensagem.onTick = [this] {
    lblMensagem.setVisible(bPisca_);
    bPisca_ = !bPisca_;
  };
}

void TelaEspera::vAparecer() {
  inicio_ = host().elapsed();
  lblNomePrograma.setCaption(contexto().tratadorExcessoes().sGetNomePrograma());
  lblVersao.setCaption("Versão " + TratadorExcessoes::sGetVersao());
  host().show(*this);
}

void TelaEspera::vPiscar(std::string sMensagem) {
  lblMensagem.setCaption(std::move(sMensagem));
  tmpMensagem.setInterval(lIntervaloPisca);
  host().doEvents();
}

void TelaEspera::vPararDePiscar() { tmpMensagem.setInterval(0); }

void TelaEspera::vDesaparecer() {
  if (host().elapsed() - inicio_ < tempoMinimo) {
    for (int passo = 0; passo <= 10; ++passo) {
      host().doEvents();
      host().sleep(milliseconds(passo == 0 ? 350 : 180));
    }
  }
  unload();
}

}  // namespace fenvale

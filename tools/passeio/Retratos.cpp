#include "passeio/Retratos.h"

#include <QTimer>
#include <algorithm>
#include <array>

#include "passeio/Guia.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"

namespace fenvale::passeio {
namespace {

// The main window stands already; splash and waiting screen run by themselves; closing the login ends the program; the
// picture viewer shows nothing without a picture.
constexpr std::array naoSeAbrem{"frmMDIPrincipal", "frmSplash", "frmMensagem", "frmLogin", "frmExibirImagem"};

qt::QtHost& janelas(Contexto& programa) { return dynamic_cast<qt::QtHost&>(programa.host()); }

}  // namespace

void retratarNosDoisTons(Guia& guia, Contexto& programa, const std::string& pasta, const std::string& tela) {
  guia.tela(tela);
  const std::string inicio = pasta + "/" + tela;
  for (const auto& [tom, nome] :
       {std::pair(qt::Scheme::dark, "-escuro.png"), std::pair(qt::Scheme::light, "-claro.png")}) {
    bool feito = false;
    guia.la([&, escolhido = tom, arquivo = inicio + nome] {
      janelas(programa).setScheme(escolhido);
      programa.host().doEvents();
      feito = qt::grab(janelas(programa), arquivo);
    });
    if (!feito) guia.falhar("a figura de " + tela + " não pôde ser gravada");
  }
}

void retratarTelas(Guia& guia, Contexto& programa, const std::string& pasta) {
  retratarNosDoisTons(guia, programa, pasta, "frmMDIPrincipal");
  for (const std::string& nome : programa.telas().nomes()) {
    if (std::find(naoSeAbrem.begin(), naoSeAbrem.end(), nome) != naoSeAbrem.end()) continue;
    QTimer::singleShot(0, &janelas(programa), [&programa, nome] {
      janelas(programa).enter([&] { programa.host().showModal(programa.telas().obter(nome)); });
    });
    retratarNosDoisTons(guia, programa, pasta, nome);
    guia.la([&] { programa.telas().obter(nome).unload(); });
    guia.tela("frmMDIPrincipal");
  }
}

}  // namespace fenvale::passeio

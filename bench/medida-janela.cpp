// From the start of the process to a main window that takes input, with a company open; and the memory that the program
// has taken once every screen was open. Each run is a process of its own; the splash's wait is left out.

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "JanelasOcultas.h"
#include "app/Programa.h"
#include "app/Registro.h"
#include "demo/Demonstracao.h"
#include "demo/Plataforma.h"
#include "medida/Medida.h"
#include "platform/base/Error.h"
#include "platform/os/System.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Probe.h"
#include "shell/screens/Lancador.h"
#include "shell/services/Telas.h"

namespace fenvale::bancada {
namespace {

namespace fs = std::filesystem;
using Relogio = std::chrono::steady_clock;

constexpr std::string_view opcaoFilho = "--filho";

std::int64_t agora() { return Relogio::now().time_since_epoch().count(); }

/// Screens that open on a question or a message of their own find somebody who presses Enter, and the overview that the
/// firm wants at the start somebody who closes it.
void responder(qt::QtHost& host) {
  const bool bCaixa = host.openBox() != nullptr;
  const Screen* const tela = host.activeScreen();
  if (!bCaixa && (tela == nullptr || tela->sGetName() != "frmMostrarContas")) return;
  if (!bCaixa) return qt::press(host, Qt::Key_Escape);
  QKeyEvent aperto(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
  QApplication::sendEvent(host.topWindow(), &aperto);
}

void abrir(Programa& programa, qt::QtHost& host, const std::string& sNome) {
  host.show(programa.telas().obter(sNome));
  host.doEvents();
}

void abrirTodas(Programa& programa, qt::QtHost& host) {
  constexpr const char* sFimDoPrograma = "frmLogin";  // who closes it leaves the program: it is opened last and stays
  for (const std::string& sNome : programa.telas().nomes()) {
    if (sNome == "frmMDIPrincipal" || sNome == "frmSplash" || sNome == sFimDoPrograma) continue;
    abrir(programa, host, sNome);
    programa.telas().obter(sNome).unload();
    host.doEvents();
  }
  abrir(programa, host, sFimDoPrograma);
}

/// The measured process. Tells nanoseconds to the usable window and kilobytes at the most.
void filho(int quantos, char** argumentos) {
  const std::string sPasta = argumentos[2];
  std::int64_t inicio = 0;
  std::from_chars(argumentos[3], argumentos[3] + std::string_view(argumentos[3]).size(), inicio);
  const QApplication aplicacao(quantos, argumentos);
  qt::QtHost host(janelasOcultas());
  QTimer alguem;
  QObject::connect(&alguem, &QTimer::timeout, &host, [&host] { responder(host); });
  alguem.start(5);
  const SystemClock relogio;
  SystemProcess processo;
  demonstracao::Correio correio;
  demonstracao::Rede rede;
  demonstracao::Impressoras impressoras;
  Programa programa({sPasta, host, relogio, processo, correio, rede, impressoras}, vRegistrarTelas);
  Lancador(programa).Main(true);
  host.doEvents();
  const std::int64_t tempo = agora() - inicio;
  abrirTodas(programa, host);
  std::printf("%lld %lld\n", static_cast<long long>(tempo), static_cast<long long>(memoriaMaximaEmKB()));
  std::fflush(stdout);
  processo.end(0);
}

struct Corrida {
  double segundos;
  double megabytes;
};

Corrida correr(const std::string& sPrograma, const std::string& sPasta) {
  struct Fechar {
    void operator()(std::FILE* cano) const { pclose(cano); }
  };
  const std::string sComando = "QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES='*=false' '" + sPrograma + "' " +
                               std::string(opcaoFilho) + " '" + sPasta + "' " + std::to_string(agora());
  const std::unique_ptr<std::FILE, Fechar> cano(popen(sComando.c_str(), "r"));
  long long tempo = 0;
  long long memoria = 0;
  if (!cano || std::fscanf(cano.get(), "%lld %lld", &tempo, &memoria) != 2)
    throw Error(errors::invalidCall, "The measured program did not come to its end.");
  return {static_cast<double>(tempo) / 1e9, static_cast<double>(memoria) / 1024};
}

void medir(const Opcoes& opcoes, Relatorio& relatorio) {
  const fs::path programa = fs::read_symlink("/proc/self/exe");
  const fs::path pasta = programa.parent_path() / "dados" / ("janela." + std::to_string(getpid()));
  fs::remove_all(pasta);
  SystemProcess processo;
  demonstracao::preencher({pasta, std::string(FENVALE_SOURCE_DIR) + "/data", SystemClock().today(), processo});
  std::vector<Corrida> corridas;
  for (int vez = opcoes.bRapido ? 1 : 7; vez > 0; --vez) corridas.push_back(correr(programa, pasta));
  fs::remove_all(pasta);

  const auto meio = corridas.begin() + static_cast<std::ptrdiff_t>(corridas.size() / 2);
  std::nth_element(corridas.begin(), meio, corridas.end(),
                   [](const Corrida& a, const Corrida& b) { return a.segundos < b.segundos; });
  relatorio.vLinha("do início à janela principal com empresa aberta", meio->segundos, "s", 1);
  const auto maior = std::max_element(corridas.begin(), corridas.end(),
                                      [](const Corrida& a, const Corrida& b) { return a.megabytes < b.megabytes; });
  relatorio.vLinha("memória depois de abrir todas as telas", maior->megabytes, "MB", 200);
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  using namespace fenvale::bancada;
  if (quantos == 4 && std::string_view(argumentos[1]) == opcaoFilho)
    return semFalha(argumentos[0], [&] { filho(quantos, argumentos); });
  return executar(quantos, argumentos, medir);
}

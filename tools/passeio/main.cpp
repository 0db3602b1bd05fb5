// Plays the main job on the real windows, as a clerk would, and checks what it sees:
//
//   fenvale-passeio PASTA
//
// Pictures of each step go to PASTA, one of every screen to PASTA/telas; the titles it ends with go to the standard
// output. Ends with 1 at the first difference, which it tells.

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "app/Programa.h"
#include "app/Registro.h"
#include "passeio/Corridas.h"
#include "passeio/Guia.h"
#include "platform/base/Error.h"
#include "platform/mail/Mailer.h"
#include "platform/os/ApplicationPath.h"
#include "platform/os/System.h"
#include "platform/print/PrinterService.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Strings.h"
#include "shell/screens/Lancador.h"
#include "shell/services/Telas.h"

namespace {

using namespace fenvale;
using namespace fenvale::passeio;
namespace fs = std::filesystem;

constexpr int diferente = 1;
constexpr int usoErrado = 2;

/// A day that stands still.
class RelogioParado final : public Clock {
 public:
  explicit RelogioParado(Date hoje) : hoje_(hoje) {}
  Date today() const override { return hoje_; }
  DateTime now() const override { return DateTime(hoje_) + std::chrono::hours(9); }

 private:
  Date hoje_;
};

/// Ends the process only as the tour expects it, and opens no file.
class FimEsperado final : public Process {
 public:
  explicit FimEsperado(const Guia& guia) : guia_(guia) {}
  [[noreturn]] void end(int exitCode) override {
    if (guia_.saidaEsperada() == exitCode) _exit(exitCode);
    std::fprintf(stderr, "o programa terminou com %d onde o passeio não esperava\n", exitCode);
    _exit(diferente);
  }
  void openFile(const std::string&) override {}

 private:
  const Guia& guia_;
};

class SemCorreio final : public Mailer {
 public:
  std::string send(const Mail&) override { return "O passeio não envia mensagens."; }
};

class SoArquivoPDF final : public PrinterService {
 public:
  std::vector<std::string> printers() override { return {pdfPrinterName}; }
};

std::string pastaDoExecutavel() { return fs::read_symlink("/proc/self/exe").parent_path().string(); }

/// The offscreen platform says at every window what it cannot do; only what else is said matters.
void dizer(QtMsgType, const QMessageLogContext&, const QString& texto) {
  if (!texto.startsWith(QStringLiteral("This plugin does not support")))
    std::fprintf(stderr, "%s\n", qPrintable(texto));
}

/// Where the files lie that the program is shipped with.
std::string pastaDosDados() {
  for (const std::string& pasta : {pastaDoExecutavel(), std::string(FENVALE_DATA_DIR)})
    if (fs::exists(pasta + "/SQL.xmlSQL")) return pasta;
  std::fprintf(stderr, "faltam os arquivos do programa\n");
  _exit(usoErrado);
}

int correr(std::size_t numero, const std::string& pasta, int argc, char** argv) {
  const Corrida& corrida = corridas().at(numero);
  const std::string programaEm = pasta + "/programa";
  qInstallMessageHandler(dizer);
  const QApplication aplicacao(argc, argv);
  qt::QtHost host({.iconFolder = qt::toQt(pastaDosDados() + "/icones"),
                   .geometryFile = {},
                   .scheme = qt::Scheme::light,
                   .immediate = true});
  Guia guia(host, pasta, static_cast<int>(numero) * 100 + 1);
  const RelogioParado relogio(corrida.hoje);
  FimEsperado processo(guia);
  SemCorreio correio;
  SystemNetwork rede;
  SoArquivoPDF impressoras;
  Programa programa({programaEm, host, relogio, processo, correio, rede, impressoras, nullptr}, vRegistrarTelas);
  const std::string retratos = pasta + "/telas" + (corrida.emDobro ? "/200" : "");
  fs::create_directories(retratos);

  std::thread roteiro([&] {
    try {
      corrida.contar(guia, programa, retratos);
      std::this_thread::sleep_for(std::chrono::seconds(60));
      std::fprintf(stderr, "%s: o programa não terminou\n", corrida.nome);
    } catch (const Diferenca& diferenca) {
      std::fprintf(stderr, "%s: %s\n", corrida.nome, diferenca.texto.c_str());
    }
    _exit(diferente);
  });
  roteiro.detach();
  try {
    Lancador(programa).Main(true);
    host.run(programa.telas().obter("frmMDIPrincipal"));
  } catch (const Error& falha) {
    std::fprintf(stderr, "%s: %s\n", corrida.nome, falha.description.c_str());
  }
  _exit(diferente);
}

/// The program's folder as it is on the first day: the shipped files and a place for companies. The user's own folder
/// is empty.
void prepararPasta(const std::string& pasta) {
  const fs::path destino = pasta + "/programa";
  fs::remove_all(destino);
  fs::remove_all(pasta + "/telas");
  fs::create_directories(destino / "Empresas");
  fs::remove_all(pasta + "/usuario");
  fs::create_directories(pasta + "/usuario");
  for (const char* arquivo : {"SQL.xmlSQL", "SQLEmpresas.xmlSQL", "Cidades.XML", "Bancos.XML"})
    fs::copy(fs::path(pastaDosDados()) / arquivo, destino / arquivo);
  for (const std::string& figuras : {pastaDosDados(), pastaDosDados() + "/figuras"}) {
    if (!fs::is_directory(figuras)) continue;
    for (const auto& entrada : fs::directory_iterator(figuras))
      if (entrada.path().extension() == ".gif")
        fs::copy(entrada.path(), destino / entrada.path().filename(), fs::copy_options::skip_existing);
  }
}

/// The offscreen platform's own monitor is smaller than any clerk's; one of twice the scale has more points.
void descreverMonitor(const std::string& pasta, bool emDobro) {
  const char* const plataforma = std::getenv("QT_QPA_PLATFORM");
  if (plataforma == nullptr || !std::string(plataforma).starts_with("offscreen")) return;
  const std::string arquivo = pasta + "/monitor.json";
  std::ofstream(arquivo) << R"({"screens": [{"name": "monitor", "x": 0, "y": 0, )"
                         << (emDobro ? R"("width": 2048, "height": 1536)" : R"("width": 1280, "height": 1024)")
                         << R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
  setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + arquivo).c_str(), 1);
}

/// Runs one as a process of its own; its exit code.
int correrEmProcesso(std::size_t numero, const std::string& pasta) {
  const pid_t filho = fork();
  if (filho == 0) {
    descreverMonitor(pasta, corridas()[numero].emDobro);
    setenv("HOME", (pasta + "/usuario").c_str(), 1);
    if (corridas()[numero].emDobro) setenv("QT_SCALE_FACTOR", "2", 1);
    const std::string qual = std::to_string(numero);
    execl("/proc/self/exe", "fenvale-passeio", "--corrida", qual.c_str(), pasta.c_str(), nullptr);
    _exit(127);
  }
  int estado = 0;
  waitpid(filho, &estado, 0);
  return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
}

int passear(const std::string& pasta) {
  prepararPasta(pasta);
  for (std::size_t numero = 0; numero < corridas().size(); ++numero) {
    const Corrida& corrida = corridas()[numero];
    std::fprintf(stderr, "%s\n", corrida.nome);
    if (const int saida = correrEmProcesso(numero, pasta); saida != corrida.saida) {
      std::fprintf(stderr, "%s: saída %d, esperava %d\n", corrida.nome, saida, corrida.saida);
      return diferente;
    }
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> valores(argv + 1, argv + argc);
  if (valores.size() == 3 && valores[0] == "--corrida") return correr(std::stoul(valores[1]), valores[2], argc, argv);
  if (valores.size() != 1 || valores[0].starts_with("-")) {
    std::fprintf(stderr, "uso: fenvale-passeio PASTA\n");
    return usoErrado;
  }
  std::error_code falha;
  fs::create_directories(valores[0], falha);
  if (falha) {
    std::fprintf(stderr, "a pasta %s não pode ser criada\n", valores[0].c_str());
    return usoErrado;
  }
  return passear(fs::absolute(valores[0]).string());
}

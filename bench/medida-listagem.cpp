// A list of 90,000 lines of 130 columns to text and on to a PDF file, and how much memory each takes; beside it what
// two others need for a PDF file of the same text: enscript with ps2pdf, and Qt's own writer.

#include <sys/wait.h>
#include <unistd.h>

#include <QFont>
#include <QGuiApplication>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "app/Programa.h"
#include "demo/Plataforma.h"
#include "exemplo/Pessoas.h"
#include "medida/Acervo.h"
#include "medida/Medida.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/os/Process.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Screen.h"
#include "platform/ui/test/TestHost.h"
#include "reports/services/ImpressaoList.h"
#include "reports/services/OpcoesImpressaoList.h"
#include "reports/services/PDF.h"

namespace fenvale::bancada {
namespace {

namespace fs = std::filesystem;

constexpr std::int32_t linhasDoCabecalho = 5;
constexpr int linhasPorPagina = 60;

/// Opens nothing.
class ProcessoParado final : public Process {
 public:
  [[noreturn]] void end(int exitCode) override { ::_exit(exitCode); }
  void openFile(const std::string&) override {}
};

/// A full printout of customers: one line to each. It is printed as the program prints it, down to the question ahead.
class ListaDeClientes {
 public:
  ListaDeClientes(std::int32_t lLinhas, const std::string& sPasta)
      : programa_({sPasta, host_, relogio_, processo_, correio_, rede_, impressoras_}, nullptr) {
    const std::int32_t lRegistros = lLinhas - linhasDoCabecalho - 1;
    for (std::int32_t i = 1; i <= lRegistros; ++i) {
      constexpr std::uint64_t semente = 2026;
      const exemplo::Cliente cliente = exemplo::cliente(semente, static_cast<std::uint32_t>(i));
      const auto item = lst_.addItem(std::to_string(i), std::to_string(i));
      item->setSubItem(1, cliente.sNome);
      item->setSubItem(2, cliente.sEndereco);
      item->setSubItem(3, cliente.sTelefone);
      item->setSubItem(4, formatNumber(cliente.fLimiteCredito));
    }
    opcoes_.vSetColunas(130);
    opcoes_.vSetTitulo("Cadastro de clientes");
    opcoes_.vSetList(lst_);
  }

  void vGravar(const std::string& sArquivo) {
    host_.expectBox({BoxStyle::question, BoxButtons::yesNo, "Norvane Sistemas", "Confirma a impressão?"},
                    BoxAnswer::yes);
    opcoes_.vSetCaminhoArquivo(sArquivo);
    ImpressaoList(programa_).vContruirArquivoImpressao(opcoes_);
    host_.verify();
  }

 private:
  TestHost host_;
  RelogioFixo relogio_;
  ProcessoParado processo_;
  demonstracao::Correio correio_;
  demonstracao::Rede rede_;
  demonstracao::Impressoras impressoras_;
  Programa programa_;
  Screen tela_{host_, "frmCadastroClientes"};
  ListView lst_{
      tela_,
      "lstClientes",
      {{"Código", 800}, {"Nome", 4500}, {"Endereço", 4500}, {"Telefone", 1700}, {"Limite", 1500, Align::right}}};
  OpcoesImpressaoList opcoes_;
};

void vGerarPDF(const std::string& sTexto, const std::string& sArquivo) {
  TestHost host;
  const RelogioFixo relogio;
  PDF(host, relogio).vGerarPDF(sTexto, sArquivo, "Norvane Sistemas", "", "", "", "", "Courier", 10, 0, 13.0F, 11.0F);
}

void vGerarPeloEnscript(const std::string& sTexto, const std::string& sArquivo) {
  const std::string sComando = "enscript -q -B -r -f Courier8 -X 88591 -L " + std::to_string(linhasPorPagina) +
                               " -p - '" + sTexto + "' | ps2pdf - '" + sArquivo + "'";
  if (std::system(sComando.c_str()) != 0) throw Error(errors::invalidCall, "enscript or ps2pdf did not do its work.");
}

/// The same pages drawn line by line.
void vGerarPeloQt(const std::string& sTexto, const std::string& sArquivo) {
  QPdfWriter arquivo(QString::fromStdString(sArquivo));
  arquivo.setPageSize(QPageSize(QSizeF(13, 11), QPageSize::Inch));
  arquivo.setResolution(72);
  QPainter pincel(&arquivo);
  QFont fonte(QStringLiteral("Courier"), 10);
  fonte.setStyleHint(QFont::TypeWriter);
  pincel.setFont(fonte);
  files::LineReader linhas(sTexto);
  int iLinha = 0;
  for (std::string sLinha; linhas.next(sLinha); ++iLinha) {
    if (iLinha == linhasPorPagina) {
      arquivo.newPage();
      iLinha = 0;
    }
    pincel.drawText(QPointF(0, 12.0 * (iLinha + 1)), QString::fromStdString(fromWindows1252(sLinha)));
  }
}

/// The most memory that a process of its own has taken after each of two tasks, in megabytes.
struct Picos {
  double primeiro = 0;
  double segundo = 0;
};

Picos picos(const std::function<void()>& primeira, const std::function<void()>& segunda) {
  std::array<int, 2> cano{};
  if (::pipe(cano.data()) != 0) throw Error(errors::invalidCall, "No pipe.");
  const pid_t filho = ::fork();
  if (filho == 0) {
    Picos ditos;
    primeira();
    ditos.primeiro = static_cast<double>(memoriaMaximaEmKB()) / 1024;
    segunda();
    ditos.segundo = static_cast<double>(memoriaMaximaEmKB()) / 1024;
    ::_exit(::write(cano[1], &ditos, sizeof ditos) == sizeof ditos ? 0 : 1);
  }
  ::close(cano[1]);
  Picos ditos;
  const bool bDito = ::read(cano[0], &ditos, sizeof ditos) == sizeof ditos;
  ::close(cano[0]);
  ::waitpid(filho, nullptr, 0);
  if (!bDito) throw Error(errors::invalidCall, "The measured process did not come to its end.");
  return ditos;
}

double segundos(const Duracao& duracao) { return std::chrono::duration<double>(duracao).count(); }

void medir(const Opcoes& opcoes, Relatorio& relatorio, int quantos, char** argumentos) {
  const fs::path pasta =
      fs::read_symlink("/proc/self/exe").parent_path() / "dados" / ("listagem." + std::to_string(::getpid()));
  fs::create_directories(pasta);
  fs::permissions(pasta, fs::perms::owner_all);
  const auto lugar = [&pasta](const char* sNome) { return (pasta / sNome).string(); };
  const std::int32_t lLinhas = opcoes.bRapido ? 3000 : 90000;
  const std::string sQuantas = opcoes.bRapido ? "3.000 linhas" : "90.000 linhas";
  const std::string sDecimo = opcoes.bRapido ? "300 linhas" : "9.000 linhas";

  // Before the toolkit starts threads. Lists in characters are made with the lists at hand, PDF files without.
  std::unique_ptr<ListaDeClientes> lista;
  std::unique_ptr<ListaDeClientes> pequena;
  const Picos listas = picos(
      [&] {
        pequena = std::make_unique<ListaDeClientes>(lLinhas / 10, pasta.string());
        lista = std::make_unique<ListaDeClientes>(lLinhas, pasta.string());
        pequena->vGravar(lugar("pequena.txt"));
      },
      [&] { lista->vGravar(lugar("lista.txt")); });
  const Picos pdfs = picos([&] { vGerarPDF(lugar("pequena.txt"), lugar("m.pdf")); },
                           [&] { vGerarPDF(lugar("lista.txt"), lugar("m.pdf")); });
  lista = std::make_unique<ListaDeClientes>(lLinhas, pasta.string());

  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  ::setenv("XDG_RUNTIME_DIR", pasta.c_str(), 0);
  const QGuiApplication aplicacao(quantos, argumentos);
  const Duracao paraTexto = mediana(5, [&] { lista->vGravar(lugar("a.txt")); });
  const Duracao paraPDF = mediana(5, [&] { vGerarPDF(lugar("lista.txt"), lugar("a.pdf")); });
  const int vezesDosOutros = 1;
  const Duracao enscript = mediana(vezesDosOutros, [&] { vGerarPeloEnscript(lugar("lista.txt"), lugar("e.pdf")); });
  const Duracao qt = mediana(vezesDosOutros, [&] { vGerarPeloQt(lugar("lista.txt"), lugar("q.pdf")); });
  fs::remove_all(pasta);

  relatorio.vLinha("listagem de " + sQuantas + " para texto", segundos(paraTexto), "s", 0.3);
  relatorio.vLinha("texto de " + sQuantas + " para PDF", segundos(paraPDF), "s", 1);
  relatorio.vLinha("o mesmo texto pelo enscript com ps2pdf", segundos(enscript), "s");
  relatorio.vLinha("o mesmo texto pelo QPdfWriter", segundos(qt), "s");
  relatorio.vLinha("memória do texto acima da de " + sDecimo, listas.segundo - listas.primeiro, "MB", 1);
  relatorio.vLinha("memória do PDF acima da de " + sDecimo, pdfs.segundo - pdfs.primeiro, "MB", 1);
  relatorio.vLinha("pico de memória do processo que faz o PDF", pdfs.segundo, "MB");
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  using namespace fenvale::bancada;
  return executar(quantos, argumentos,
                  [&](const Opcoes& opcoes, Relatorio& relatorio) { medir(opcoes, relatorio, quantos, argumentos); });
}

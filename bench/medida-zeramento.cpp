// The purge of settled titles, from the clerk's yes to the message that it is done: through the screen in a window that
// nobody sees, its bar moving, against the same rows deleted by two statements a side written by hand. Each run has a
// fresh copy of the company.

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>
#include <array>
#include <iostream>

#include "Escritorio.h"
#include "JanelasOcultas.h"
#include "app/Registro.h"
#include "medida/Medida.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "shell/services/Telas.h"
#include "titles/screens/frmZerarTitulos.h"

namespace fenvale::bancada {
namespace {

/// What is left: invoices and titles of both sides.
using Restos = std::array<std::int64_t, 4>;

struct Corrida {
  Duracao tempo;
  Restos restos;
};

Restos restosDe(Arquivo& arquivo) {
  return {
      arquivo.inteiro("SELECT COUNT(*) FROM FaturasCliente"), arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber"),
      arquivo.inteiro("SELECT COUNT(*) FROM FaturasFornecedor"), arquivo.inteiro("SELECT COUNT(*) FROM TitulosPagar")};
}

/// Says yes to the question, and takes note of the message.
void responder(qt::QtHost& host) {
  if (host.openBox() == nullptr || host.topWindow() == nullptr) return;
  if (host.openBox()->style == BoxStyle::critical) std::cerr << host.openBox()->text << "\n";
  QKeyEvent aperto(QEvent::KeyPress, host.openBox()->buttons == BoxButtons::yesNo ? Qt::Key_S : Qt::Key_Return,
                   Qt::NoModifier);
  QApplication::sendEvent(host.topWindow(), &aperto);
}

class Zeramento {
 public:
  Zeramento(const Volume& volume, Date dtFinal, qt::QtHost& host) : volume_(volume), dtFinal_(dtFinal), host_(host) {}

  Corrida pelaTela() {
    Escritorio escritorio(volume_, host_, vRegistrarTelas);
    auto& tela = escritorio.programa().telas().obter<frmZerarTitulos>("frmZerarTitulos");
    host_.show(tela);
    tela.dtInicial.setValue(dtInicial_);
    tela.dtFinal.setValue(dtFinal_);
    const Duracao tempo = cronometrar([&] {
      tela.userKey(Key::f3);
      host_.throwKept();
    });
    tela.unload();
    Arquivo depois(escritorio.sGetEmpresa());
    return {tempo, restosDe(depois)};
  }

  Corrida aMao() {
    demonstracao::Anfitriao ninguem;
    const Escritorio escritorio(volume_, ninguem);
    Arquivo arquivo = abrirComoOPrograma(escritorio.sGetEmpresa());
    const Duracao tempo = cronometrar([&] {
      arquivo.executar("BEGIN IMMEDIATE");
      vApagar(arquivo, "TitulosPagar", "lFaturaFornecedor", "FaturasFornecedor");
      vApagar(arquivo, "TitulosReceber", "lFaturaCliente", "FaturasCliente");
      arquivo.executar("COMMIT");
    });
    return {tempo, restosDe(arquivo)};
  }

 private:
  void vApagar(Arquivo& arquivo, const std::string& sTitulos, const std::string& sCampo,
               const std::string& sFaturas) const {
    const std::string sInicial = formatDate(dtInicial_, "yyyy-mm-dd"), sFinal = formatDate(dtFinal_, "yyyy-mm-dd");
    arquivo.preparar("DELETE FROM " + sTitulos + " WHERE dtPagamento BETWEEN ? AND ? AND fValorPago > 0")
        .ligar(sInicial, sFinal)
        .executar();
    arquivo.executar("DELETE FROM " + sFaturas + " WHERE NOT EXISTS (SELECT 1 FROM " + sTitulos + " WHERE " + sCampo +
                     " = " + sFaturas + ".lCodigo)");
  }

  Volume volume_;
  Date dtInicial_ = makeDate(2000, 1, 1);
  Date dtFinal_;
  qt::QtHost& host_;
};

void vMedir(Relatorio& relatorio, const std::string& sNome, Zeramento zeramento, int vezes) {
  std::vector<Duracao> doPrograma, daReferencia;
  for (int vez = 0; vez < vezes; ++vez) {
    const Corrida pelaTela = zeramento.pelaTela();
    const Corrida aMao = zeramento.aMao();
    if (pelaTela.restos != aMao.restos)
      throw Error(errors::invalidCall, "The two ways of purging leave different rows.");
    doPrograma.push_back(pelaTela.tempo);
    daReferencia.push_back(aMao.tempo);
  }
  const Comparacao comparacao{meio(std::move(doPrograma)), meio(std::move(daReferencia))};
  relatorio.vLinha(sNome, comparacao.programa.count() / 1000, "s", 10);
  relatorio.vLinha(sNome + ": razão para a mão", comparacao.razao(), "vezes");
}

void medir(const Opcoes& opcoes, Relatorio& relatorio) {
  qt::QtHost host(janelasOcultas());
  QTimer alguem;
  QObject::connect(&alguem, &QTimer::timeout, &host, [&host] { responder(host); });
  alguem.start(1);
  const Volume& volume = opcoes.bRapido ? volumePequeno : volumeGrande;
  const Date hoje = RelogioFixo().today();
  const int vezes = opcoes.bRapido ? 1 : 3;
  vMedir(relatorio, "zeramento do primeiro ano", {volume, hoje - std::chrono::days(365), host}, vezes);
  vMedir(relatorio, "zeramento de tudo o que foi pago", {volume, hoje, host}, vezes);
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  using namespace fenvale::bancada;
  return executar(quantos, argumentos, [&](const Opcoes& opcoes, Relatorio& relatorio) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacao(quantos, argumentos);
    medir(opcoes, relatorio);
  });
}

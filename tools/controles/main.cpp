// fenvale-controles [--claro|--escuro] [--figuras PASTA]
//
// Shows every control in every state, in a window; with --figuras saves a picture of each page instead and ends.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLineEdit>
#include <QTabWidget>
#include <QTimer>
#include <iostream>

#include "controles/TelaControles.h"
#include "controles/TelaExemplo.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"

namespace {

using namespace fenvale;

void takePictures(qt::QtHost& host, const std::string& folder) {
  TelaControles tela(host);
  JanelaExemplo janela(host, FENVALE_SOURCE_DIR "/data/figuras/FiguraFundo1024x768.gif");
  AberturaExemplo abertura(host);
  const auto picture = [&](const Screen& screen, const std::string& name) {
    host.doEvents();
    if (!qt::grab(screen, folder + "/" + name + ".png")) std::cerr << "A figura " << name << " não pôde ser gravada.\n";
  };
  host.show(janela);
  picture(janela, "janela");
  host.show(abertura);
  picture(abertura, "abertura");
  abertura.unload();
  host.show(tela);
  auto& tabs = *qt::windowOf(tela)->findChild<QTabWidget*>();
  for (const auto& [page, name] : {std::pair(0, "caixas"), std::pair(1, "listas"), std::pair(2, "arvores")}) {
    tabs.setCurrentIndex(page);
    picture(tela, name);
  }
  tabs.setCurrentIndex(0);
  const auto popup = [&](const std::string& name) {
    host.doEvents();
    if (QWidget* const open = QApplication::activePopupWidget()) {
      open->grab().save(QString::fromStdString(folder + "/" + name + ".png"));
      open->close();
    }
  };
  qobject_cast<QLineEdit*>(qt::widgetOf(tela.dtVencimento))->actions().front()->trigger();
  popup("calendario");
  qobject_cast<QComboBox*>(qt::widgetOf(tela.cmbMes))->showPopup();
  popup("combo");
  QTimer::singleShot(50, &host, [&] { popup("menu"); });
  tela.mnuLista.show();
  for (const auto& [style, name] :
       {std::pair(BoxStyle::question, "pergunta"), std::pair(BoxStyle::exclamation, "aviso"),
        std::pair(BoxStyle::critical, "falha"), std::pair(BoxStyle::information, "informacao")}) {
    qt::whenOpened(host, [&host, &folder, name = name] {
      qt::grab(host, folder + "/" + name + ".png");
      qt::press(host, Qt::Key_Escape);
    });
    const bool asks = style == BoxStyle::question;
    host.messageBox(
        {style, asks ? BoxButtons::yesNo : BoxButtons::ok, "Norvane Sistemas",
         asks ? "O valor pago informado (R$ 60,00) é menor que o valor do título (R$ 100,00).\r\nEsta operação "
                "criará um título complementar de reajuste no valor de R$ 40,00 .\r\n\r\nConfirma está operação?"
              : "Informe o nome."});
  }
}

}  // namespace

int main(int count, char** values) {
  const QApplication application(count, values);
  qt::HostOptions options{.iconFolder = QStringLiteral(FENVALE_SOURCE_DIR "/data/icones"), .geometryFile = {}};
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.contains(QStringLiteral("--claro"))) options.scheme = qt::Scheme::light;
  if (arguments.contains(QStringLiteral("--escuro"))) options.scheme = qt::Scheme::dark;
  qt::QtHost host(options);
  if (const auto place = arguments.indexOf(QStringLiteral("--figuras")); place >= 0 && place + 1 < arguments.size()) {
    takePictures(host, arguments[place + 1].toStdString());
    return 0;
  }
  TelaControles tela(host);
  host.showModal(tela);
  return 0;
}

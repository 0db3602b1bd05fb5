// The program as it is installed: real windows over real services. It takes no options.

#include <QApplication>
#include <filesystem>

#include "app/EsperaDeBloqueio.h"
#include "app/Programa.h"
#include "app/Registro.h"
#include "platform/base/Error.h"
#include "platform/mail/SmtpMailer.h"
#include "platform/os/ApplicationPath.h"
#include "platform/os/SingleInstance.h"
#include "platform/os/System.h"
#include "platform/print/cups/CupsPrinters.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Strings.h"
#include "shell/screens/Lancador.h"
#include "shell/services/Telas.h"

namespace {

using namespace fenvale;

/// The icons that were shipped, wherever the installation put them.
QString iconFolder(const ProgramPlaces& places) {
  for (const std::string& folder : places.shippedFolders)
    if (std::filesystem::is_directory(folder + "/icones")) return qt::toQt(folder + "/icones");
  return qt::toQt(places.executableFolder + "/icones");
}

/// A second copy only says so: it makes no folder and copies nothing.
std::string folderOfThisRun(const ProgramPlaces& places, bool first) {
  return first ? applicationPath(places) : places.executableFolder;
}

void run(bool first) {
  const ProgramPlaces places = systemPlaces();
  const QString icons = iconFolder(places);
  std::string folder;
  try {
    folder = folderOfThisRun(places, first);
  } catch (const Error& failure) {
    qt::QtHost host({.iconFolder = icons, .geometryFile = {}});
    host.messageBox({BoxStyle::critical, BoxButtons::ok, "Norvane Sistemas", failure.description});
    SystemProcess().end(exitFailure);
  }

  qt::QtHost host({.iconFolder = icons, .geometryFile = qt::toQt(folder + "/Janelas.ini")});
  const SystemClock clock;
  SystemProcess process;
  SmtpMailer mailer;
  SystemNetwork network;
  CupsPrinters printers;
  EsperaDeBloqueio lockWait(host);
  Programa programa({folder, host, clock, process, mailer, network, printers, &lockWait}, vRegistrarTelas);

  Lancador(programa).Main(first);
  host.run(programa.telas().obter("frmMDIPrincipal"));
}

}  // namespace

int main(int count, char** values) {
  const fenvale::SingleInstance instance;
  const QApplication application(count, values);
  QApplication::setApplicationName(QStringLiteral("Gestor Fenvale"));
  QApplication::setDesktopFileName(QStringLiteral("gestor-fenvale"));
  run(instance.first());
  return 0;
}

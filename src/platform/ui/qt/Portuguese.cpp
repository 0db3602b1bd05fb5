#include "platform/ui/qt/Portuguese.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <string_view>

namespace fenvale::qt {
namespace {

struct Pair {
  std::string_view english;
  const char* portuguese;
};

/// What the clerk meets most, so that these stand in Portuguese also where the toolkit's catalogue is not installed.
constexpr Pair phrases[] = {
    {"&Undo", "&Desfazer"},
    {"&Redo", "&Refazer"},
    {"Cu&t", "Recor&tar"},
    {"&Copy", "&Copiar"},
    {"&Paste", "C&olar"},
    {"Delete", "Excluir"},
    {"Select All", "Selecionar tudo"},
    {"OK", "OK"},
    {"&OK", "&OK"},
    {"Cancel", "Cancelar"},
    {"&Cancel", "&Cancelar"},
    {"&Yes", "&Sim"},
    {"&No", "&Não"},
    {"Close", "Fechar"},
    {"&Close", "&Fechar"},
    {"Save", "Salvar"},
    {"&Save", "&Salvar"},
    {"Open", "Abrir"},
    {"&Open", "&Abrir"},
    {"&Print", "Im&primir"},
    {"Print", "Imprimir"},
};

class Phrases final : public QTranslator {
 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* source, const char*, int) const override {
    for (const Pair& pair : phrases)
      if (source != nullptr && pair.english == source) return QString::fromUtf8(pair.portuguese);
    return {};
  }
};

}  // namespace

void speakPortuguese() {
  const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
  QLocale::setDefault(brazil);
  const QString mark = QStringLiteral("fenvaleSpeaksPortuguese");
  if (qApp->findChild<QTranslator*>(mark) != nullptr) return;
  auto* phrasesOfOurs = new Phrases(qApp);
  phrasesOfOurs->setObjectName(mark);
  QCoreApplication::installTranslator(phrasesOfOurs);
  // Asked before the one above, because it was installed after it.
  auto* catalogue = new QTranslator(qApp);
  if (catalogue->load(brazil, QStringLiteral("qtbase"), QStringLiteral("_"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(catalogue);
}

}  // namespace fenvale::qt

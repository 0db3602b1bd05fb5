#include "lint/Floors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fenvale::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

SourceFile file(const std::string& path, const std::string& text = "") { return {"src/" + path, text}; }

TEST(Floors, AnIncludeMayRunDownwards) {
  EXPECT_THAT(checkFloors({
                  file("platform/base/Error.h", "#include <string>\n"),
                  file("platform/sql/Store.h", "#include \"platform/base/Error.h\"\n"),
                  file("store/services/XML.h", "#include \"platform/sql/Store.h\"\n"),
                  file("titles/services/Juros.h", "#include \"store/services/XML.h\"\n"),
                  file("titles/screens/frmJuros.h", "#include \"titles/services/Juros.h\"\n"),
                  file("app/main.cpp", "#include \"titles/screens/frmJuros.h\"\n#include \"platform/ui/qt/Host.h\"\n"),
                  file("platform/ui/qt/Host.h", "#include <QWidget>\n#include \"platform/base/Error.h\"\n"),
              }),
              IsEmpty());
}

TEST(Floors, AnIncludeNeverRunsUpwards) {
  EXPECT_THAT(
      checkFloors({file("platform/base/Error.h", "#include \"platform/sql/Store.h\"\n"),
                   file("platform/sql/Store.h", "\n\n#include \"store/services/XML.h\"\n"),
                   file("store/services/XML.h", "#include \"store/screens/frmSistema.h\"\n"),
                   file("store/screens/frmSistema.h", "#include \"app/Programa.h\"\n"), file("app/Programa.h")}),
      ElementsAre(Finding{"src/platform/base/Error.h", 1, "an include runs upwards: platform/sql/Store.h"},
                  Finding{"src/platform/sql/Store.h", 3, "an include runs upwards: store/services/XML.h"},
                  Finding{"src/store/screens/frmSistema.h", 1, "the composition is included by nobody: app/Programa.h"},
                  Finding{"src/store/services/XML.h", 1, "an include runs upwards: store/screens/frmSistema.h"}));
}

TEST(Floors, ServicesAreOrderedByRoom) {
  EXPECT_THAT(checkFloors({file("access/services/Permissoes.h", "#include \"titles/services/Juros.h\"\n"),
                           file("titles/services/Juros.h", "#include \"access/services/Permissoes.h\"\n")}),
              ElementsAre(Finding{"src/access/services/Permissoes.h", 1,
                                  "an include runs to a later room: titles/services/Juros.h"}));
}

TEST(Floors, AScreenOfAnotherRoomIsAskedOfTheRegistry) {
  EXPECT_THAT(
      checkFloors({file("titles/screens/frmFaturas.h",
                        "#include \"registers/screens/TelaCadastro.h\"\n#include \"registers/screens/frmClientes.h\"\n"
                        "#include \"titles/screens/frmTitulos.h\"\n"),
                   file("registers/screens/TelaCadastro.h"), file("registers/screens/frmClientes.h"),
                   file("titles/screens/frmTitulos.h")}),
      ElementsAre(Finding{"src/titles/screens/frmFaturas.h", 2,
                          "a screen of another room is asked of the registry: registers/screens/frmClientes.h"}));
}

TEST(Floors, AnAdapterKnowsThePlatformAndIsKnownToTheCompositionOnly) {
  EXPECT_THAT(checkFloors({file("platform/print/cups/Cups.h", "#include \"store/services/XML.h\"\n"),
                           file("store/services/XML.h", "#include \"platform/print/cups/Cups.h\"\n")}),
              ElementsAre(Finding{"src/platform/print/cups/Cups.h", 1,
                                  "an adapter knows the platform, not the rules: store/services/XML.h"},
                          Finding{"src/store/services/XML.h", 1,
                                  "only the composition includes an adapter: platform/print/cups/Cups.h"}));
}

TEST(Floors, ALibraryStaysInItsAdapter) {
  EXPECT_THAT(
      checkFloors({file("platform/sql/Sqlite.cpp", "#include <sqlite3.h>\n#include <curl/curl.h>\n"),
                   file("platform/ui/Control.h", "#include <QString>\n#include <QtCore/qglobal.h>\n#include <queue>\n"),
                   file("platform/xml/Reader.cpp", "#include <libxml/parser.h>\n#include <cups/cups.h>\n")}),
      ElementsAre(Finding{"src/platform/sql/Sqlite.cpp", 2, "libcurl outside its adapter: curl/curl.h"},
                  Finding{"src/platform/ui/Control.h", 1, "Qt outside its adapter: QString"},
                  Finding{"src/platform/ui/Control.h", 2, "Qt outside its adapter: QtCore/qglobal.h"},
                  Finding{"src/platform/xml/Reader.cpp", 2, "CUPS outside its adapter: cups/cups.h"}));
}

TEST(Floors, ALibraryReachesNoRuleByAPlatformHeader) {
  EXPECT_THAT(checkFloors({file("platform/sql/Detail.h", "#include <sqlite3.h>\n"),
                           file("platform/sql/Open.h", "#include \"platform/sql/Detail.h\"\n"),
                           file("store/services/XML.cpp", "#include \"platform/sql/Open.h\"\n")}),
              ElementsAre(Finding{"src/store/services/XML.cpp", 1, "platform/sql/Open.h brings in SQLite"}));
}

TEST(Floors, ASourceIncludesItsOwnHeaderFirst) {
  EXPECT_THAT(checkFloors({file("platform/base/Text.h"),
                           file("platform/base/Text.cpp", "#include <string>\n#include \"platform/base/Text.h\"\n"),
                           file("platform/base/Alone.cpp", "#include <string>\n")}),
              ElementsAre(Finding{"src/platform/base/Text.cpp", 1, "the first include is not platform/base/Text.h"}));
}

TEST(Floors, AnIncludeIsAPathBelowSrc) {
  EXPECT_THAT(checkFloors({file("platform/base/Text.cpp", "#include \"Error.h\"\n"), file("platform/base/Error.h")}),
              ElementsAre(Finding{"src/platform/base/Text.cpp", 1, "not a path below src/: Error.h"}));
}

TEST(Floors, EveryFolderStandsOnAFloor) {
  EXPECT_THAT(checkFloors({file("helpers/Text.h"), file("titles/Juros.h")}),
              ElementsAre(Finding{"src/helpers/Text.h", 0, "the folder stands on no floor"},
                          Finding{"src/titles/Juros.h", 0, "the folder stands on no floor"}));
}

}  // namespace
}  // namespace fenvale::lint

#include "Escritorio.h"

#include <unistd.h>

#include <filesystem>

#include "platform/base/Error.h"
#include "platform/sql/Store.h"
#include "platform/xml/XmlDocument.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"

namespace fenvale::bancada {

namespace fs = std::filesystem;

Escritorio::Escritorio(const Volume& volume, UiHost& anfitriao, void (*registrar)(Telas&))
    : relogio_(RelogioFixo().today()),
      pasta_(sEmpresaGerada(volume) + "." + std::to_string(getpid())),
      programa_({pasta_, anfitriao, relogio_, processo_, correio_, rede_, impressoras_}, registrar) {
  fs::remove_all(pasta_);
  fs::create_directories(pasta_);
  const std::string sDados = std::string(FENVALE_SOURCE_DIR) + "/data/";
  for (const char* sNome : {"SQL.xmlSQL", "SQLEmpresas.xmlSQL", "Cidades.XML", "Bancos.XML"})
    fs::copy_file(sDados + sNome, pasta_ + "/" + sNome);
  fs::copy_file(sEmpresaGerada(volume), sGetEmpresa());
  createStore(pasta_ + "/Dados.MDB");
  programa_.dbConectar().Dados().open();
  for (const XmlElement& elemento : XmlDocument::load(sDados + "SQL.xmlSQL").elements("SQL"))
    const Recordset passo(elemento.children.at(0), programa_.dbConectar().Dados());
  if (!programa_.empresas().bSetEmpresa(1, "empresa.MDB", pasta_ + "/", false))
    throw Error(errors::storeNotOpened, "The generated company was not opened.");
}

Escritorio::~Escritorio() {
  std::error_code semImportancia;
  fs::remove_all(pasta_, semImportancia);
}

Arquivo abrirComoOPrograma(const std::string& sArquivo) {
  Arquivo arquivo(sArquivo);
  arquivo.executar("PRAGMA foreign_keys = ON; PRAGMA synchronous = FULL; PRAGMA cache_size = -16384");
  return arquivo;
}

}  // namespace fenvale::bancada

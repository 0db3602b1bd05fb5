#pragma once
// The program with a copy of the generated company open, to be written to; and the same file opened by hand.

#include <string>

#include "app/Programa.h"
#include "demo/Plataforma.h"
#include "gerador/Arquivo.h"
#include "medida/Acervo.h"
#include "platform/os/System.h"

namespace fenvale::bancada {

class Escritorio {
 public:
  Escritorio(const Volume& volume, UiHost& anfitriao, void (*registrar)(Telas&) = nullptr);
  /// The copy goes with it.
  ~Escritorio();
  Escritorio(const Escritorio&) = delete;
  Escritorio& operator=(const Escritorio&) = delete;

  std::string sGetEmpresa() const { return pasta_ + "/empresa.MDB"; }
  Programa& programa() { return programa_; }

 private:
  demonstracao::Relogio relogio_;
  SystemProcess processo_;
  demonstracao::Correio correio_;
  demonstracao::Rede rede_;
  demonstracao::Impressoras impressoras_;
  std::string pasta_;
  Programa programa_;
};

/// As safe and with as much memory as the program opens a store.
Arquivo abrirComoOPrograma(const std::string& sArquivo);

}  // namespace fenvale::bancada

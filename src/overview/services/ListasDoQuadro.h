#pragma once
// The four lists of the accounts overview, told by what differs between them.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "registers/services/TelaPaginada.h"

namespace fenvale {

class QuadroGeralContas;

struct ListaDoQuadro {
  std::string sNome;  ///< the end of the names of its controls and procedures: "PagarDia"
  std::string sAba;   ///< caption of its tab
  /// Above 0 for the receivable side.
  std::int16_t iCodigo;
  bool (QuadroGeralContas::*bGetMostrar)() const;
  std::string sConsulta;
  std::vector<ColunaLista> colunas;
  std::string sTelaTitulos;  ///< "frmCadastroTitulosPagar"
  std::string sTitulos;      ///< the table: "TitulosPagar"
  std::string sEmissao;      ///< the printed list's title, before the date
  /// The ends of the names under which the widths of its columns are restored and saved.
  std::string sLargurasLidas;
  std::string sLargurasGravadas;
};

/// In the order of the tabs.
const std::array<ListaDoQuadro, 4>& listasDoQuadro();

}  // namespace fenvale

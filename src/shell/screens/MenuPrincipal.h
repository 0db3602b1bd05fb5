#pragma once
// The whole menu of the main window as one table: what each entry is called, where it stands, which right it follows,
// which screen it opens and what guards that screen. The toolbar is told in the same way.

#include <string_view>
#include <vector>

namespace fenvale {

/// What must hold before an entry's screen opens.
enum class Guarda {
  nenhuma,
  empresa,  ///< a company is open; the user is told when none is
  quadro,   ///< the right to search first, then an open company: the accounts overview
};

struct EntradaMenu {
  std::string_view sNome;     ///< "mnuCadClientes"
  std::string_view sLegenda;  ///< "-" for a separator
  std::string_view sChave;    ///< the right it follows; empty: none
  std::string_view sTela;     ///< the screen it opens; empty: a menu, a separator or the way out
  Guarda guarda = Guarda::nenhuma;
  std::string_view sPai;  ///< the menu it stands in; empty for a whole menu
};

/// In the order in which they show; a menu stands before its entries.
const std::vector<EntradaMenu>& entradasMenu();
/// Nothing when there is no such entry.
const EntradaMenu* entradaMenu(std::string_view sNome);

struct BotaoBarra {
  std::string_view sChave;    ///< "CadastroClientes"; empty for a separator
  std::string_view sEntrada;  ///< the menu entry that it acts as
  std::string_view sDica;
  std::string_view sIcone;
};

/// By their places, separators included.
const std::vector<BotaoBarra>& botoesBarra();

}  // namespace fenvale

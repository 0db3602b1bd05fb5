#pragma once
// Who is signed in and what that user may do.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace fenvale {

class Contexto;

/// A menu key: the field of Usuarios that governs one entry of the main window, in the order in which they are applied.
struct ChaveMenu {
  std::string_view sChave;    ///< "c5"
  std::string_view sEntrada;  ///< "mnuCadClientes"
  std::string_view sLegenda;  ///< "Clientes"
  std::string_view sPai;      ///< key of the menu it stands in; empty for a whole menu
};
const std::vector<ChaveMenu>& chavesMenu();

class Permissoes {
 public:
  explicit Permissoes(Contexto& contexto);
  static const char* sGetName() { return "Permissoes"; }

  /// True when a login must be asked for; false gives every right.
  bool bFazerLogin();
  /// The rights of one user, or all rights for 0.
  void vSetPermissoes(std::int32_t lCodigo);

  // Each tells the user when the right is missing.
  bool bGetSalvar();
  bool bGetExcluir();
  bool bGetPesquisar();
  bool bGetImprimir();
  bool bGetAtualizar();

  std::int32_t lGetCodigoUsuario() const { return lCodigoUsuario; }
  const std::string& sGetNomeUsuario() const { return sNomeUsuario; }

 private:
  void vDarTodosDireitos();
  void vLerDireitos();
  bool bGetDireito(bool bDireito);
  Contexto& contexto_;
  std::int32_t lCodigoUsuario = 0;
  bool bSalvar = true, bExcluir = true, bPesquisar = true, bImprimir = true, bAtualizar = true;
  std::string sNomeUsuario;
};

}  // namespace fenvale

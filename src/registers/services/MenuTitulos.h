#pragma once
// The pop-up menu over a list row that jumps to the titles of what the row stands for: all, the paid ones, the open
// ones.

#include <cstdint>
#include <functional>
#include <string>

#include "platform/ui/Menu.h"

namespace fenvale {

class Contexto;

class MenuTitulos {
 public:
  struct Descricao {
    std::string sTela;   ///< "frmCadastroTitulosReceber"
    std::string sCampo;  ///< "FaturasCliente.lCliente"
  };
  /// `aoVoltar` runs when the titles screen has closed.
  MenuTitulos(Screen& tela, Contexto& contexto, Descricao descricao, std::function<std::int32_t()> lChave,
              std::function<void()> aoVoltar);

  PopupMenu mnuPopUp;
  /// Opens at the pointer; its entries are disabled when the titles screen does not exist.
  void vAbrir();

 private:
  void vMostrarTitulos(const std::string& sCondicao);

  Contexto& contexto_;
  Descricao descricao_;
  std::function<std::int32_t()> lChave_;
  std::function<void()> aoVoltar_;
};

}  // namespace fenvale

#pragma once
// A lookup field: the key of a row of another table, the boxes in which it shows, and the ways to it. In each of its
// boxes Space opens the quick search, Insert the register of that table, Delete empties key and boxes.
//
//   LookupBox txtCategoria{*this, "txtCategoria"};
//   Button cmdNovaCategoria{*this, "cmdNovaCategoria", "", "mais"};
//   CampoBusca categoria{*this, contexto(), {&txtCategoria}, {"frmLocalizarCategoriasRapido", &txtNome}};
//   ... categoria.vSetCadastro("frmCadastroCategorias", "Cadastrar categoria", cmdNovaCategoria);

#include <cstdint>
#include <string>
#include <vector>

#include "platform/ui/Choices.h"
#include "platform/ui/Layout.h"

namespace fenvale {

class Contexto;
class TextControl;
class Vendedor;

class CampoBusca {
 public:
  struct Descricao {
    std::string sBusca;          ///< quick search that Space and the magnifier open
    Control* proximo = nullptr;  ///< gets the focus after Space
    std::string sBotao;          ///< name of the magnifier's button
    std::string sRotulo;         ///< what it looks for, for its tool tip: "Localizar categoria"
    /// Where the screen keeps the choice, when the search fills that and the main box instead of calling back.
    Vendedor* vendedor = nullptr;
  };

  /// `caixas` are the controls that show the picked row and react to the three keys, the main one first.
  CampoBusca(Screen& tela, Contexto& contexto, std::vector<Control*> caixas, Descricao descricao);
  CampoBusca(const CampoBusca&) = delete;
  CampoBusca& operator=(const CampoBusca&) = delete;

  /// The key; -1 when none was chosen, and always where a Vendedor keeps the choice.
  std::int32_t lCodigo = -1;
  Button cmdBuscar;

  /// The button that opens the register of the table, and the key Insert with it. Disabled when there is no such
  /// screen.
  void vSetCadastro(std::string sTela, const std::string& sRotulo, Button& botao);
  /// Gets the focus after a search.
  void vSetProximo(Control& proximo) { descricao_.proximo = &proximo; }
  /// Key and text of a picked row, the text into the main box.
  void vSet(std::int32_t lChave, const std::string& sTexto);
  /// Key to -1, boxes empty.
  void vLimpar();
  void vBuscar();

  /// The main box with its buttons.
  LayoutNode campoPrincipal(const std::string& sRotulo, int largura);

 private:
  bool bTecla(Control& caixa, Key tecla);
  TextControl& caixaPrincipal() const;
  void vCadastrar(Control& caixa);

  Screen& tela_;
  Contexto& contexto_;
  std::vector<Control*> caixas_;
  Descricao descricao_;
  std::string sCadastro_;
  Button* cmdCadastro_ = nullptr;
};

}  // namespace fenvale

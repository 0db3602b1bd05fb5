#pragma once
// The picture of a screen as a tree, declared beside its controls: no pixel positions, widths in units of a grid of 24
// columns. One renderer draws every tree by the same rules.
//
//   layout({
//       aba("Dados gerais", {
//           linha({campo("Código", txtCodigoInf, 3), campo("Categoria", txtCategoria, 5, {&cmdNovaCategoria}),
//                  campo("Nome", txtNome, cresce)}),
//       }),
//       lista(lstLista), paginas(scrPaginas, pbBarrra),
//       botoes({&cmdNovo, &cmdSalvar}, {&cmdFechar}),
//   });

#include <string>
#include <vector>

namespace fenvale {

class Button;
class Control;
class ListView;
class PageScroll;
class ProgressBar;

struct LayoutNode {
  enum class Kind {
    column,  ///< children one below the other
    row,     ///< children side by side
    field,   ///< a control with its label above; `beside` are the small buttons in its end
    bare,    ///< a control that carries its own text (check box, button, help text)
    frame,   ///< children in a box with a caption
    tab,     ///< one page of tabs; neighbouring tabs make one tab strip
    fill,    ///< a control that takes the height that is left (list, tree)
    pages,   ///< page selector with its summary, and the thin progress line
    footer,  ///< the buttons of the foot: children[0] at the left, children[1] at the right
  };

  Kind kind;
  std::string caption;
  Control* control = nullptr;
  std::vector<Control*> beside;
  int width = 0;  ///< grid units; 0 stretches
  std::vector<LayoutNode> children;
};

/// The width of a field that takes what is left of its row.
inline constexpr int cresce = 0;

LayoutNode campo(std::string label, Control& control, int width, std::vector<Control*> beside = {});
/// A control without a label above it; with a label of its own for those who cannot see it, when it carries no text.
LayoutNode solto(Control& control, int width = cresce, std::string accessibleName = {});
LayoutNode linha(std::vector<LayoutNode> fields);
LayoutNode coluna(std::vector<LayoutNode> children, int width = cresce);
LayoutNode quadro(std::string caption, std::vector<LayoutNode> children, int width = cresce);
LayoutNode aba(std::string caption, std::vector<LayoutNode> children);
LayoutNode lista(Control& list, std::string accessibleName = {});
LayoutNode paginas(PageScroll& pages, ProgressBar& progress);
/// The foot of the screen: commands at the left, the way out at the right.
LayoutNode botoes(const std::vector<Control*>& atLeft, const std::vector<Control*>& atRight);

}  // namespace fenvale

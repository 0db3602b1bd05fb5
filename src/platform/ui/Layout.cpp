#include "platform/ui/Layout.h"

#include "platform/ui/Choices.h"

namespace fenvale {
namespace {

LayoutNode group(LayoutNode::Kind kind, std::string caption, std::vector<LayoutNode> children, int width = cresce) {
  LayoutNode node{kind, std::move(caption), nullptr, {}, width, {}};
  node.children = std::move(children);
  return node;
}

LayoutNode bareOf(Control* control) { return {LayoutNode::Kind::bare, {}, control, {}, 0, {}}; }

LayoutNode rowOf(const std::vector<Control*>& controls) {
  std::vector<LayoutNode> children;
  children.reserve(controls.size());
  for (Control* control : controls) children.push_back(bareOf(control));
  return group(LayoutNode::Kind::row, {}, std::move(children));
}

}  // namespace

LayoutNode campo(std::string label, Control& control, int width, std::vector<Control*> beside) {
  control.setLabel(label);
  return {LayoutNode::Kind::field, std::move(label), &control, std::move(beside), width, {}};
}

LayoutNode solto(Control& control, int width, std::string accessibleName) {
  if (!accessibleName.empty()) control.setLabel(std::move(accessibleName));
  return {LayoutNode::Kind::bare, {}, &control, {}, width, {}};
}

LayoutNode linha(std::vector<LayoutNode> fields) { return group(LayoutNode::Kind::row, {}, std::move(fields)); }

LayoutNode coluna(std::vector<LayoutNode> children, int width) {
  return group(LayoutNode::Kind::column, {}, std::move(children), width);
}

LayoutNode quadro(std::string caption, std::vector<LayoutNode> children, int width) {
  return group(LayoutNode::Kind::frame, std::move(caption), std::move(children), width);
}

LayoutNode aba(std::string caption, std::vector<LayoutNode> children) {
  return group(LayoutNode::Kind::tab, std::move(caption), std::move(children));
}

LayoutNode lista(Control& list, std::string accessibleName) {
  if (!accessibleName.empty()) list.setLabel(std::move(accessibleName));
  return {LayoutNode::Kind::fill, {}, &list, {}, 0, {}};
}

LayoutNode paginas(PageScroll& pages, ProgressBar& progress) {
  pages.setLabel("Páginas");
  progress.setLabel("Andamento");
  return {LayoutNode::Kind::pages, {}, &pages, {&progress}, 0, {}};
}

LayoutNode botoes(const std::vector<Control*>& atLeft, const std::vector<Control*>& atRight) {
  return group(LayoutNode::Kind::footer, {}, {rowOf(atLeft), rowOf(atRight)});
}

}  // namespace fenvale

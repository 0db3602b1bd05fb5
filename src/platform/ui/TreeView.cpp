#include "platform/ui/TreeView.h"

#include "platform/base/Error.h"

namespace fenvale {

void TreeView::setNodes(std::vector<Node> nodes) {
  nodes_ = std::move(nodes);
  changed(Aspect::items);
}

TreeView::Node& TreeView::node(std::string_view key) {
  for (Node& candidate : nodes_)
    if (candidate.key == key) return candidate;
  throw Error(errors::listIndexOutOfBounds, "Item inexistente em " + name() + ".");
}

bool TreeView::checked(std::string_view key) const { return const_cast<TreeView*>(this)->node(key).checked; }

void TreeView::setChecked(std::string_view key, bool checked) {
  node(key).checked = checked;
  changed(Aspect::content);
}

void TreeView::userCheck(std::string_view key, bool checked) {
  if (!acceptsInput()) return;
  setChecked(key, checked);
  raise([&] {
    if (onNodeCheck) onNodeCheck(std::string(key));
  });
}

}  // namespace fenvale

#pragma once
// A tree of nodes with a key, a text and, when asked for, a tick each.

#include <vector>

#include "platform/ui/Control.h"

namespace fenvale {

class TreeView final : public Control {
 public:
  struct Node {
    std::string key;
    std::string text;
    std::string parent;  ///< key of the node above; empty for a root
    std::string icon;
    bool checked = false;
  };

  TreeView(Screen& owner, std::string name, bool checkBoxes)
      : Control(owner, std::move(name)), checkBoxes_(checkBoxes) {}
  ControlKind kind() const override { return ControlKind::treeView; }
  bool hasCheckBoxes() const { return checkBoxes_; }

  const std::vector<Node>& nodes() const { return nodes_; }
  /// Parents come before their children.
  void setNodes(std::vector<Node> nodes);
  bool checked(std::string_view key) const;
  void setChecked(std::string_view key, bool checked);

  std::function<void(const std::string& key)> onNodeCheck;
  void userCheck(std::string_view key, bool checked);

 private:
  Node& node(std::string_view key);
  bool checkBoxes_;
  std::vector<Node> nodes_;
};

}  // namespace fenvale

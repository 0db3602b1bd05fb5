#pragma once
// Menus, the toolbar and the status bar.

#include <vector>

#include "platform/ui/Control.h"

namespace fenvale {

/// An entry: a command, a submenu (when it has children) or a separator (when its caption is "-").
struct MenuItem {
  std::string name;     ///< the entry's name in the system ("mnuCadClientes")
  std::string caption;  ///< "&" before the access key
  std::vector<MenuItem> children{};
  std::function<void()> onClick{};
  std::string icon{};
  bool enabled = true;
  bool visible = true;

  bool isSeparator() const { return caption == "-"; }
};

/// The tree of entries that a menu bar and a pop-up menu share.
class Menu : public Control {
 public:
  using Control::Control;
  bool takesFocus() const override { return false; }

  const std::vector<MenuItem>& items() const { return items_; }
  void setItems(std::vector<MenuItem> items);
  /// Error 91 when there is no such entry.
  const MenuItem& item(std::string_view itemName) const;
  void setItemEnabled(std::string_view itemName, bool enabled);
  void setItemVisible(std::string_view itemName, bool visible);
  /// Enabled and visible, and so is every menu that it stands in.
  bool reachable(std::string_view itemName) const;

  void userChoose(std::string_view itemName);

 private:
  MenuItem& find(std::string_view itemName);
  std::vector<MenuItem> items_;
};

class MenuBar final : public Menu {
 public:
  using Menu::Menu;
  ControlKind kind() const override { return ControlKind::menuBar; }
};

class PopupMenu final : public Menu {
 public:
  using Menu::Menu;
  ControlKind kind() const override { return ControlKind::popupMenu; }
  /// Opens over its screen at the pointer and returns when an entry was chosen, and has run, or none was.
  void show();
};

class ToolBar final : public Control {
 public:
  struct Item {
    std::string key;  ///< empty for a separator
    std::string caption;
    std::string icon;
    std::string toolTip;
    bool enabled = true;
  };
  ToolBar(Screen& owner, std::string name, std::vector<Item> items)
      : Control(owner, std::move(name)), items_(std::move(items)) {}
  ControlKind kind() const override { return ControlKind::toolBar; }
  bool takesFocus() const override { return false; }

  const std::vector<Item>& items() const { return items_; }
  /// `place` counts from 1, separators included. Error 35600 outside.
  void setItemEnabled(std::size_t place, bool enabled);

  /// The key of the button.
  std::function<void(const std::string&)> onButtonClick;
  void userClick(std::string_view key);

 private:
  std::vector<Item> items_;
};

class StatusBar final : public Control {
 public:
  struct Panel {
    std::string name;
    std::string text;
  };
  StatusBar(Screen& owner, std::string name, std::vector<Panel> panels)
      : Control(owner, std::move(name)), panels_(std::move(panels)) {}
  ControlKind kind() const override { return ControlKind::statusBar; }
  bool takesFocus() const override { return false; }
  const std::vector<Panel>& panels() const { return panels_; }
  void setPanel(std::string_view panelName, const std::string& text);

 private:
  std::vector<Panel> panels_;
};

}  // namespace fenvale

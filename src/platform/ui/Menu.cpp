#include "platform/ui/Menu.h"

#include "platform/base/Error.h"
#include "platform/ui/Screen.h"
#include "platform/ui/UiHost.h"

namespace fenvale {
namespace {

/// The entries from the root down to `itemName`; empty when it is not there.
std::vector<MenuItem*> pathTo(std::vector<MenuItem>& items, std::string_view itemName) {
  for (MenuItem& item : items) {
    if (item.name == itemName) return {&item};
    if (auto below = pathTo(item.children, itemName); !below.empty()) {
      below.insert(below.begin(), &item);
      return below;
    }
  }
  return {};
}

}  // namespace

void Menu::setItems(std::vector<MenuItem> items) {
  items_ = std::move(items);
  changed(Aspect::items);
}

MenuItem& Menu::find(std::string_view itemName) {
  const auto path = pathTo(items_, itemName);
  if (path.empty()) throw Error(errors::objectNotSet, "Não há a opção de menu " + std::string(itemName) + ".");
  return *path.back();
}

const MenuItem& Menu::item(std::string_view itemName) const { return const_cast<Menu*>(this)->find(itemName); }

void Menu::setItemEnabled(std::string_view itemName, bool enabled) {
  find(itemName).enabled = enabled;
  changed(Aspect::content);
}

void Menu::setItemVisible(std::string_view itemName, bool visible) {
  find(itemName).visible = visible;
  changed(Aspect::content);
}

bool Menu::reachable(std::string_view itemName) const {
  const auto path = pathTo(const_cast<Menu*>(this)->items_, itemName);
  for (const MenuItem* step : path)
    if (!step->enabled || !step->visible) return false;
  return !path.empty();
}

void Menu::userChoose(std::string_view itemName) {
  if (!reachable(itemName)) return;
  const auto handler = item(itemName).onClick;
  raise(handler);
}

void PopupMenu::show() { screen().host().popupMenu(*this); }

void ToolBar::setItemEnabled(std::size_t place, bool enabled) {
  if (place < 1 || place > items_.size()) throw Error(errors::listIndexOutOfBounds, "Índice fora da faixa.");
  items_[place - 1].enabled = enabled;
  changed(Aspect::content);
}

void ToolBar::userClick(std::string_view key) {
  for (const Item& item : items_) {
    if (item.key != key || !item.enabled) continue;
    raise([&] {
      if (onButtonClick) onButtonClick(std::string(key));
    });
    return;
  }
}

void StatusBar::setPanel(std::string_view panelName, const std::string& text) {
  for (Panel& panel : panels_)
    if (panel.name == panelName) panel.text = text;
  changed(Aspect::content);
}

}  // namespace fenvale

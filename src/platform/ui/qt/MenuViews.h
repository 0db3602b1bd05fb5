#pragma once
// Menus, toolbar and status bar of a window.

#include <functional>
#include <string>
#include <vector>

class QMenu;

namespace fenvale {
class MenuBar;
class StatusBar;
class ToolBar;
struct MenuItem;
}  // namespace fenvale

namespace fenvale::qt {

class Binding;
class Icons;
class QtHost;

/// Entries, submenus and separators; `chosen` is told the name of the entry.
void fillMenu(QMenu& menu, const std::vector<MenuItem>& items, const Icons& icons,
              const std::function<void(const std::string&)>& chosen);

Binding& render(MenuBar& control, QtHost& host);
Binding& render(ToolBar& control, QtHost& host);
Binding& render(StatusBar& control, QtHost& host);

}  // namespace fenvale::qt

#pragma once
// Turns a screen's layout tree into widgets. All measures come from the theme; a row divides its width into as many
// columns as its container is wide.

#include <QPointer>
#include <vector>

#include "platform/ui/Layout.h"

class QGroupBox;
class QHBoxLayout;
class QLayout;
class QTabWidget;
class QVBoxLayout;
class QWidget;

namespace fenvale {
class Screen;
}

namespace fenvale::qt {

class Binding;
class QtHost;

struct BuiltLayout {
  std::vector<Binding*> bindings;
  /// Frames and pages of tabs, hidden while all of their controls are.
  struct Group {
    QWidget* page;
    QTabWidget* tabs;  ///< nothing for a frame
    std::vector<Control*> controls;
  };
  std::vector<Group> groups;
  std::vector<const LayoutNode*> footers;
  bool grows = false;  ///< something takes the height that is left
  int units = 24;
};

class LayoutBuilder {
 public:
  LayoutBuilder(QtHost& host, BuiltLayout& built) : host_(host), built_(built) {}

  /// The columns are those of the size that the screen would like to have, else as many as its widest row takes.
  void fill(QWidget& body, const Screen& screen);
  /// The buttons of the foot.
  void fillFoot(QHBoxLayout& foot, const LayoutNode& node);

 private:
  void addChildren(QVBoxLayout& column, const std::vector<LayoutNode>& children, int units);
  void addTo(QVBoxLayout& column, const LayoutNode& node, int units);
  QLayout* row(const LayoutNode& node, int units);
  QWidget* field(const LayoutNode& node);
  QWidget* bare(Control& control);
  QWidget* frame(const LayoutNode& node, int units);
  QWidget* tabs(const std::vector<const LayoutNode*>& pages, int units);
  QWidget* pages(const LayoutNode& node);
  QWidget* fillWidget(const LayoutNode& node);
  void note(Binding& binding) { built_.bindings.push_back(&binding); }

  QtHost& host_;
  BuiltLayout& built_;
};

}  // namespace fenvale::qt

#include "platform/ui/qt/LayoutBuilder.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/ui/Choices.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"
#include "platform/ui/qt/UnitRow.h"

namespace fenvale::qt {
namespace {

using Kind = LayoutNode::Kind;

/// What a stretching field counts for when the natural width of a screen is asked for.
constexpr int stretchUnits = 6;

int unitsOf(const LayoutNode& node) {
  int units = 0;
  switch (node.kind) {
    case Kind::fill:
    case Kind::pages:
      return measures::columns;
    case Kind::row:
      for (const LayoutNode& child : node.children)
        units += child.width > 0 ? child.width : std::max(stretchUnits, unitsOf(child));
      return std::min(units, measures::columns);
    case Kind::field:
    case Kind::bare:
      return node.width > 0 ? node.width : stretchUnits;
    case Kind::footer:
      return 0;
    default:
      for (const LayoutNode& child : node.children) units = std::max(units, unitsOf(child));
      return units;
  }
}

/// The columns that a child of a row has for its own content.
int innerUnits(const LayoutNode& row, const LayoutNode& child, int units) {
  if (child.width > 0) return child.width;
  int fixed = 0, stretching = 0;
  for (const LayoutNode& other : row.children)
    (other.width > 0 ? fixed : stretching) += other.width > 0 ? other.width : 1;
  return std::max((units - fixed) / std::max(stretching, 1), 1);
}

void collectControls(const LayoutNode& node, std::vector<Control*>& controls) {
  if (node.control != nullptr) controls.push_back(node.control);
  for (const LayoutNode& child : node.children) collectControls(child, controls);
}

QVBoxLayout* plainColumn() {
  auto* const column = new QVBoxLayout;
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(measures::gap);
  return column;
}

bool fillsHeight(const LayoutNode& node) {
  if (node.kind == Kind::fill) return true;
  return std::any_of(node.children.begin(), node.children.end(), fillsHeight);
}

}  // namespace

void LayoutBuilder::fill(QWidget& body, const Screen& screen) {
  const LayoutNode& root = screen.layout();
  const int units = screen.preferredWidth();
  built_.units = units > 0 ? std::min(units, measures::columns) : std::max(unitsOf(root), 1);
  built_.grows = fillsHeight(root);
  QVBoxLayout* const column = plainColumn();
  const bool dialog = screen.style() == ScreenStyle::dialog;
  const int margin = dialog ? measures::margin : 2 * measures::margin;
  column->setContentsMargins(margin, margin, margin, margin);
  body.setLayout(column);
  // A splash shows its lines in its middle; what the main window has to say stands at the foot of its picture.
  if (!dialog) column->addStretch(1);
  addChildren(*column, root.children, built_.units);
  if (!built_.grows && screen.style() != ScreenStyle::mainWindow) column->addStretch(1);
}

void LayoutBuilder::addChildren(QVBoxLayout& column, const std::vector<LayoutNode>& children, int units) {
  for (std::size_t place = 0; place < children.size(); ++place) {
    if (children[place].kind != Kind::tab) {
      addTo(column, children[place], units);
      continue;
    }
    std::vector<const LayoutNode*> neighbours;
    bool grows = false;
    for (; place < children.size() && children[place].kind == Kind::tab; ++place) {
      neighbours.push_back(&children[place]);
      grows = grows || fillsHeight(children[place]);
    }
    --place;
    column.addWidget(tabs(neighbours, units), grows ? 1 : 0);
  }
}

void LayoutBuilder::addTo(QVBoxLayout& column, const LayoutNode& node, int units) {
  const int stretch = fillsHeight(node) ? 1 : 0;
  switch (node.kind) {
    case Kind::column: {
      QVBoxLayout* const inner = plainColumn();
      column.addLayout(inner, stretch);
      addChildren(*inner, node.children, units);
      break;
    }
    case Kind::row:
      column.addLayout(row(node, units), stretch);
      break;
    case Kind::field:
    case Kind::bare: {
      // Alone in its line it keeps its width, as it would in a row.
      LayoutNode line{Kind::row, {}, nullptr, {}, 0, {node}};
      column.addLayout(row(line, units));
      break;
    }
    case Kind::frame:
      column.addWidget(frame(node, units), stretch);
      break;
    case Kind::fill:
      column.addWidget(fillWidget(node), 1);
      break;
    case Kind::pages:
      column.addWidget(pages(node));
      break;
    case Kind::footer:
      built_.footers.push_back(&node);
      break;
    case Kind::tab:
      break;
  }
}

QLayout* LayoutBuilder::row(const LayoutNode& node, int units) {
  using Placement = UnitRow::Placement;
  auto* const line = new UnitRow(units);
  for (const LayoutNode& child : node.children) {
    const int inner = innerUnits(node, child, units);
    switch (child.kind) {
      case Kind::field:
        line->add(*field(child), child.width, Placement::top);
        break;
      case Kind::bare:
        if (QWidget* const widget = bare(*child.control)) {
          line->add(*widget, child.width, Placement::bottom);
          // A note over a picture is no wider than its text.
          if (widget->property("role") == "hint") line->itemAt(line->count() - 1)->setAlignment(Qt::AlignLeft);
        }
        break;
      case Kind::frame:
        line->add(*frame(child, inner), child.width, Placement::full);
        break;
      case Kind::fill:
        line->add(*fillWidget(child), child.width, Placement::full);
        break;
      default: {
        QVBoxLayout* const column = plainColumn();
        if (child.kind == Kind::column) {
          addChildren(*column, child.children, inner);
          if (!fillsHeight(child)) column->addStretch(1);
        } else {
          addTo(*column, child, inner);
        }
        line->add(*column, child.width, Placement::full);
      }
    }
  }
  return line;
}

QWidget* LayoutBuilder::bare(Control& control) {
  Binding* const binding = renderAny(control, host_);
  if (binding == nullptr) return nullptr;
  note(*binding);
  return &binding->shell();
}

QWidget* LayoutBuilder::field(const LayoutNode& node) {
  auto* const shell = new QWidget;
  auto* const column = new QVBoxLayout(shell);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  auto* const label = new QLabel(toQt(node.caption));
  label->setFont(host_.theme().labelFont());
  label->setProperty("role", "label");
  column->addWidget(label);

  auto* const line = new QHBoxLayout;
  line->setSpacing(3);
  column->addLayout(line, 1);
  Binding* const binding = renderAny(*node.control, host_);
  if (binding == nullptr) return shell;
  note(*binding);
  label->setBuddy(&binding->widget());
  label->setMinimumWidth(label->sizeHint().width());
  line->addWidget(&binding->shell(), 1);
  for (std::size_t place = 0; place < node.beside.size(); ++place) {
    Control& besideIt = *node.beside[place];
    Binding* const small = besideIt.kind() == ControlKind::button
                               ? &renderSmall(static_cast<Button&>(besideIt), host_, place == 0 ? "lupa" : "mais")
                               : renderAny(besideIt, host_);
    if (small == nullptr) continue;
    note(*small);
    line->addWidget(&small->widget(), 0, Qt::AlignTop);
    small->widget().setAccessibleName(spokenName(node.caption) + QStringLiteral(": ") +
                                      small->widget().accessibleName());
  }
  binding->setShell(*shell);
  return shell;
}

QWidget* LayoutBuilder::frame(const LayoutNode& node, int units) {
  auto* const box = new QGroupBox(toQt(node.caption));
  auto* const column = new QVBoxLayout(box);
  column->setContentsMargins(10, node.caption.empty() ? 4 : 8, 10, 10);
  column->setSpacing(measures::gap);
  addChildren(*column, node.children, units);
  if (!fillsHeight(node)) column->addStretch(1);
  BuiltLayout::Group group{box, nullptr, {}};
  collectControls(node, group.controls);
  built_.groups.push_back(std::move(group));
  return box;
}

QWidget* LayoutBuilder::tabs(const std::vector<const LayoutNode*>& neighbours, int units) {
  auto* const strip = new QTabWidget;
  strip->setUsesScrollButtons(true);
  strip->tabBar()->setDrawBase(false);
  strip->tabBar()->setElideMode(Qt::ElideNone);
  for (const LayoutNode* node : neighbours) {
    auto* const page = new QWidget;
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(10, 10, 10, 10);
    column->setSpacing(measures::gap);
    addChildren(*column, node->children, units);
    if (!fillsHeight(*node)) column->addStretch(1);
    strip->addTab(page, toQt(node->caption));
    BuiltLayout::Group group{page, strip, {}};
    collectControls(*node, group.controls);
    built_.groups.push_back(std::move(group));
  }
  return strip;
}

QWidget* LayoutBuilder::fillWidget(const LayoutNode& node) {
  QWidget* const widget = bare(*node.control);
  if (widget == nullptr) return new QWidget;
  widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  return widget;
}

QWidget* LayoutBuilder::pages(const LayoutNode& node) {
  auto* const panel = new QWidget;
  auto* const column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  for (Control* control : node.beside) {
    if (control->kind() != ControlKind::progressBar) continue;
    Binding& line = renderLine(static_cast<ProgressBar&>(*control), host_);
    note(line);
    column->addWidget(&line.widget());
  }
  auto* const line = new QHBoxLayout;
  line->setSpacing(measures::gap);
  column->addLayout(line);
  auto& scroll = static_cast<PageScroll&>(*node.control);
  Binding& binding = render(scroll, host_);
  note(binding);
  line->addWidget(&binding.shell(), 1);
  return panel;
}

void LayoutBuilder::fillFoot(QHBoxLayout& foot, const LayoutNode& node) {
  for (const LayoutNode& side : node.children) {
    if (&side != &node.children.front()) foot.addStretch(1);
    for (const LayoutNode& child : side.children) {
      if (child.control == nullptr) continue;
      if (QWidget* const widget = bare(*child.control)) foot.addWidget(widget);
    }
  }
}

}  // namespace fenvale::qt

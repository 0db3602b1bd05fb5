#include "platform/ui/qt/MenuViews.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QResizeEvent>
#include <QToolBar>
#include <algorithm>

#include "platform/ui/Menu.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

/// Brings entries that are there already up to date; their order is that of the items.
void refreshMenu(const QList<QAction*>& actions, const std::vector<MenuItem>& items) {
  for (qsizetype place = 0; place < actions.size() && place < static_cast<qsizetype>(items.size()); ++place) {
    const MenuItem& item = items[static_cast<std::size_t>(place)];
    QAction* const action = actions[place];
    action->setVisible(item.visible);
    action->setEnabled(item.enabled);
    if (action->menu() != nullptr) refreshMenu(action->menu()->actions(), item.children);
  }
}

template <typename Place>
void addItems(Place& place, const std::vector<MenuItem>& items, const Icons& icons,
              const std::function<void(const std::string&)>& chosen) {
  for (const MenuItem& item : items) {
    QAction* action = nullptr;
    if (item.isSeparator()) {
      action = place.addSeparator();
    } else if (!item.children.empty()) {
      QMenu* const below = place.addMenu(toQt(item.caption));
      addItems(*below, item.children, icons, chosen);
      action = below->menuAction();
    } else {
      action = place.addAction(toQt(item.caption));
      QObject::connect(action, &QAction::triggered, &place, [chosen, name = item.name] { chosen(name); });
    }
    action->setObjectName(toQt(item.name));
    if (!item.icon.empty()) action->setIcon(icons.accentIcon(item.icon));
  }
  refreshMenu(place.actions(), items);
}

class MenuBarBinding final : public BindingOf<MenuBar, QMenuBar> {
 public:
  MenuBarBinding(QtHost& host, MenuBar& control, QMenuBar& bar) : BindingOf(host, control, bar) { refreshAll(); }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::content) return refreshMenu(view().actions(), control().items());
    if (aspect != Aspect::items) return;
    view().clear();
    addItems(view(), control().items(), host().icons(),
             [this](const std::string& name) { enter([this, name] { control().userChoose(name); }); });
  }
};

class ToolBarBinding final : public BindingOf<ToolBar, QToolBar> {
 public:
  ToolBarBinding(QtHost& host, ToolBar& control, QToolBar& bar) : BindingOf(host, control, bar) {
    for (const ToolBar::Item& item : control.items()) addButton(item);
    refreshAll();
  }

 protected:
  void refresh(Aspect) override {
    const auto actions = view().actions();
    for (std::size_t place = 0; place < control().items().size(); ++place)
      actions[static_cast<qsizetype>(place)]->setEnabled(control().items()[place].enabled);
  }

 private:
  void addButton(const ToolBar::Item& item) {
    if (item.key.empty()) {
      view().addSeparator();
      return;
    }
    QAction* const action = view().addAction(host().icons().accentIcon(item.icon), toQt(item.caption));
    action->setObjectName(toQt(item.key));
    action->setToolTip(toQt(item.toolTip.empty() ? item.caption : item.toolTip));
    QWidget* const button = view().widgetForAction(action);
    button->setAccessibleName(withoutAccessKey(item.toolTip.empty() ? item.caption : item.toolTip));
    connect(action, &QAction::triggered, this,
            [this, key = item.key] { enter([this, key] { control().userClick(key); }); });
  }
};

/// A text that gives way when the window is narrow: it then shows its ends, and the whole of it in its tip.
class PanelLabel final : public QLabel {
 public:
  void showText(const QString& text) {
    whole_ = text;
    setToolTip(text);
    fit();
    updateGeometry();
  }
  QSize sizeHint() const override { return ofWidth(widest); }
  QSize minimumSizeHint() const override { return ofWidth(narrowest); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    fit();
  }

 private:
  QSize ofWidth(int limit) const {
    return {std::min(fontMetrics().horizontalAdvance(whole_) + 2, limit), fontMetrics().height()};
  }
  // The end of a path tells more than its middle.
  void fit() {
    const int room = testAttribute(Qt::WA_Resized) ? width() : widest;
    setText(fontMetrics().elidedText(whole_, Qt::ElideMiddle, room));
  }

  static constexpr int widest = 360, narrowest = 140;
  QString whole_;
};

class StatusBarBinding final : public BindingOf<StatusBar, QWidget> {
 public:
  StatusBarBinding(QtHost& host, StatusBar& control, QWidget& bar, QHBoxLayout& row) : BindingOf(host, control, bar) {
    for (std::size_t place = 0; place < control.panels().size(); ++place) {
      auto* const label = new PanelLabel;
      label->setFont(host.theme().labelFont());
      label->setTextInteractionFlags(Qt::TextSelectableByMouse);
      label->setFocusPolicy(Qt::NoFocus);
      label->setProperty("role", "muted");
      row.addWidget(label);
      labels_.push_back(label);
    }
    row.addStretch(1);
    refreshAll();
  }

 protected:
  void refresh(Aspect) override {
    for (std::size_t place = 0; place < labels_.size(); ++place) {
      const QString text = toQt(control().panels()[place].text);
      labels_[place]->showText(text);
      labels_[place]->setVisible(!text.isEmpty());
    }
  }

 private:
  std::vector<PanelLabel*> labels_;
};

}  // namespace

void fillMenu(QMenu& menu, const std::vector<MenuItem>& items, const Icons& icons,
              const std::function<void(const std::string&)>& chosen) {
  addItems(menu, items, icons, chosen);
}

Binding& render(MenuBar& control, QtHost& host) { return *new MenuBarBinding(host, control, *new QMenuBar); }

Binding& render(ToolBar& control, QtHost& host) {
  auto* const bar = new QToolBar;
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  bar->setIconSize({measures::toolIcon, measures::toolIcon});
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  return *new ToolBarBinding(host, control, *bar);
}

Binding& render(StatusBar& control, QtHost& host) {
  auto* const bar = new QWidget;
  auto* const row = new QHBoxLayout(bar);
  row->setContentsMargins(measures::margin, 3, measures::margin, 3);
  row->setSpacing(20);
  auto* const binding = new StatusBarBinding(host, control, *bar, *row);
  bar->setObjectName(QStringLiteral("status"));
  bar->setAttribute(Qt::WA_StyledBackground);
  return *binding;
}

}  // namespace fenvale::qt

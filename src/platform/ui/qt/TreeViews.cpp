// Trees with ticks, and the places of the file system.

#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QTreeWidget>
#include <algorithm>
#include <map>
#include <string>

#include "platform/ui/Places.h"
#include "platform/ui/TreeView.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/HouseStyle.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

constexpr int keyRole = Qt::UserRole;

QTreeWidget* newTree() {
  auto* const tree = new QTreeWidget;
  tree->setHeaderHidden(true);
  tree->setUniformRowHeights(true);
  tree->setTabKeyNavigation(false);
  tree->setMinimumHeight(6 * measures::rowHeight);
  return tree;
}

class TreeBinding final : public BindingOf<TreeView, QTreeWidget> {
 public:
  TreeBinding(QtHost& host, TreeView& control, QTreeWidget& tree) : BindingOf(host, control, tree) {
    connect(&tree, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem* item) {
      if (showing_) return;
      const std::string key = fromQt(item->data(0, keyRole).toString());
      const bool checked = item->checkState(0) == Qt::Checked;
      enter([&] { this->control().userCheck(key, checked); });
      if (anyControl() != nullptr) showTicks();
    });
    refreshAll();
  }
  void focusGiven() override {
    // The toolkit gives a tree that gets the focus a current node, on which keys act, but none that shows.
    if (!view().selectedItems().isEmpty()) return;
    view().setCurrentItem(view().currentItem() != nullptr ? view().currentItem() : view().topLevelItem(0));
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::items) showNodes();
    if (aspect == Aspect::content) showTicks();
  }

 private:
  void showNodes() {
    showing_ = true;
    view().clear();
    items_.clear();
    for (const TreeView::Node& node : control().nodes()) {
      const auto above = items_.find(node.parent);
      auto* const item = above == items_.end() ? new QTreeWidgetItem(&view()) : new QTreeWidgetItem(above->second);
      item->setText(0, withoutAccessKey(node.text));
      item->setData(0, keyRole, toQt(node.key));
      if (!node.icon.empty()) item->setIcon(0, host().icons().accentIcon(node.icon));
      items_.emplace(node.key, item);
    }
    showing_ = false;
    showTicks();
    view().expandAll();
  }
  void showTicks() {
    if (!control().hasCheckBoxes()) return;
    showing_ = true;
    for (const TreeView::Node& node : control().nodes())
      if (const auto found = items_.find(node.key); found != items_.end())
        found->second->setCheckState(0, node.checked ? Qt::Checked : Qt::Unchecked);
    showing_ = false;
  }
  std::map<std::string, QTreeWidgetItem*> items_;
  bool showing_ = false;
};

class DriveCombo final : public QComboBox {
 public:
  explicit DriveCombo(const Theme& theme) : theme_(theme) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QComboBox::paintEvent(event);
    QPainter painter(this);
    drawChevron(painter, QRect(width() - 24, 0, 22, height()), Direction::down, theme_.tokens().muted);
  }

 private:
  const Theme& theme_;
};

class DriveBinding final : public BindingOf<DriveList, QComboBox> {
 public:
  DriveBinding(QtHost& host, DriveList& control, QComboBox& combo) : BindingOf(host, control, combo) {
    connect(&combo, &QComboBox::activated, this, [this](int index) {
      const std::string path = this->control().drives()[static_cast<std::size_t>(index)];
      enter([&] { this->control().userChoose(path); });
      if (anyControl() != nullptr) refresh(Aspect::content);
    });
    refreshAll();
  }

 protected:
  void refresh(Aspect aspect) override {
    const auto& drives = control().drives();
    if (aspect == Aspect::items) {
      view().clear();
      for (const std::string& drive : drives) view().addItem(host().icons().icon("disco"), toQt(drive));
    }
    const auto found = std::find(drives.begin(), drives.end(), control().drive());
    view().setCurrentIndex(found == drives.end() ? -1 : static_cast<int>(found - drives.begin()));
  }
};

/// The path from its root down, then the folders in it: Enter or a double click goes there.
class FolderBinding final : public BindingOf<FolderTree, QTreeWidget> {
 public:
  FolderBinding(QtHost& host, FolderTree& control, QTreeWidget& tree) : BindingOf(host, control, tree) {
    connect(&tree, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) { go(*item); });
    tree.setItemsExpandable(false);
    tree.setIndentation(14);
    refreshAll();
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress) {
      const int key = static_cast<QKeyEvent*>(event)->key();
      if (key == Qt::Key_Space && view().currentItem() != nullptr) return go(*view().currentItem()), true;
      if (key == Qt::Key_Backspace && above_ != nullptr) return go(*above_), true;
    }
    return Binding::eventFilter(watched, event);
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect != Aspect::content) return;
    view().clear();
    above_ = nullptr;
    QTreeWidgetItem* here = addFolder(nullptr, QStringLiteral("/"), QStringLiteral("/"), true);
    QString path;
    for (const QString& part : toQt(control().path()).split(u'/', Qt::SkipEmptyParts)) {
      path += u'/' + part;
      above_ = here;
      here = addFolder(here, part, path, true);
    }
    for (const std::string& name : control().folders()) addFolder(here, toQt(name), path + u'/' + toQt(name), false);
    view().expandAll();
    view().setCurrentItem(here);
    view().scrollToItem(here);
  }

 private:
  QTreeWidgetItem* addFolder(QTreeWidgetItem* above, const QString& name, const QString& path, bool open) {
    auto* const item = above == nullptr ? new QTreeWidgetItem(&view()) : new QTreeWidgetItem(above);
    item->setText(0, name);
    item->setData(0, keyRole, path);
    item->setIcon(0, host().icons().accentIcon(open ? "pasta-aberta" : "pasta"));
    return item;
  }
  void go(QTreeWidgetItem& item) {
    const std::string path = fromQt(item.data(0, keyRole).toString());
    // The tree is filled anew by the change: not before the toolkit has come out of its own handling of the item.
    QMetaObject::invokeMethod(
        this, [this, path] { enter([&] { control().userChoose(path); }); }, Qt::QueuedConnection);
  }
  QTreeWidgetItem* above_ = nullptr;
};

class FilesView final : public QListWidget {
 public:
  explicit FilesView(const Theme& theme) : theme_(theme) {}

 protected:
  void paintEvent(QPaintEvent* event) override {
    QListWidget::paintEvent(event);
    if (count() > 0) return;
    QPainter painter(viewport());
    painter.setPen(theme_.tokens().muted);
    painter.drawText(viewport()->rect(), Qt::AlignCenter, QStringLiteral("Nenhum arquivo"));
  }

 private:
  const Theme& theme_;
};

class FilesBinding final : public BindingOf<FileList, QListWidget> {
 public:
  FilesBinding(QtHost& host, FileList& control, QListWidget& list) : BindingOf(host, control, list) {
    connect(&list, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { click(*item); });
    refreshAll();
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space &&
        view().currentItem() != nullptr) {
      click(*view().currentItem());
      return true;
    }
    return Binding::eventFilter(watched, event);
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::items) {
      view().clear();
      for (const std::string& name : control().files())
        view().addItem(new QListWidgetItem(host().icons().accentIcon("arquivo"), toQt(name)));
    }
    if (aspect != Aspect::selection) return;
    for (int row = 0; row < view().count(); ++row)
      if (fromQt(view().item(row)->text()) == control().fileName()) view().setCurrentRow(row);
  }

 private:
  void click(const QListWidgetItem& item) {
    const std::string name = fromQt(item.text());
    enter([&] { control().userClick(name); });
  }
};

}  // namespace

Binding& render(TreeView& control, QtHost& host) { return *new TreeBinding(host, control, *newTree()); }

Binding& render(DriveList& control, QtHost& host) {
  return *new DriveBinding(host, control, *new DriveCombo(host.theme()));
}

Binding& render(FolderTree& control, QtHost& host) { return *new FolderBinding(host, control, *newTree()); }

Binding& render(FileList& control, QtHost& host) {
  auto* const list = new FilesView(host.theme());
  list->setTabKeyNavigation(false);
  list->setIconSize({measures::icon, measures::icon});
  list->setMinimumHeight(6 * measures::rowHeight);
  return *new FilesBinding(host, control, *list);
}

}  // namespace fenvale::qt

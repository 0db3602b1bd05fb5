#include "gui/support/LookChecks.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QTabBar>
#include <QTabWidget>
#include <QtWidgets>
#include <algorithm>
#include <map>
#include <set>

#include "platform/ui/Control.h"
#include "platform/ui/Layout.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Theme.h"

namespace fenvale::qt {
namespace {

std::string described(const QWidget& widget, const QString& text) {
  return (widget.objectName() + QStringLiteral(" (") + QLatin1String(widget.metaObject()->className()) +
          QStringLiteral(" %1,%2 %3x%4").arg(widget.x()).arg(widget.y()).arg(widget.width()).arg(widget.height()) +
          QStringLiteral(") \"") + text + QStringLiteral("\""))
      .toStdString();
}

void checkFits(const QWidget& widget, const QString& text, int needed, int room, std::vector<std::string>& faults) {
  if (needed > room)
    faults.push_back("cut: " + described(widget, text) + " needs " + std::to_string(needed) + " of " +
                     std::to_string(room));
}

/// Only what stands on its own: parts of a list, a box or a bar are that widget's business.
bool standsAlone(const QWidget& widget) {
  if (qobject_cast<const QLineEdit*>(&widget) != nullptr)
    return qobject_cast<const QComboBox*>(widget.parentWidget()) == nullptr;
  return qobject_cast<const QAbstractButton*>(&widget) != nullptr || qobject_cast<const QLabel*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr ||
         qobject_cast<const QGroupBox*>(&widget) != nullptr || qobject_cast<const QTabWidget*>(&widget) != nullptr ||
         qobject_cast<const QProgressBar*>(&widget) != nullptr || qobject_cast<const QScrollBar*>(&widget) != nullptr;
}

bool isPartOf(const QWidget& widget, const QWidget& window) {
  for (const QWidget* above = widget.parentWidget(); above != nullptr && above != &window;
       above = above->parentWidget()) {
    const bool page = above->objectName() == QStringLiteral("body") ||
                      above->objectName() == QStringLiteral("qt_scrollarea_viewport");
    if (qobject_cast<const QAbstractItemView*>(above) != nullptr || qobject_cast<const QLineEdit*>(above) != nullptr ||
        qobject_cast<const QPlainTextEdit*>(above) != nullptr || qobject_cast<const QComboBox*>(above) != nullptr ||
        qobject_cast<const QTabBar*>(above) != nullptr)
      return true;
    if (!page && above->isWindow()) return true;
  }
  return false;
}

bool holds(const QWidget& outer, const QWidget& inner) { return outer.isAncestorOf(&inner); }

std::vector<const QWidget*> shownWidgets(const QWidget& window) {
  std::vector<const QWidget*> shown;
  for (const QWidget* widget : window.findChildren<QWidget*>())
    if (widget->isVisible() && standsAlone(*widget) && !isPartOf(*widget, window)) shown.push_back(widget);
  return shown;
}

/// What a window manager may put around a window.
constexpr int windowFrame = 32;

void findOverfull(const LayoutNode& node, int units, std::vector<std::string>& faults) {
  if (node.kind != LayoutNode::Kind::row) {
    for (const LayoutNode& child : node.children) findOverfull(child, units, faults);
    return;
  }
  int fixed = 0, stretching = 0;
  for (const LayoutNode& child : node.children) {
    fixed += child.width;
    if (child.width == 0) ++stretching;
  }
  if (fixed + stretching > units)
    faults.push_back("row of " + std::to_string(fixed + stretching) + " columns in a place of " +
                     std::to_string(units) + ", with " + node.children.front().caption);
  for (const LayoutNode& child : node.children)
    findOverfull(child, child.width > 0 ? child.width : (units - fixed) / std::max(stretching, 1), faults);
}

QRect placeIn(const QWidget& widget, const QWidget& window) { return {widget.mapTo(&window, QPoint()), widget.size()}; }

}  // namespace

std::vector<std::string> cutTexts(const QWidget& window) {
  std::vector<std::string> faults;
  for (const QWidget* widget : shownWidgets(window)) {
    if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && !label->wordWrap()) {
      checkFits(*label, label->text(), label->minimumSizeHint().width(), label->width(), faults);
      checkFits(*label, label->text(), label->fontMetrics().height(), label->height(), faults);
    } else if (const auto* wrapped = qobject_cast<const QLabel*>(widget)) {
      checkFits(*wrapped, wrapped->text(), wrapped->heightForWidth(wrapped->width()), wrapped->height(), faults);
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
      checkFits(*button, button->text(), button->minimumSizeHint().width(), button->width(), faults);
    } else if (const auto* frame = qobject_cast<const QGroupBox*>(widget)) {
      checkFits(*frame, frame->title(), frame->fontMetrics().horizontalAdvance(frame->title()) + 20, frame->width(),
                faults);
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
      const QTabBar& bar = *tabs->tabBar();
      for (int tab = 0; tab < bar.count(); ++tab)
        if (bar.isTabVisible(tab) && bar.tabRect(tab).right() > tabs->width())
          faults.push_back("cut: tab " + bar.tabText(tab).toStdString());
    }
  }
  return faults;
}

std::vector<std::string> overlaps(const QWidget& window) {
  std::vector<std::string> faults;
  const auto shown = shownWidgets(window);
  for (auto one = shown.begin(); one != shown.end(); ++one) {
    const QRect place = placeIn(**one, window);
    if (place.left() < 0 || place.right() >= window.width())
      faults.push_back("out of the window: " + described(**one, QString::number(place.right())));
    for (auto other = one + 1; other != shown.end(); ++other) {
      if (holds(**one, **other) || holds(**other, **one)) continue;
      const QRect common = place.intersected(placeIn(**other, window));
      // What scrolls out of sight lies under the foot without being seen.
      const auto* const area = window.findChild<QScrollArea*>();
      const bool inArea = area != nullptr && (holds(*area, **one) != holds(*area, **other));
      if (!common.isEmpty() && !inArea)
        faults.push_back("overlap: " + described(**one, {}) + " and " +
                         described(**other, qobject_cast<const QLabel*>(*other)
                                                ? static_cast<const QLabel*>(*other)->text()
                                                : QString()));
    }
  }
  return faults;
}

std::vector<std::string> needlessScrollBars(const QWidget& window) {
  std::vector<std::string> faults;
  const bool room = window.height() + windowFrame < window.screen()->availableGeometry().height();
  for (const QAbstractScrollArea* area : window.findChildren<QAbstractScrollArea*>()) {
    const QScrollBar& bar = *area->verticalScrollBar();
    if (!area->isVisible() || !bar.isVisible()) continue;
    const bool body = qobject_cast<const QScrollArea*>(area) != nullptr;
    if (body ? room : bar.maximum() == bar.minimum())
      faults.push_back("needless scroll bar: " + described(*area, QString::number(bar.maximum())));
  }
  return faults;
}

std::vector<std::string> sharedAccessKeys(const QWidget& window) {
  std::map<QString, QStringList> captions;
  const auto add = [&captions](const QString& caption) {
    if (const QKeySequence key = QKeySequence::mnemonic(caption); !key.isEmpty())
      captions[key.toString()].append(caption);
  };
  for (const QWidget* widget : shownWidgets(window)) {
    if (const auto* label = qobject_cast<const QLabel*>(widget); label != nullptr && label->buddy() != nullptr)
      add(label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) add(button->text());
  }
  std::vector<std::string> faults;
  for (const auto& [key, named] : captions)
    if (named.size() > 1)
      faults.push_back("shared key " + key.toStdString() + ": " + named.join(QStringLiteral(", ")).toStdString());
  return faults;
}

std::vector<std::string> overfullRows(const Screen& screen) {
  std::vector<std::string> faults;
  const int wanted = screen.preferredWidth();
  findOverfull(screen.layout(), wanted > 0 ? std::min(wanted, measures::columns) : measures::columns, faults);
  return faults;
}

std::vector<std::string> unreachable(QtHost& host, Screen& screen) {
  std::vector<std::string> faults;
  for (const Control* control : screen.controls()) {
    if (!control->takesFocus() || !control->enabled() || !control->visible()) continue;
    const QWidget* const widget = widgetOf(*control);
    if (widget == nullptr) {
      faults.push_back("no widget: " + control->name());
    } else if (widget->accessibleName().trimmed().isEmpty()) {
      faults.push_back("no accessible name: " + control->name());
    }
  }
  const auto order = screen.tabOrder();
  std::set<const Control*> met;
  for (std::size_t step = 0; step < order.size(); ++step) {
    screen.focusNext();
    QCoreApplication::processEvents();
    if (screen.focused() != nullptr) met.insert(screen.focused());
    const QWidget* const widget = screen.focused() == nullptr ? nullptr : widgetOf(*screen.focused());
    if (widget != nullptr && !widget->isVisible())
      faults.push_back("focus on what is not seen: " + screen.focused()->name());
  }
  for (const Control* control : order)
    if (!met.contains(control)) faults.push_back("Tab does not reach " + control->name());
  static_cast<void>(host);
  return faults;
}

std::vector<std::string> faultsOf(QtHost& host, Screen& screen) {
  QWidget& window = *windowOf(screen);
  std::vector<std::string> faults = unreachable(host, screen);
  const auto add = [&faults](const std::vector<std::string>& more) {
    faults.insert(faults.end(), more.begin(), more.end());
  };
  const auto look = [&] {
    QCoreApplication::processEvents();
    add(cutTexts(window));
    add(overlaps(window));
    add(needlessScrollBars(window));
    add(sharedAccessKeys(window));
  };
  add(overfullRows(screen));
  const auto strips = window.findChildren<QTabWidget*>();
  if (strips.isEmpty()) look();
  for (QTabWidget* const strip : strips)
    for (int tab = 0; tab < strip->count(); ++tab) {
      if (!strip->isTabVisible(tab)) continue;
      strip->setCurrentIndex(tab);
      look();
    }
  return faults;
}

}  // namespace fenvale::qt

#include "platform/ui/qt/Probe.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QTreeView>

#include "platform/ui/Control.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

const QtHost& hostOf(const Screen& screen) { return dynamic_cast<const QtHost&>(screen.host()); }

void mouse(QWidget& widget, const QPoint& place, Qt::MouseButton button) {
  const QPointer<QWidget> target(&widget);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    if (target == nullptr) return;
    if (type == QEvent::MouseButtonPress && (widget.focusPolicy() & Qt::ClickFocus) != 0)
      widget.setFocus(Qt::MouseFocusReason);
    const auto held = type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::MouseButtons();
    QMouseEvent event(type, place, widget.mapToGlobal(QPointF(place)), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
  }
}

}  // namespace

QWidget* widgetOf(const Control& control) { return hostOf(control.screen()).widgetOf(control); }
QWidget* windowOf(const Screen& screen) { return hostOf(screen).windowOf(screen); }

void press(QtHost& host, int key, Qt::KeyboardModifiers modifiers, const std::string& text) {
  QWidget* window = QApplication::activePopupWidget();
  if (window == nullptr) window = host.topWindow();
  if (window == nullptr) return;
  const QPointer<QWidget> target(window->focusWidget() != nullptr ? window->focusWidget() : window);
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, modifiers, toQt(text));
    if (target != nullptr) QCoreApplication::sendEvent(target, &event);
  }
  QCoreApplication::processEvents();
}

void type(QtHost& host, std::string_view text) {
  for (const QChar letter : toQt(text)) {
    const int key = letter.unicode() < 128 ? int{letter.toUpper().unicode()} : int{Qt::Key_unknown};
    press(host, key, letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, fromQt(QString(letter)));
  }
}

void click(Control& control, Qt::MouseButton button) {
  QWidget* const widget = widgetOf(control);
  if (widget == nullptr) return;
  mouse(*widget, widget->rect().center(), button);
  QCoreApplication::processEvents();
}

void clickRow(Control& list, int row, Qt::MouseButton button) {
  auto* const view = qobject_cast<QAbstractItemView*>(widgetOf(list));
  if (view == nullptr) return;
  const auto* const tree = qobject_cast<const QTreeView*>(view);
  int column = 0;
  while (tree != nullptr && column + 1 < view->model()->columnCount() && tree->isColumnHidden(column)) ++column;
  const QModelIndex index = view->model()->index(row, column);
  view->scrollTo(index);
  view->setFocus(Qt::MouseFocusReason);
  mouse(*view->viewport(), view->visualRect(index).center(), button);
  QCoreApplication::processEvents();
}

void whenOpened(QtHost& host, std::function<void()> act) {
  auto* const watch = new QTimer(&host);
  watch->setInterval(0);
  QObject::connect(watch, &QTimer::timeout, &host, [&host, watch, before = host.topWindow(), act = std::move(act)] {
    if (host.topWindow() == nullptr || host.topWindow() == before) return;
    watch->stop();
    watch->deleteLater();
    host.enter(act);
  });
  watch->start();
}

bool grab(QtHost& host, const std::string& path) {
  return host.topWindow() != nullptr && host.topWindow()->grab().save(toQt(path), "PNG");
}

bool grab(const Screen& screen, const std::string& path) {
  QWidget* const window = windowOf(screen);
  return window != nullptr && window->grab().save(toQt(path), "PNG");
}

}  // namespace fenvale::qt

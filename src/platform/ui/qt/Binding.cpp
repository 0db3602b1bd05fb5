#include "platform/ui/qt/Binding.h"

#include <QAbstractItemView>
#include <QEvent>

#include "platform/ui/Screen.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/ScreenWindow.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {

Binding::Binding(QtHost& host, Control& control, QWidget& widget)
    : QObject(&widget), host_(host), control_(&control), widget_(widget), shell_(&widget) {
  control.attach(*this);
  widget.setObjectName(widget.objectName().isEmpty() ? toQt(control.name()) : widget.objectName());
  widget.installEventFilter(this);
}

Binding::~Binding() {
  // No letGo(): what it would stop belonged to the derived part, which is gone.
  if (control_ != nullptr) control_->detach(*this);
}

void Binding::release() {
  if (control_ == nullptr) return;
  control_->detach(*this);
  controlGone();
}

void Binding::controlGone() {
  control_ = nullptr;
  letGo();
}

void Binding::setShell(QWidget& shell) {
  // The shell speaks for both from here on; what was set on the widget itself would outlast it.
  widget_.setEnabled(true);
  if (widget_.parentWidget() != nullptr) widget_.setVisible(true);
  shell_ = &shell;
  showEnabled();
  showVisible();
}

void Binding::enter(const std::function<void()>& call) {
  if (control_ != nullptr) host_.enter(call);
}

void Binding::refreshAll() {
  showEnabled();
  showVisible();
  showWrong();
  showNames();
  for (const Aspect aspect : {Aspect::columns, Aspect::items, Aspect::range, Aspect::caption, Aspect::locked,
                              Aspect::content, Aspect::selection})
    refresh(aspect);
}

void Binding::controlChanged(Aspect aspect) {
  switch (aspect) {
    case Aspect::enabled:
      showEnabled();
      break;
    case Aspect::visible:
      showVisible();
      break;
    case Aspect::wrong:
      showWrong();
      break;
    case Aspect::toolTip:
      showNames();
      break;
    case Aspect::caption:
      showNames();
      refresh(aspect);
      break;
    default:
      refresh(aspect);
  }
}

void Binding::showEnabled() { shell_->setEnabled(control_->enabled()); }

void Binding::showVisible() {
  // Without a place yet it would open a window of its own; it is seen with the one that it is put into.
  if (shell_->parentWidget() != nullptr || !control_->visible()) shell_->setVisible(control_->visible());
  if (auto* window = dynamic_cast<ScreenWindow*>(widget_.window())) window->controlVisibilityChanged();
}

void Binding::showWrong() { setStyleProperty(widget_, "wrong", control_->wrong()); }

void Binding::showNames() {
  if (!control_->label().empty()) widget_.setAccessibleName(spokenName(control_->label()));
  if (control_->toolTip().empty()) return;
  widget_.setToolTip(toQt(control_->toolTip()));
  widget_.setAccessibleDescription(toQt(control_->toolTip()));
}

bool Binding::eventFilter(QObject* watched, QEvent* event) {
  if (control_ == nullptr) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::FocusOut) commit();
  if (event->type() == QEvent::FocusIn && control_ != nullptr && control_->screen().focused() != control_ &&
      control_->takesFocus()) {
    if (auto* const window = dynamic_cast<ScreenWindow*>(widget_.window())) window->bringIntoView(widget_);
    enter([this] { control_->screen().userFocus(*control_); });
  }
  // A wheel that scrolls the screen must not turn the values it passes over.
  if (event->type() == QEvent::Wheel && !widget_.hasFocus() && qobject_cast<QAbstractItemView*>(&widget_) == nullptr) {
    event->ignore();
    return true;
  }
  return QObject::eventFilter(watched, event);
}

void setStyleProperty(QWidget& widget, const char* name, bool value) {
  if (widget.property(name).toBool() == value) return;
  widget.setProperty(name, value);
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
  widget.update();
}

}  // namespace fenvale::qt

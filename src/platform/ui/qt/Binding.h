#pragma once
// The tie between a control and the widget that shows it. It belongs to the widget and lets go of the control with it;
// when the control goes first, the widget stays behind as a lifeless picture until the toolkit is done with it.

#include <QObject>
#include <functional>

#include "platform/ui/Control.h"

class QWidget;

namespace fenvale::qt {

class QtHost;

class Binding : public QObject, public ControlView {
 public:
  /// `widget` is what the keyboard's focus goes to.
  Binding(QtHost& host, Control& control, QWidget& widget);
  ~Binding() override;

  QWidget& widget() const { return widget_; }
  Control* anyControl() const { return control_; }
  /// What is hidden with the control: the field with its label, when it has one.
  void setShell(QWidget& shell);
  QWidget& shell() const { return *shell_; }
  /// Lets go of the control for good.
  void release();
  /// Hands over what was typed and not yet taken, as on leaving the box.
  virtual void commit() {}
  /// The keyboard has arrived otherwise than by the mouse.
  virtual void focusGiven() {}

  void controlChanged(Aspect aspect) final;
  void controlGone() final;
  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  /// Brings the widget up to date. Called for every aspect but those that all controls share.
  virtual void refresh(Aspect aspect) = 0;
  /// Shows the control for the first time; to be called at the end of the constructor of each kind.
  void refreshAll();
  /// The control is out of reach from now on: nothing of it may be shown any more.
  virtual void letGo() {}
  /// Runs a call into the control, if it is still there.
  void enter(const std::function<void()>& call);
  QtHost& host() const { return host_; }

 private:
  void showEnabled();
  void showVisible();
  void showWrong();
  void showNames();

  QtHost& host_;
  Control* control_;
  QWidget& widget_;
  QWidget* shell_;
};

/// A binding that knows the kind of its control.
template <typename Kind, typename Widget>
class BindingOf : public Binding {
 public:
  BindingOf(QtHost& host, Kind& control, Widget& widget) : Binding(host, control, widget), view_(widget) {}

 protected:
  Kind& control() const { return static_cast<Kind&>(*anyControl()); }
  Widget& view() const { return view_; }

 private:
  Widget& view_;
};

/// Sets a property that the style sheet looks at.
void setStyleProperty(QWidget& widget, const char* name, bool value);

}  // namespace fenvale::qt

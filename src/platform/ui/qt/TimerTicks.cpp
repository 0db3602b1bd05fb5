#include "platform/ui/qt/TimerTicks.h"

#include <QWidget>

#include "platform/ui/qt/QtHost.h"

namespace fenvale::qt {

TimerTicks::TimerTicks(QtHost& host, Timer& control, QWidget& window) : BindingOf(host, control, window) {
  connect(&timer_, &QTimer::timeout, this, [this] { enter([this] { this->control().tick(); }); });
  refresh(Aspect::content);
}

void TimerTicks::refresh(Aspect) {
  if (control().interval() > 0) {
    timer_.start(control().interval());
  } else {
    timer_.stop();
  }
}

}  // namespace fenvale::qt

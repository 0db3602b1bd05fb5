#pragma once

#include <QTimer>

#include "platform/ui/Choices.h"
#include "platform/ui/qt/Binding.h"

namespace fenvale::qt {

/// Runs a screen's timer while its window stands.
class TimerTicks final : public BindingOf<Timer, QWidget> {
 public:
  TimerTicks(QtHost& host, Timer& control, QWidget& window);

 protected:
  void letGo() override { timer_.stop(); }
  void refresh(Aspect aspect) override;

 private:
  QTimer timer_;
};

}  // namespace fenvale::qt

#pragma once
// Stands where a window would: sees every change of a control at the moment it happens.

#include <functional>
#include <utility>

#include "platform/ui/Control.h"

namespace fenvale {

/// Sees every change of a control.
class Espia final : public ControlView {
 public:
  Espia(Control& control, std::function<void()> ver) : control_(control), ver_(std::move(ver)) {
    control.attach(*this);
  }
  ~Espia() override { control_.detach(*this); }
  Espia(const Espia&) = delete;
  Espia& operator=(const Espia&) = delete;
  void controlChanged(Aspect) override { ver_(); }

 private:
  Control& control_;
  std::function<void()> ver_;
};

}  // namespace fenvale

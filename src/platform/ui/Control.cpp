#include "platform/ui/Control.h"

#include "platform/ui/Screen.h"

namespace fenvale {

Control::Control(Screen& owner, std::string name) : screen_(owner), name_(std::move(name)) { screen_.add(*this); }
Control::~Control() {
  if (view_ != nullptr) view_->controlGone();
  screen_.remove(*this);
}

void Control::reset(Date) {}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed(Aspect::enabled);
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed(Aspect::visible);
}

void Control::setLabel(std::string label) {
  label_ = std::move(label);
  changed(Aspect::caption);
}

void Control::setToolTip(std::string toolTip) {
  toolTip_ = std::move(toolTip);
  changed(Aspect::toolTip);
}

void Control::markWrong() {
  wrong_ = true;
  changed(Aspect::wrong);
}

void Control::setFocus() { screen_.setFocus(*this); }
bool Control::hasFocus() const { return screen_.focused() == this; }
bool Control::acceptsInput() const { return enabled_ && visible_ && screen_.enabled(); }

void Control::changed(Aspect aspect) {
  if (wrong_ && aspect == Aspect::content) {
    wrong_ = false;
    if (view_ != nullptr) view_->controlChanged(Aspect::wrong);
  }
  if (view_ != nullptr) view_->controlChanged(aspect);
}

void Control::raise(const std::function<void()>& handler) {
  if (handler) screen_.guarded(handler);
}

}  // namespace fenvale

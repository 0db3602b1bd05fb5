#include "platform/ui/Screen.h"

#include <algorithm>
#include <iterator>

#include "platform/base/Error.h"
#include "platform/ui/Control.h"
#include "platform/ui/UiHost.h"

namespace fenvale {
namespace {

/// The controls that take the keyboard, in reading order, each with whether Tab stops at it.
struct Stop {
  Control* control;
  bool byTab;
};

void collect(const LayoutNode& node, std::vector<Stop>& stops) {
  if (node.control != nullptr && node.control->takesFocus()) stops.push_back({node.control, true});
  // The keys of a lookup box do what its buttons do; stops at them too would double the way through an invoice.
  const bool byTab = node.control == nullptr || node.control->kind() != ControlKind::lookupBox;
  for (Control* control : node.beside)
    if (control->takesFocus()) stops.push_back({control, byTab});
  for (const LayoutNode& child : node.children) collect(child, stops);
}

bool stopsNow(const Stop& stop) { return stop.byTab && stop.control->enabled() && stop.control->visible(); }

/// The next stop behind the one that has the keyboard, round the end; from one that Tab passes over, too.
template <typename Iterator>
Control* nextStop(Iterator begin, Iterator end, const Control* focused) {
  const auto here = std::find_if(begin, end, [focused](const Stop& stop) { return stop.control == focused; });
  auto next = here == end ? end : std::find_if(std::next(here), end, stopsNow);
  if (next == end) next = std::find_if(begin, end, stopsNow);
  return next == end ? nullptr : next->control;
}

}  // namespace

Screen::Screen(UiHost& host, std::string name, ScreenStyle style)
    : host_(host), name_(std::move(name)), style_(style) {}

Screen::~Screen() {
  // A screen that dies while it is shown, as when a failure passes through, must not leave a window behind.
  if (state_ == State::loaded) host_.close(*this);
}

void Screen::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed();
}

void Screen::setTitle(std::string title) {
  title_ = std::move(title);
  changed();
}

void Screen::setNote(std::string note) {
  note_ = std::move(note);
  changed();
}

void Screen::setEnabled(bool enabled) {
  enabled_ = enabled;
  changed();
}

void Screen::setBackground(std::string picturePath) {
  background_ = std::move(picturePath);
  changed();
}

void Screen::setLayout(std::vector<LayoutNode> nodes) {
  layout_.children = std::move(nodes);
  changed();
}

void Screen::setPreferredSize(int width, int height) {
  preferredWidth_ = width;
  preferredHeight_ = height;
}

Control* Screen::control(std::string_view name) const {
  for (Control* candidate : controls_)
    if (candidate->name() == name) return candidate;
  return nullptr;
}

std::vector<Control*> Screen::tabOrder() const {
  std::vector<Stop> stops;
  collect(layout_, stops);
  std::vector<Control*> order;
  for (const Stop& stop : stops)
    if (stopsNow(stop)) order.push_back(stop.control);
  return order;
}

void Screen::ensureLoaded() {
  if (state_ != State::created) return;
  state_ = State::loaded;
  onLoad();
}

bool Screen::unload() {
  if (state_ != State::loaded || !onUnload()) return false;
  // onUnload may itself have unloaded the screen by another road.
  if (state_ != State::loaded) return true;
  state_ = State::unloaded;
  focused_ = nullptr;
  host_.close(*this);
  return true;
}

void Screen::setFocus(Control& control) {
  if (!control.enabled() || !control.visible()) return;
  moveFocus(&control);
  host_.focusChanged(control);
}

void Screen::userFocus(Control& control) {
  if (control.enabled() && control.visible()) moveFocus(&control);
}

void Screen::moveFocus(Control* control) {
  if (focused_ == control) return;
  Control* const previous = focused_;
  focused_ = control;
  if (previous != nullptr && previous->onLostFocus) guarded(previous->onLostFocus);
  // Leaving may have sent the focus elsewhere.
  if (focused_ == control && control != nullptr && control->onGotFocus) guarded(control->onGotFocus);
}

void Screen::focusNext() {
  std::vector<Stop> stops;
  collect(layout_, stops);
  if (Control* const next = nextStop(stops.begin(), stops.end(), focused_)) setFocus(*next);
}

void Screen::focusPrevious() {
  std::vector<Stop> stops;
  collect(layout_, stops);
  if (Control* const next = nextStop(stops.rbegin(), stops.rend(), focused_)) setFocus(*next);
}

void Screen::activate() {
  if (focused_ != nullptr) {
    host_.focusChanged(*focused_);
  } else {
    focusNext();
  }
}

bool Screen::userKey(Key key) {
  if (!enabled_ || state_ != State::loaded) return false;
  if (isFunctionKey(key) && focused_ != nullptr && focused_->onLostFocus) guarded(focused_->onLostFocus);
  bool dealtWith = false;
  guarded([&] { dealtWith = onKeyDown(key); });
  if (!dealtWith && focused_ != nullptr && focused_->onKeyDown && focused_->acceptsInput())
    guarded([&] { dealtWith = focused_->onKeyDown(key); });
  return dealtWith;
}

void Screen::userClose() {
  guarded([this] { unload(); });
}

void Screen::guarded(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const Error& failure) {
    host_.messageBox({BoxStyle::critical, BoxButtons::ok, "Norvane Sistemas", failure.description});
  }
}

void Screen::remove(Control& control) {
  std::erase(controls_, &control);
  if (focused_ == &control) focused_ = nullptr;
}

void Screen::changed() { host_.screenChanged(*this); }

}  // namespace fenvale

#include "platform/ui/test/TestHost.h"

#include <algorithm>

#include "platform/ui/Choices.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Screen.h"

namespace fenvale {
namespace {

const char* nameOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::plain:
      return "plain";
    case BoxStyle::critical:
      return "critical";
    case BoxStyle::question:
      return "question";
    case BoxStyle::exclamation:
      return "exclamation";
    case BoxStyle::information:
      return "information";
  }
  return "?";
}

std::string described(const MessageBox& box) {
  return std::string(nameOf(box.style)) + (box.buttons == BoxButtons::yesNo ? " yes/no" : " ok") + " box \"" +
         box.title + "\": \"" + box.text + "\"";
}

}  // namespace

void TestHost::expectBox(MessageBox box, BoxAnswer answer) {
  Step step{Step::Kind::box, std::move(box), answer, {}, {}, {}, {}};
  script_.push_back(std::move(step));
}

void TestHost::expectScreen(std::string name, std::function<void(Screen&)> act) {
  script_.push_back({Step::Kind::screen, {}, BoxAnswer::ok, std::move(name), {}, std::move(act), {}});
}

void TestHost::expectPopup(std::string menuName, std::string itemName) {
  script_.push_back({Step::Kind::popup, {}, BoxAnswer::ok, std::move(menuName), std::move(itemName), {}, {}});
}

void TestHost::then(std::function<void()> action) {
  script_.push_back({Step::Kind::action, {}, BoxAnswer::ok, {}, {}, {}, std::move(action)});
}

void TestHost::verify() const {
  for (const Step& step : script_) {
    if (step.kind == Step::Kind::box) throw Unexpected("never shown: " + described(step.box));
    if (step.kind == Step::Kind::screen) throw Unexpected("never opened: screen " + step.name);
    if (step.kind == Step::Kind::popup) throw Unexpected("never opened: pop-up menu " + step.name);
  }
}

TestHost::Step TestHost::next(Step::Kind kind, const std::string& happening) {
  while (!script_.empty() && script_.front().kind == Step::Kind::action) {
    const auto action = std::move(script_.front().action);
    script_.pop_front();
    action();
  }
  if (script_.empty()) throw Unexpected("unexpected " + happening + " at the end of the script");
  Step step = std::move(script_.front());
  script_.pop_front();
  if (step.kind != kind) {
    const std::string expected = step.kind == Step::Kind::box ? described(step.box) : "screen or menu " + step.name;
    throw Unexpected("unexpected " + happening + "\nexpected " + expected);
  }
  return step;
}

BoxAnswer TestHost::messageBox(const MessageBox& box) {
  boxes_.push_back(box);
  const Step step = next(Step::Kind::box, described(box));
  if (!(step.box == box)) throw Unexpected("unexpected " + described(box) + "\nexpected   " + described(step.box));
  const bool asks = box.buttons == BoxButtons::yesNo;
  if (asks == (step.answer == BoxAnswer::ok)) throw Unexpected("the answer does not fit " + described(box));
  return step.answer;
}

void TestHost::showModal(Screen& screen) {
  if (std::find(shown_.begin(), shown_.end(), &screen) != shown_.end()) {
    messageBox({BoxStyle::exclamation, BoxButtons::ok, "Norvane Sistemas", "Esta tela já está aberta."});
    return;
  }
  screen.ensureLoaded();
  if (screen.state() != Screen::State::loaded) return;
  const Step step = next(Step::Kind::screen, "screen " + screen.sGetName());
  if (step.name != screen.sGetName())
    throw Unexpected("unexpected screen " + screen.sGetName() + ", expected " + step.name);
  shown_.push_back(&screen);
  screen.activate();
  if (step.act) step.act(screen);
  if (screen.state() == Screen::State::loaded) throw Unexpected("screen " + screen.sGetName() + " was left open");
}

void TestHost::show(Screen& screen) {
  screen.ensureLoaded();
  if (screen.state() != Screen::State::loaded) return;
  if (std::find(shown_.begin(), shown_.end(), &screen) == shown_.end()) shown_.push_back(&screen);
  screen.activate();
}

void TestHost::close(Screen& screen) { std::erase(shown_, &screen); }
Screen* TestHost::activeScreen() const { return shown_.empty() ? nullptr : shown_.back(); }

void TestHost::popupMenu(PopupMenu& menu) {
  const Step step = next(Step::Kind::popup, "pop-up menu " + menu.name());
  if (step.name != menu.name()) throw Unexpected("unexpected pop-up menu " + menu.name() + ", expected " + step.name);
  if (step.item.empty()) return;
  if (!menu.reachable(step.item)) throw Unexpected("menu entry " + step.item + " cannot be chosen");
  menu.userChoose(step.item);
}

void TestHost::focusChanged(Control&) {}
void TestHost::screenChanged(Screen&) {}
void TestHost::doEvents() { ++eventsLetThrough_; }

void TestHost::sleep(std::chrono::milliseconds duration) {
  const auto before = elapsed_;
  elapsed_ += duration;
  for (Screen* screen : std::vector<Screen*>(shown_)) {
    for (Control* control : screen->controls()) {
      if (control->kind() != ControlKind::timer) continue;
      auto& timer = static_cast<Timer&>(*control);
      if (timer.interval() <= 0) continue;
      const auto ticks = elapsed_.count() / timer.interval() - before.count() / timer.interval();
      for (auto tick = ticks; tick > 0; --tick) timer.tick();
    }
  }
}

}  // namespace fenvale

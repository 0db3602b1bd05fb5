#pragma once
// Plays the person in front of the screen from a script: boxes are answered, modal screens are operated by a callback.
// Anything that the script does not expect next fails at once, by an exception that no handler of the program catches.
//
//   host.expectBox({BoxStyle::question, BoxButtons::yesNo, "Norvane Sistemas", "Confirma a remoção do registro?"},
//   BoxAnswer::yes); host.expectScreen("frmLocalizarCategorias", [](Screen& screen) { screen.userKey(Key::escape); });
//   screen.userKey(Key::f4);
//   host.verify();

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/ui/UiHost.h"

namespace fenvale {

class TestHost final : public UiHost {
 public:
  /// The failure of a test's script; it is no Error, so the program's own exits let it through.
  struct Unexpected : std::logic_error {
    using std::logic_error::logic_error;
  };

  void expectBox(MessageBox box, BoxAnswer answer = BoxAnswer::ok);
  /// `act` operates the screen and must leave it unloaded.
  void expectScreen(std::string name, std::function<void(Screen&)> act);
  /// The pop-up menu of that name opens and the entry is chosen; an empty entry closes it.
  void expectPopup(std::string menuName, std::string itemName);
  /// Something done between two expectations, right before the next one is met.
  void then(std::function<void()> action);
  /// Throws Unexpected when anything of the script is left.
  void verify() const;

  BoxAnswer messageBox(const MessageBox& box) override;
  void showModal(Screen& screen) override;
  void show(Screen& screen) override;
  void close(Screen& screen) override;
  Screen* activeScreen() const override;
  void popupMenu(PopupMenu& menu) override;
  void focusChanged(Control& control) override;
  void screenChanged(Screen& screen) override;
  void doEvents() override;
  /// Moves the test's time forward and runs the timers of the screens that are shown.
  void sleep(std::chrono::milliseconds duration) override;
  std::chrono::milliseconds elapsed() const override { return elapsed_; }
  void setPointer(Pointer pointer) override { pointer_ = pointer; }
  Pointer pointer() const override { return pointer_; }
  Size monitorSize() const override { return monitorSize_; }

  void setMonitorSize(Size size) { monitorSize_ = size; }
  void passTime(std::chrono::milliseconds duration) { elapsed_ += duration; }
  const std::vector<Screen*>& shown() const { return shown_; }
  int eventsLetThrough() const { return eventsLetThrough_; }
  /// Every box shown so far, in order.
  const std::vector<MessageBox>& boxes() const { return boxes_; }

 private:
  struct Step {
    enum class Kind { box, screen, popup, action } kind;
    MessageBox box;
    BoxAnswer answer = BoxAnswer::ok;
    std::string name;
    std::string item;
    std::function<void(Screen&)> act;
    std::function<void()> action;
  };
  Step next(Step::Kind kind, const std::string& happening);

  std::deque<Step> script_;
  std::vector<Screen*> shown_;
  std::vector<MessageBox> boxes_;
  std::chrono::milliseconds elapsed_{0};
  Pointer pointer_ = Pointer::normal;
  Size monitorSize_{1024, 768};
  int eventsLetThrough_ = 0;
};

}  // namespace fenvale

#pragma once
// What a toolkit must do for the screens. One implementation shows real windows, another plays a test's script.

#include <chrono>
#include <cstdint>
#include <string>

namespace fenvale {

class Control;
class PopupMenu;
class Screen;

enum class BoxStyle { plain, critical, question, exclamation, information };
enum class BoxButtons { ok, yesNo };
enum class BoxAnswer { ok, yes, no };

struct MessageBox {
  BoxStyle style = BoxStyle::plain;
  BoxButtons buttons = BoxButtons::ok;
  std::string title;
  std::string text;  ///< lines joined by CR LF
  bool operator==(const MessageBox&) const = default;
};

enum class Pointer { normal, hourglass };

struct Size {
  int width = 0;
  int height = 0;
};

class UiHost {
 public:
  virtual ~UiHost() = default;

  /// Waits for the answer. Closing the box otherwise than by a button answers no, or ok where there is no other.
  virtual BoxAnswer messageBox(const MessageBox& box) = 0;

  /// Loads the screen if it is not, shows it over the others and returns when it was unloaded. A screen that is open
  /// already is not opened again: one sentence says so.
  virtual void showModal(Screen& screen) = 0;
  /// Shows it and returns: the main window, the splash and the waiting screen.
  virtual void show(Screen& screen) = 0;
  /// Takes the screen's view away. Called by Screen::unload only.
  virtual void close(Screen& screen) = 0;
  /// The screen on top, or nothing.
  virtual Screen* activeScreen() const = 0;

  virtual void popupMenu(PopupMenu& menu) = 0;
  /// Gives the view of a control the keyboard. Called by Screen::setFocus only.
  virtual void focusChanged(Control& control) = 0;
  /// Told of a change of a screen's caption, title, status, enabled state or size.
  virtual void screenChanged(Screen& screen) = 0;

  /// Lets pending events run: paints and timers, no input.
  virtual void doEvents() = 0;
  virtual void sleep(std::chrono::milliseconds duration) = 0;
  /// Milliseconds of a clock that only goes forward, for waits and durations.
  virtual std::chrono::milliseconds elapsed() const = 0;
  virtual void setPointer(Pointer pointer) = 0;
  virtual Pointer pointer() const = 0;
  /// In pixels.
  virtual Size monitorSize() const = 0;
};

}  // namespace fenvale

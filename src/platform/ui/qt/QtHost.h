#pragma once
// Shows the screens in real windows. It needs a QApplication that outlives it.
//
// Screens call the host and the host calls the screens, in turns, as deep as windows stand over one another. Nothing
// that a screen throws passes through the toolkit's own frames: every call into a screen goes through enter(), which
// keeps the failure and ends the innermost wait; the wait throws it on, to whoever called the host.

#include <QObject>
#include <QPointer>
#include <QString>
#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/ui/UiHost.h"
#include "platform/ui/qt/Icons.h"
#include "platform/ui/qt/Theme.h"

class QEventLoop;
class QKeyEvent;
class QWidget;

namespace fenvale::qt {

class Binding;
class BoxWindow;
class ScreenWindow;

struct HostOptions {
  QString iconFolder;              ///< <name>.svg files
  QString geometryFile;            ///< where the sizes that the user gave the windows are kept; empty keeps none
  std::optional<Scheme> scheme{};  ///< the system's when not given
  bool immediate = false;          ///< waits take no time: their duration is added to elapsed() instead
};

class QtHost final : public QObject, public UiHost {
 public:
  explicit QtHost(HostOptions options);
  ~QtHost() override;

  BoxAnswer messageBox(const MessageBox& box) override;
  void showModal(Screen& screen) override;
  void show(Screen& screen) override;
  void close(Screen& screen) override;
  Screen* activeScreen() const override;
  void popupMenu(PopupMenu& menu) override;
  void focusChanged(Control& control) override;
  void screenChanged(Screen& screen) override;
  void doEvents() override;
  void sleep(std::chrono::milliseconds duration) override;
  std::chrono::milliseconds elapsed() const override;
  void setPointer(Pointer pointer) override;
  Pointer pointer() const override { return pointer_; }
  Size monitorSize() const override;

  /// The main event loop: returns once the screen's window was taken away. Throws what a screen let out.
  void run(Screen& mainScreen);

  /// Runs a call into a screen from an event of the toolkit. What it throws is kept for the wait below it.
  void enter(const std::function<void()>& call);
  /// A command is letting pending events run: nothing of the person's may come in now.
  bool letsEventsThrough() const { return !waits_.empty() && waits_.back() == nullptr; }
  /// Throws a failure that was kept while no wait was there to throw it.
  void throwKept();

  void setScheme(Scheme scheme);
  const Theme& theme() const { return theme_; }
  const Icons& icons() const { return icons_; }
  const HostOptions& options() const { return options_; }

  /// The box that waits for an answer, or nothing.
  const MessageBox* openBox() const;
  /// The window on top that takes the input: of a screen or of a box. Nothing when there is none.
  QWidget* topWindow() const;
  QWidget* windowOf(const Screen& screen) const;
  /// The widget that takes a control's input; nothing when its screen is not shown or the layout leaves it out.
  QWidget* widgetOf(const Control& control) const;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Shown {
    Screen* screen;
    QPointer<ScreenWindow> window;
    QEventLoop* loop;
  };
  Shown* find(const Screen& screen);
  const Shown* find(const Screen& screen) const;
  ScreenWindow& open(Screen& screen);
  void wait(QEventLoop& loop);
  void waitFor(Screen& screen);
  bool admits(const QWidget& widget) const;
  bool screenKey(ScreenWindow& window, const QKeyEvent& event);
  bool afterScreenKey(ScreenWindow& window, const QKeyEvent& event);
  void applyTheme();
  void showBusy(bool busy);

  HostOptions options_;
  Theme theme_;
  Icons icons_;
  std::vector<Shown> shown_;
  std::vector<BoxWindow*> boxes_;
  std::vector<QWidget*> stack_;     ///< windows of screens and boxes in the order in which they were opened
  std::vector<QEventLoop*> waits_;  ///< the innermost last; nothing stands for a pump of pending events
  std::exception_ptr kept_;
  std::chrono::milliseconds skipped_{0};
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  Pointer pointer_ = Pointer::normal;
  bool busyShown_ = false;
};

}  // namespace fenvale::qt

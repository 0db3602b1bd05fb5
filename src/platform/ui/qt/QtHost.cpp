#include "platform/ui/qt/QtHost.h"

#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <string>

#include "platform/ui/Control.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/BoxWindow.h"
#include "platform/ui/qt/HouseStyle.h"
#include "platform/ui/qt/KeyMap.h"
#include "platform/ui/qt/MenuViews.h"
#include "platform/ui/qt/Portuguese.h"
#include "platform/ui/qt/ScreenWindow.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

QAction* firstEnabled(const QMenu& menu) {
  const QList<QAction*> actions = menu.actions();
  const auto found = std::find_if(actions.begin(), actions.end(),
                                  [](const QAction* action) { return action->isEnabled() && !action->isSeparator(); });
  return found == actions.end() ? nullptr : *found;
}

}  // namespace

QtHost::QtHost(HostOptions options)
    : options_(std::move(options)),
      theme_(options_.scheme.value_or(systemScheme())),
      icons_(options_.iconFolder, theme_) {
  speakPortuguese();
  applyTheme();
  qApp->installEventFilter(this);
}

QtHost::~QtHost() {
  qApp->removeEventFilter(this);
  for (const Shown& shown : shown_) delete shown.window.data();
  showBusy(false);
  // Windows that were closed when no event loop was there to delete them.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  // The style draws by this host's theme.
  qApp->setStyleSheet({});
  QApplication::setStyle(QStringLiteral("Fusion"));
}

void QtHost::applyTheme() {
  icons_.setTheme(theme_);
  QApplication::setStyle(new HouseStyle(theme_));
  QApplication::setPalette(theme_.palette());
  QApplication::setFont(theme_.baseFont());
  qApp->setStyleSheet(theme_.styleSheet());
}

void QtHost::setScheme(Scheme scheme) {
  theme_ = Theme(scheme);
  applyTheme();
  for (const Shown& shown : shown_) shown.window->themeChanged();
}

void QtHost::enter(const std::function<void()>& call) {
  if (kept_) return;
  try {
    call();
  } catch (...) {  // kept, not swallowed: the wait that ends now throws it on
    kept_ = std::current_exception();
    if (!waits_.empty() && waits_.back() != nullptr) waits_.back()->quit();
  }
}

void QtHost::throwKept() {
  if (kept_) std::rethrow_exception(std::exchange(kept_, nullptr));
}

void QtHost::wait(QEventLoop& loop) {
  // Whoever waits for a person is not busy.
  showBusy(false);
  waits_.push_back(&loop);
  loop.exec();
  waits_.pop_back();
  showBusy(pointer_ == Pointer::hourglass);
  throwKept();
}

QtHost::Shown* QtHost::find(const Screen& screen) {
  return const_cast<Shown*>(static_cast<const QtHost*>(this)->find(screen));
}

const QtHost::Shown* QtHost::find(const Screen& screen) const {
  for (const Shown& shown : shown_)
    if (shown.screen == &screen) return &shown;
  return nullptr;
}

BoxAnswer QtHost::messageBox(const MessageBox& box) {
  BoxWindow window(*this, box, topWindow());
  boxes_.push_back(&window);
  stack_.push_back(&window);
  const auto leave = [&](QWidget*) {
    std::erase(boxes_, &window);
    std::erase(stack_, &window);
    window.hide();
    if (QWidget* const top = topWindow()) top->activateWindow();
  };
  const std::unique_ptr<QWidget, decltype(leave)> leaving(&window, leave);
  QEventLoop loop;
  window.onAnswer = [&loop] { loop.quit(); };
  window.show();
  window.activateWindow();
  wait(loop);
  return window.answer();
}

ScreenWindow& QtHost::open(Screen& screen) {
  QWidget* const below = screen.style() == ScreenStyle::mainWindow ? nullptr : topWindow();
  auto* window = new ScreenWindow(*this, screen, below);
  shown_.push_back({&screen, window, nullptr});
  stack_.push_back(window);
  window->showPlaced();
  return *window;
}

void QtHost::showModal(Screen& screen) {
  if (find(screen) != nullptr) {
    messageBox({BoxStyle::exclamation, BoxButtons::ok, "Norvane Sistemas", "Esta tela já está aberta."});
    return;
  }
  screen.ensureLoaded();
  if (screen.state() != Screen::State::loaded) return;
  open(screen);
  // A failure that passes through takes the window with it.
  const auto leave = [this](Screen* left) { close(*left); };
  const std::unique_ptr<Screen, decltype(leave)> leaving(&screen, leave);
  screen.activate();
  waitFor(screen);
}

void QtHost::waitFor(Screen& screen) {
  Shown* shown = find(screen);
  if (shown == nullptr) return;
  QEventLoop loop;
  shown->loop = &loop;
  const auto leave = [&](QEventLoop*) {
    if (Shown* left = find(screen)) left->loop = nullptr;
  };
  const std::unique_ptr<QEventLoop, decltype(leave)> leaving(&loop, leave);
  wait(loop);
}

void QtHost::run(Screen& mainScreen) { waitFor(mainScreen); }

void QtHost::show(Screen& screen) {
  screen.ensureLoaded();
  if (screen.state() != Screen::State::loaded) return;
  if (find(screen) == nullptr) open(screen);
  screen.activate();
  doEvents();
}

void QtHost::close(Screen& screen) {
  Shown* shown = find(screen);
  if (shown == nullptr) return;
  ScreenWindow* const window = shown->window;
  QEventLoop* const loop = shown->loop;
  std::erase_if(shown_, [&](const Shown& one) { return one.screen == &screen; });
  std::erase(stack_, static_cast<QWidget*>(window));
  // The controls may be gone before the toolkit has come out of the event that closed the window.
  window->release();
  window->hide();
  window->deleteLater();
  if (loop != nullptr) loop->quit();
  if (QWidget* const top = topWindow()) top->activateWindow();
}

Screen* QtHost::activeScreen() const { return shown_.empty() ? nullptr : shown_.back().screen; }

void QtHost::popupMenu(PopupMenu& menu) {
  const Shown* const shown = find(menu.screen());
  if (shown == nullptr) return;
  std::string chosen;
  {
    QMenu view(shown->window);
    fillMenu(view, menu.items(), icons_, [&chosen](const std::string& name) { chosen = name; });
    QEventLoop loop;
    QObject::connect(&view, &QMenu::aboutToHide, &loop, &QEventLoop::quit);
    view.popup(shown->window->popupPlace());
    if (QGuiApplication::mouseButtons() == Qt::NoButton) view.setActiveAction(firstEnabled(view));
    wait(loop);
    // The entry is told right after the menu hides.
    QCoreApplication::sendPostedEvents(&view);
  }
  if (!chosen.empty()) menu.userChoose(chosen);
}

void QtHost::focusChanged(Control& control) {
  if (const Shown* const shown = find(control.screen())) shown->window->giveFocus(control);
}

void QtHost::screenChanged(Screen& screen) {
  if (const Shown* const shown = find(screen)) shown->window->screenChanged();
}

void QtHost::doEvents() {
  waits_.push_back(nullptr);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  waits_.pop_back();
  throwKept();
}

void QtHost::sleep(std::chrono::milliseconds duration) {
  if (options_.immediate) {
    skipped_ += duration;
    return;
  }
  QEventLoop loop;
  QTimer::singleShot(duration, Qt::PreciseTimer, &loop, [&loop] { loop.quit(); });
  waits_.push_back(&loop);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  waits_.pop_back();
  throwKept();
}

std::chrono::milliseconds QtHost::elapsed() const {
  return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start_) + skipped_;
}

void QtHost::setPointer(Pointer pointer) {
  pointer_ = pointer;
  showBusy(pointer == Pointer::hourglass);
}

void QtHost::showBusy(bool busy) {
  if (std::exchange(busyShown_, busy) == busy) return;
  if (busy) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

Size QtHost::monitorSize() const {
  const QScreen* const monitor = QGuiApplication::primaryScreen();
  const QSize size = monitor->size() * monitor->devicePixelRatio();
  return {size.width(), size.height()};
}

const MessageBox* QtHost::openBox() const { return boxes_.empty() ? nullptr : &boxes_.back()->box(); }
QWidget* QtHost::topWindow() const { return stack_.empty() ? nullptr : stack_.back(); }

QWidget* QtHost::windowOf(const Screen& screen) const {
  const Shown* const shown = find(screen);
  return shown == nullptr ? nullptr : shown->window.data();
}

QWidget* QtHost::widgetOf(const Control& control) const {
  const Shown* const shown = find(control.screen());
  return shown == nullptr ? nullptr : shown->window->widgetOf(control);
}

bool QtHost::admits(const QWidget& widget) const {
  const QWidget* const window = widget.window();
  if (window == topWindow()) {
    const Screen* const screen = activeScreen();
    return !boxes_.empty() || screen == nullptr || screen->enabled();
  }
  // Only the windows of this host wait below another; pop-ups and the toolkit's own dialogs stand above.
  return std::find(stack_.begin(), stack_.end(), window) == stack_.end();
}

bool QtHost::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWidgetType()) return false;
  auto* const widget = static_cast<QWidget*>(watched);
  if (isInput(event->type()) && !admits(*widget)) return true;
  if (event->type() == QEvent::WindowActivate && widget->isWindow() && widget != topWindow() &&
      std::find(stack_.begin(), stack_.end(), widget) != stack_.end()) {
    QMetaObject::invokeMethod(
        this,
        [this] {
          if (QWidget* const top = topWindow()) {
            top->raise();
            top->activateWindow();
          }
        },
        Qt::QueuedConnection);
  }
  if (event->type() != QEvent::KeyPress) return false;
  auto* const window = dynamic_cast<ScreenWindow*>(widget->window());
  if (window == nullptr || window->shown() == nullptr) return false;
  // A key that its receiver leaves alone comes again for each parent: the screen sees it once.
  const QWidget* const receiver = window->focusWidget() != nullptr ? window->focusWidget() : window;
  return widget == receiver && screenKey(*window, static_cast<QKeyEvent&>(*event));
}

bool QtHost::screenKey(ScreenWindow& window, const QKeyEvent& event) {
  const Key key = keyOf(event);
  if (key == Key::none) return false;
  if (isFunctionKey(key) || key == Key::enter || key == Key::tab || key == Key::escape ||
      event.key() == Qt::Key_Backtab)
    window.commitFocused();
  bool dealtWith = false;
  enter([&] {
    if (window.shown() != nullptr) dealtWith = window.shown()->userKey(key);
  });
  return dealtWith || window.shown() == nullptr || afterScreenKey(window, event);
}

bool QtHost::afterScreenKey(ScreenWindow& window, const QKeyEvent& event) {
  Screen& screen = *window.shown();
  if (event.key() == Qt::Key_Backtab) {
    enter([&] { screen.focusPrevious(); });
    return true;
  }
  switch (keyOf(event)) {
    case Key::tab:
      enter([&] { screen.focusNext(); });
      return true;
    case Key::escape:
      if (screen.style() == ScreenStyle::mainWindow) return false;
      enter([&] { screen.userClose(); });
      return true;
    case Key::enter:
      if (auto* const button = qobject_cast<QPushButton*>(window.focusWidget())) {
        button->click();
        return true;
      }
      return false;
    default:
      return false;
  }
}

}  // namespace fenvale::qt

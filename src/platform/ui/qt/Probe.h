#pragma once
// What a person does at the windows, for tests and for the tour: keys and clicks as the toolkit delivers them,
// pictures.

#include <Qt>
#include <functional>
#include <string>
#include <string_view>

class QWidget;

namespace fenvale {
class Control;
class Screen;
}  // namespace fenvale

namespace fenvale::qt {

class QtHost;

/// The widget that takes the control's input; nothing when its screen is not shown.
QWidget* widgetOf(const Control& control);
QWidget* windowOf(const Screen& screen);

/// A key to what has the focus in the window on top (of a screen or a box), then the events that follow from it.
/// `text` is what the key writes.
void press(QtHost& host, int key, Qt::KeyboardModifiers modifiers = {}, const std::string& text = {});
/// Each character as a key.
void type(QtHost& host, std::string_view text);
/// The left mouse button in the middle of the control.
void click(Control& control, Qt::MouseButton button = Qt::LeftButton);
/// On a row of a list: counted from 0.
void clickRow(Control& list, int row, Qt::MouseButton button = Qt::LeftButton);

/// Runs `act` as soon as a screen or a box other than the one now on top has come up and waits for the person.
void whenOpened(QtHost& host, std::function<void()> act);

/// The window on top as a PNG file. False when it could not be written.
bool grab(QtHost& host, const std::string& path);
bool grab(const Screen& screen, const std::string& path);

}  // namespace fenvale::qt

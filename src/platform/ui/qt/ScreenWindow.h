#pragma once
// The window of one screen: menu and toolbar where it has them, the title band, the body made of its layout, the foot.

#include <QPixmap>
#include <QWidget>
#include <map>
#include <vector>

#include "platform/ui/qt/LayoutBuilder.h"

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace fenvale {
class Control;
class Screen;
}  // namespace fenvale

namespace fenvale::qt {

class Binding;
class QtHost;

class ScreenWindow final : public QWidget {
 public:
  ScreenWindow(QtHost& host, Screen& screen, QWidget* below);
  ~ScreenWindow() override;

  /// Nothing once the window was released.
  Screen* shown() const { return screen_; }
  void showPlaced();
  /// Lets go of the screen and its controls.
  void release();

  void screenChanged();
  void themeChanged();
  void controlVisibilityChanged();
  /// The rules send the keyboard there: what the box holds is marked, to be typed over.
  void giveFocus(Control& control);
  void bringIntoView(QWidget& widget);
  /// Hands over what is typed in the focused box and not yet taken.
  void commitFocused();
  QWidget* widgetOf(const Control& control) const;
  /// Where a pop-up menu opens: at the pointer while a button of it is down; else somebody works by keys, and it opens
  /// under the row, or the box, that has the keyboard.
  QPoint popupPlace() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void addMenuAndTools(QVBoxLayout& column);
  void addBand(QVBoxLayout& column);
  void addBody(QVBoxLayout& column);
  void addFoot(QVBoxLayout& column);
  void addStatus(QVBoxLayout& column);
  void startTimers();
  void placeWithin(const QRect& available);
  QSize designedSize() const;
  void growToContent();
  void keepSize() const;
  void loadBackground();
  Binding* bindingOf(const Control& control) const;

  QtHost& host_;
  Screen* screen_;
  BuiltLayout built_;
  std::vector<QPointer<QObject>> bindings_;
  QWidget* band_ = nullptr;
  QLabel* title_ = nullptr;
  QLabel* note_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QWidget* body_ = nullptr;
  QSize designed_;
  QSize placedSize_;
  QString backgroundPath_;
  QPixmap background_;
  bool askedToClose_ = false;
};

}  // namespace fenvale::qt

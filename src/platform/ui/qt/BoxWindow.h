#pragma once
// A message box: the icon of its style, its text as it stands, buttons in Portuguese.

#include <QWidget>
#include <functional>

#include "platform/ui/UiHost.h"

class QHBoxLayout;
class QPushButton;

namespace fenvale::qt {

class QtHost;

class BoxWindow final : public QWidget {
 public:
  BoxWindow(QtHost& host, const MessageBox& box, QWidget* below);

  const MessageBox& box() const { return box_; }
  BoxAnswer answer() const { return answer_; }
  std::function<void()> onAnswer;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* textPart();
  void addButton(QHBoxLayout& row, const QString& caption, BoxAnswer answer);
  void give(BoxAnswer answer);

  QtHost& host_;
  MessageBox box_;
  BoxAnswer answer_;
  QPushButton* first_ = nullptr;
};

}  // namespace fenvale::qt

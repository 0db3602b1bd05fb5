#pragma once
// A control holds state and raises events; a view may be attached or not. The functions whose names begin with "user"
// are what a person does at it: views and tests call them, the rules never do.

#include <functional>
#include <string>
#include <string_view>

#include "platform/base/Date.h"
#include "platform/ui/Keys.h"

namespace fenvale {

class Control;
class Screen;

enum class ControlKind {
  textBox,
  codeBox,
  maskBox,
  moneyBox,
  numberBox,
  datePicker,
  comboBox,
  lookupBox,
  checkBox,
  optionButton,
  button,
  listView,
  treeView,
  pageScroll,
  progressBar,
  label,
  image,
  frame,
  tabStrip,
  popupMenu,
  menuBar,
  toolBar,
  statusBar,
  timer,
  driveList,
  folderTree,
  fileList,
};

/// What of a control has changed, for its view.
enum class Aspect { content, items, row, selection, columns, range, enabled, visible, caption, wrong, toolTip, locked };

/// The picture of one control on a screen.
class ControlView {
 public:
  virtual ~ControlView() = default;
  virtual void controlChanged(Aspect aspect) = 0;
  /// The control is being destroyed: it must not be touched any more.
  virtual void controlGone() {}
};

class Control {
 public:
  /// `name` is the control's name in the system ("txtNome"); the owner keeps the order of construction.
  Control(Screen& owner, std::string name);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind kind() const = 0;
  /// Back to the empty state that clearing a whole screen gives this kind; kinds without one are left alone.
  virtual void reset(Date today);
  /// Whether Tab can stop here at all.
  virtual bool takesFocus() const { return true; }

  const std::string& name() const { return name_; }
  Screen& screen() const { return screen_; }

  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  bool visible() const { return visible_; }
  void setVisible(bool visible);
  /// The text of the label beside the control, with "&" before its access key; also its accessible name.
  const std::string& label() const { return label_; }
  void setLabel(std::string label);
  const std::string& toolTip() const { return toolTip_; }
  void setToolTip(std::string toolTip);
  /// A red outline, until the control's content changes.
  bool wrong() const { return wrong_; }
  void markWrong();

  /// Gives the control the keyboard focus and raises the events of leaving and entering.
  void setFocus();
  bool hasFocus() const;

  std::function<void()> onGotFocus;
  std::function<void()> onLostFocus;
  /// True when the key is dealt with, so that nobody else sees it.
  std::function<bool(Key)> onKeyDown;

  /// Enabled and visible on a screen that takes input.
  bool acceptsInput() const;

  /// One view at a time. A view that goes away detaches itself.
  void attach(ControlView& view) { view_ = &view; }
  void detach(ControlView& view) {
    if (view_ == &view) view_ = nullptr;
  }

 protected:
  void changed(Aspect aspect);
  /// Runs a handler as the screen does: an Error that nobody has an exit for ends in one critical box.
  void raise(const std::function<void()>& handler);

 private:
  Screen& screen_;
  std::string name_;
  std::string label_;
  std::string toolTip_;
  bool enabled_ = true;
  bool visible_ = true;
  bool wrong_ = false;
  ControlView* view_ = nullptr;
};

}  // namespace fenvale

#pragma once
// A screen: named controls, their handlers, the tree of its layout, and a life of load, show and unload. It knows no
// toolkit; whoever shows it subscribes to its controls.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ui/Keys.h"
#include "platform/ui/Layout.h"

namespace fenvale {

class Control;
class UiHost;

/// How the window of a screen looks. All but the main one are closed by Esc unless the screen says otherwise.
enum class ScreenStyle { dialog, mainWindow, splash };

class Screen {
 public:
  enum class State { created, loaded, unloaded };

  Screen(UiHost& host, std::string name, ScreenStyle style = ScreenStyle::dialog);
  virtual ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  /// The screen's own source name, such as "frmCadastroClientes".
  const std::string& sGetName() const { return name_; }
  ScreenStyle style() const { return style_; }
  State state() const { return state_; }
  UiHost& host() const { return host_; }

  /// The window's caption.
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  /// The line in the band at the top; empty shows no band.
  const std::string& title() const { return title_; }
  void setTitle(std::string title);
  /// A muted note at the right end of the band ("Editando o registro 12").
  const std::string& note() const { return note_; }
  void setNote(std::string note);
  /// A screen that is not enabled takes no input.
  bool enabled() const { return enabled_; }
  void setEnabled(bool enabled);
  /// Picture behind the content (main window), a path.
  const std::string& background() const { return background_; }
  void setBackground(std::string picturePath);
  /// The size it would like to have, in grid units (width) and text lines (height); 0 leaves it to the content.
  int preferredWidth() const { return preferredWidth_; }
  int preferredHeight() const { return preferredHeight_; }

  /// In order of construction.
  const std::vector<Control*>& controls() const { return controls_; }
  /// Nothing when there is no such control.
  Control* control(std::string_view name) const;
  const LayoutNode& layout() const { return layout_; }
  /// The controls that Tab stops at now, in reading order of the layout. It passes over the buttons of a lookup box,
  /// whose own keys do the same.
  std::vector<Control*> tabOrder() const;

  /// Runs onLoad once, before the first showing or the first use of what it fills.
  void ensureLoaded();
  /// Asks onUnload, then takes the window away. False when onUnload kept it open or it is not there.
  bool unload();

  Control* focused() const { return focused_; }
  void setFocus(Control& control);
  /// For hosts: the person has gone to a control, whose view has the keyboard already.
  void userFocus(Control& control);
  /// To the next control in tab order, going round.
  void focusNext();
  void focusPrevious();

  /// A key as the keyboard gives it: the screen sees it before the control that has the focus. For a function key the
  /// focused box first reacts as on leaving, so that the command acts on what the boxes show. True when dealt with.
  bool userKey(Key key);
  /// The window's own close box.
  void userClose();
  /// For hosts: gives the first focus once the window stands, unless a handler has given it already.
  void activate();

  /// Runs `handler`; an Error that it lets out ends in one critical box with its description, and the screen stays.
  void guarded(const std::function<void()>& handler);

 protected:
  void setLayout(std::vector<LayoutNode> nodes);
  void setPreferredSize(int width, int height);

  virtual void onLoad() {}
  /// False keeps the screen open.
  virtual bool onUnload() { return true; }
  /// The screen's preview of the keyboard. True when dealt with.
  virtual bool onKeyDown(Key) { return false; }

 private:
  friend class Control;
  void add(Control& control) { controls_.push_back(&control); }
  void remove(Control& control);
  void moveFocus(Control* control);
  void changed();

  UiHost& host_;
  std::string name_;
  ScreenStyle style_;
  State state_ = State::created;
  std::string caption_, title_, note_, background_;
  bool enabled_ = true;
  int preferredWidth_ = 0, preferredHeight_ = 0;
  std::vector<Control*> controls_;
  LayoutNode layout_{LayoutNode::Kind::column, {}, nullptr, {}, 0, {}};
  Control* focused_ = nullptr;
};

}  // namespace fenvale

#pragma once
// Controls that are pressed, ticked or chosen from, and those that only show.

#include <cstdint>
#include <vector>

#include "platform/ui/Control.h"

namespace fenvale {

class Button final : public Control {
 public:
  /// `caption` with "&" before its access key; `icon` the name of a picture of the icon set, or empty.
  Button(Screen& owner, std::string name, std::string caption, std::string icon = {}, Key key = Key::none);
  ControlKind kind() const override { return ControlKind::button; }

  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  const std::string& icon() const { return icon_; }
  /// The key that the screen answers in the same way, shown in a muted tone; the screen itself listens to it.
  Key key() const { return key_; }
  /// The one button of the screen that is filled with the accent.
  bool primary() const { return primary_; }
  void setPrimary() { primary_ = true; }

  std::function<void()> onClick;
  void userClick();

 private:
  std::string caption_;
  std::string icon_;
  Key key_;
  bool primary_ = false;
};

class CheckBox final : public Control {
 public:
  CheckBox(Screen& owner, std::string name, std::string caption);
  ControlKind kind() const override { return ControlKind::checkBox; }
  void reset(Date) override { setChecked(false); }

  const std::string& caption() const { return caption_; }
  bool checked() const { return checked_; }
  void setChecked(bool checked);
  /// Shows a tick that the rules set and the person cannot change; keys still reach it.
  bool locked() const { return locked_; }
  void setLocked(bool locked);

  /// After a change of the tick, by the person or by the rules.
  std::function<void()> onClick;
  void userClick();

 private:
  std::string caption_;
  bool checked_ = false;
  bool locked_ = false;
};

/// One of several exclusive choices: those of one screen with the same group.
class OptionButton final : public Control {
 public:
  OptionButton(Screen& owner, std::string name, std::string caption, int group = 0);
  ControlKind kind() const override { return ControlKind::optionButton; }

  const std::string& caption() const { return caption_; }
  int group() const { return group_; }
  bool chosen() const { return chosen_; }
  /// Chooses it and unchooses the others of its group.
  void choose();

  std::function<void()> onClick;
  void userClick();
  /// The arrows: by `steps` to another of the group, in order of construction and round its ends. That one is chosen
  /// and has the focus.
  void userMove(int steps);

 private:
  std::string caption_;
  int group_;
  bool chosen_ = false;
};

/// A list of entries with a number behind each, and an entry line in which the choice shows.
class ComboBox final : public Control {
 public:
  struct Item {
    std::string text;
    std::int32_t data = 0;
  };

  using Control::Control;
  ControlKind kind() const override { return ControlKind::comboBox; }
  void reset(Date) override;

  const std::vector<Item>& items() const { return items_; }
  void addItem(std::string text, std::int32_t data = 0);
  void clear();
  /// -1 without a choice. Choosing shows the entry's text.
  int listIndex() const { return listIndex_; }
  void setListIndex(int index);
  /// The number behind the chosen entry; 0 without a choice.
  std::int32_t itemData() const;
  const std::string& text() const { return text_; }
  /// Leaves the choice alone when the text is an entry's, else unchooses.
  void setText(std::string text);
  /// The marked part of the text, in characters.
  std::size_t selectionStart() const { return selectionStart_; }
  std::size_t selectionLength() const { return selectionLength_; }
  void select(std::size_t start, std::size_t count);

  /// After another entry was chosen.
  std::function<void()> onClick;
  /// A typed character, before it enters the text. True when dealt with.
  std::function<bool(std::string_view character)> onKeyPress;

  void userChoose(int index);
  /// One typed character at the marked place. A text that begins no entry is refused.
  void userKeyPress(std::string_view character);

 private:
  std::vector<Item> items_;
  int listIndex_ = -1;
  std::string text_;
  std::size_t selectionStart_ = 0;
  std::size_t selectionLength_ = 0;
};

class Label final : public Control {
 public:
  enum class Style {
    plain,
    title,
    muted,
    help,
    link,
    total,  ///< a sum, at the right end of its place
  };
  Label(Screen& owner, std::string name, std::string caption = {}, Style style = Style::plain);
  ControlKind kind() const override { return ControlKind::label; }
  bool takesFocus() const override { return false; }
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  Style style() const { return style_; }

 private:
  std::string caption_;
  Style style_;
};

class Image final : public Control {
 public:
  using Control::Control;
  ControlKind kind() const override { return ControlKind::image; }
  bool takesFocus() const override { return false; }
  /// Path of a picture file; empty shows none.
  const std::string& picture() const { return picture_; }
  void setPicture(std::string path);
  /// Whether the screen is stretched to the picture, as far as the monitor goes; otherwise the picture is scaled down
  /// to the room there is. To be set before the screen shows.
  bool stretchesScreen() const { return stretchesScreen_; }
  void setStretchesScreen() { stretchesScreen_ = true; }
  std::function<void()> onClick;
  void userClick() { raise(onClick); }

 private:
  std::string picture_;
  bool stretchesScreen_ = false;
};

class ProgressBar final : public Control {
 public:
  using Control::Control;
  ControlKind kind() const override { return ControlKind::progressBar; }
  bool takesFocus() const override { return false; }
  void reset(Date) override;
  std::int32_t minimum() const { return minimum_; }
  std::int32_t maximum() const { return maximum_; }
  std::int32_t value() const { return value_; }
  void setMinimum(std::int32_t minimum);
  void setMaximum(std::int32_t maximum);
  void setValue(std::int32_t value);

 private:
  std::int32_t minimum_ = 0;
  std::int32_t maximum_ = 100;
  std::int32_t value_ = 0;
};

/// The page selector under a list: positions 0 to maximum().
class PageScroll final : public Control {
 public:
  using Control::Control;
  ControlKind kind() const override { return ControlKind::pageScroll; }
  std::int16_t maximum() const { return maximum_; }
  std::int16_t value() const { return value_; }
  /// Both raise onChange when they move the position.
  void setMaximum(std::int16_t maximum);
  void setValue(std::int16_t value);
  /// What stands beside it: "Página 2 · 250 registros".
  const std::string& summary() const { return summary_; }
  void setSummary(std::string summary);

  std::function<void()> onChange;
  void userMove(std::int16_t value);

 private:
  std::int16_t maximum_ = 0;
  std::int16_t value_ = 0;
  std::string summary_;
};

/// Ticks while its interval is above 0 and its screen is shown.
class Timer final : public Control {
 public:
  using Control::Control;
  ControlKind kind() const override { return ControlKind::timer; }
  bool takesFocus() const override { return false; }
  std::int32_t interval() const { return interval_; }
  /// Milliseconds; 0 stops it.
  void setInterval(std::int32_t milliseconds);
  std::function<void()> onTick;
  void tick() { raise(onTick); }

 private:
  std::int32_t interval_ = 0;
};

}  // namespace fenvale

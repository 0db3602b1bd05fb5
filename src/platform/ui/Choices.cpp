#include "platform/ui/Choices.h"

#include <algorithm>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/ui/Screen.h"

namespace fenvale {

Button::Button(Screen& owner, std::string name, std::string caption, std::string icon, Key key)
    : Control(owner, std::move(name)), caption_(std::move(caption)), icon_(std::move(icon)), key_(key) {}

void Button::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed(Aspect::caption);
}

void Button::userClick() {
  if (acceptsInput()) raise(onClick);
}

CheckBox::CheckBox(Screen& owner, std::string name, std::string caption)
    : Control(owner, std::move(name)), caption_(std::move(caption)) {}

void CheckBox::setChecked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  changed(Aspect::content);
  raise(onClick);
}

void CheckBox::setLocked(bool locked) {
  locked_ = locked;
  changed(Aspect::locked);
}

void CheckBox::userClick() {
  if (!acceptsInput()) return;
  // A view has already moved its own tick: it is told to show the control's again.
  if (locked_) return changed(Aspect::content);
  setChecked(!checked_);
}

OptionButton::OptionButton(Screen& owner, std::string name, std::string caption, int group)
    : Control(owner, std::move(name)), caption_(std::move(caption)), group_(group) {}

void OptionButton::choose() {
  if (chosen_) return;
  for (Control* control : screen().controls()) {
    if (control->kind() != ControlKind::optionButton) continue;
    auto& other = static_cast<OptionButton&>(*control);
    if (&other == this || other.group_ != group_ || !other.chosen_) continue;
    other.chosen_ = false;
    other.changed(Aspect::content);
  }
  chosen_ = true;
  changed(Aspect::content);
  raise(onClick);
}

void OptionButton::userClick() {
  if (acceptsInput()) choose();
}

void OptionButton::userMove(int steps) {
  std::vector<OptionButton*> group;
  for (Control* control : screen().controls()) {
    if (control->kind() != ControlKind::optionButton || !control->acceptsInput()) continue;
    if (auto& other = static_cast<OptionButton&>(*control); other.group_ == group_) group.push_back(&other);
  }
  const auto here = std::find(group.begin(), group.end(), this);
  if (here == group.end()) return;
  const auto count = static_cast<int>(group.size());
  const int place = (static_cast<int>(here - group.begin()) + steps) % count;
  OptionButton& there = *group[static_cast<std::size_t>((place + count) % count)];
  there.setFocus();
  there.choose();
}

void ComboBox::reset(Date) {
  setListIndex(-1);
  setText({});
}

void ComboBox::addItem(std::string text, std::int32_t data) {
  items_.push_back({std::move(text), data});
  changed(Aspect::items);
}

void ComboBox::clear() {
  items_.clear();
  listIndex_ = -1;
  text_.clear();
  select(0, 0);
  changed(Aspect::items);
}

void ComboBox::setListIndex(int index) {
  if (index < -1 || index >= static_cast<int>(items_.size()))
    throw Error(errors::invalidPropertyValue, "Item inexistente em " + name() + ".");
  const bool another = index != listIndex_;
  listIndex_ = index;
  text_ = index < 0 ? std::string() : items_[static_cast<std::size_t>(index)].text;
  changed(Aspect::content);
  if (another && index >= 0) raise(onClick);
}

std::int32_t ComboBox::itemData() const {
  return listIndex_ < 0 ? 0 : items_[static_cast<std::size_t>(listIndex_)].data;
}

void ComboBox::setText(std::string text) {
  text_ = std::move(text);
  if (listIndex_ >= 0 && items_[static_cast<std::size_t>(listIndex_)].text != text_) listIndex_ = -1;
  changed(Aspect::content);
}

void ComboBox::select(std::size_t start, std::size_t count) {
  selectionStart_ = start;
  selectionLength_ = count;
  changed(Aspect::selection);
}

void ComboBox::userChoose(int index) {
  if (acceptsInput()) raise([&] { setListIndex(index); });
}

void ComboBox::userKeyPress(std::string_view character) {
  if (!acceptsInput()) return;
  bool dealtWith = false;
  if (onKeyPress) raise([&] { dealtWith = onKeyPress(character); });
  if (dealtWith) return;
  const std::string typed =
      left(text_, selectionStart_) + std::string(character) + mid(text_, selectionStart_ + selectionLength_ + 1);
  const auto begins = [&](const Item& item) { return equalsNoCase(left(item.text, length(typed)), typed); };
  if (std::none_of(items_.begin(), items_.end(), begins)) return;
  const std::size_t caret = selectionStart_ + length(character);
  setText(typed);
  select(caret, 0);
}

Label::Label(Screen& owner, std::string name, std::string caption, Style style)
    : Control(owner, std::move(name)), caption_(std::move(caption)), style_(style) {}

void Label::setCaption(std::string caption) {
  caption_ = std::move(caption);
  changed(Aspect::caption);
}

void Image::setPicture(std::string path) {
  picture_ = std::move(path);
  changed(Aspect::content);
}

void ProgressBar::reset(Date) {
  setMinimum(0);
  setValue(0);
}

void ProgressBar::setMinimum(std::int32_t minimum) {
  minimum_ = minimum;
  changed(Aspect::range);
}

void ProgressBar::setMaximum(std::int32_t maximum) {
  maximum_ = maximum;
  value_ = std::min(value_, maximum_);
  changed(Aspect::range);
}

void ProgressBar::setValue(std::int32_t value) {
  if (value < minimum_ || value > maximum_)
    throw Error(errors::invalidPropertyValue, "Valor fora da faixa em " + name() + ".");
  value_ = value;
  changed(Aspect::content);
}

void PageScroll::setMaximum(std::int16_t maximum) {
  maximum_ = std::max<std::int16_t>(maximum, 0);
  changed(Aspect::range);
  if (value_ > maximum_) setValue(maximum_);
}

void PageScroll::setValue(std::int16_t value) {
  if (value < 0 || value > maximum_)
    throw Error(errors::invalidPropertyValue, "Posição fora da faixa em " + name() + ".");
  if (value == value_) return;
  value_ = value;
  changed(Aspect::content);
  raise(onChange);
}

void PageScroll::setSummary(std::string summary) {
  summary_ = std::move(summary);
  changed(Aspect::caption);
}

void PageScroll::userMove(std::int16_t value) {
  if (acceptsInput() && value >= 0 && value <= maximum_) setValue(value);
}

void Timer::setInterval(std::int32_t milliseconds) {
  interval_ = milliseconds;
  changed(Aspect::content);
}

}  // namespace fenvale

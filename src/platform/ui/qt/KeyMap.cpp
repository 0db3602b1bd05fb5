#include "platform/ui/qt/KeyMap.h"

#include <QKeyEvent>
#include <array>

namespace fenvale::qt {
namespace {

struct Pair {
  int from;
  Key to;
};

constexpr Pair pairs[] = {
    {Qt::Key_Tab, Key::tab},       {Qt::Key_Backtab, Key::tab},       {Qt::Key_Return, Key::enter},
    {Qt::Key_Enter, Key::enter},   {Qt::Key_Escape, Key::escape},     {Qt::Key_Space, Key::space},
    {Qt::Key_PageUp, Key::pageUp}, {Qt::Key_PageDown, Key::pageDown}, {Qt::Key_End, Key::end},
    {Qt::Key_Home, Key::home},     {Qt::Key_Left, Key::left},         {Qt::Key_Up, Key::up},
    {Qt::Key_Right, Key::right},   {Qt::Key_Down, Key::down},         {Qt::Key_Insert, Key::insert},
    {Qt::Key_Delete, Key::del},
};

}  // namespace

Key keyOf(const QKeyEvent& event) {
  const int key = event.key();
  if (key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
      key == Qt::Key_Meta)
    return Key::none;
  const auto modifiers = event.modifiers();
  if ((modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0) return Key::other;
  const bool shifted = (modifiers & Qt::ShiftModifier) != 0;
  if (shifted && (key == Qt::Key_Insert || key == Qt::Key_Delete)) return Key::other;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return static_cast<Key>(static_cast<int>(Key::f1) + (key - Qt::Key_F1));
  for (const Pair& pair : pairs)
    if (pair.from == key) return pair.to;
  return Key::other;
}

const char* nameOf(Key key) {
  static constexpr std::array functionKeys = {"F1", "F2", "F3", "F4",  "F5",  "F6",
                                              "F7", "F8", "F9", "F10", "F11", "F12"};
  if (isFunctionKey(key)) return functionKeys[static_cast<std::size_t>(key) - static_cast<std::size_t>(Key::f1)];
  switch (key) {
    case Key::escape:
      return "Esc";
    case Key::enter:
      return "Enter";
    case Key::space:
      return "Espaço";
    case Key::insert:
      return "Insert";
    case Key::del:
      return "Delete";
    default:
      return "";
  }
}

}  // namespace fenvale::qt

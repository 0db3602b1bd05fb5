#pragma once
// Keys and mouse buttons as the screens see them.

#include <cstdint>
#include <string>

namespace fenvale {

/// The values are the key codes that the rules name by number (Enter is 13, F3 is 114).
enum class Key : std::int16_t {
  none = 0,
  tab = 9,
  enter = 13,
  escape = 27,
  space = 32,
  pageUp = 33,
  pageDown = 34,
  end = 35,
  home = 36,
  left = 37,
  up = 38,
  right = 39,
  down = 40,
  insert = 45,
  del = 46,
  f1 = 112,
  f2,
  f3,
  f4,
  f5,
  f6,
  f7,
  f8,
  f9,
  f10,
  f11,
  f12,
  other = 255,
};

inline bool isFunctionKey(Key key) { return key >= Key::f1 && key <= Key::f12; }

enum class MouseButton : std::int16_t { left = 1, right = 2, middle = 4 };

}  // namespace fenvale

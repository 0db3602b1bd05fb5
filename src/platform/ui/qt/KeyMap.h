#pragma once

#include "platform/ui/Keys.h"

class QKeyEvent;

namespace fenvale::qt {

/// The key as the screens see it. Keys with Ctrl, Alt or Meta, and Shift with Insert and Delete (the clipboard's keys),
/// are Key::other; modifiers alone are Key::none.
Key keyOf(const QKeyEvent& event);

/// "F3", "Esc": how a key is written on a button; empty for Key::none.
const char* nameOf(Key key);

}  // namespace fenvale::qt

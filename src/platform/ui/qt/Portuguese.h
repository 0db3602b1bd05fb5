#pragma once

namespace fenvale::qt {

/// The toolkit's own texts (menus of boxes, calendars, system dialogs) in the language of the program, and its marks of
/// numbers and dates, whatever the machine's locale. May be called again.
void speakPortuguese();

}  // namespace fenvale::qt

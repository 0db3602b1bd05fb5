#pragma once
// All colours, fonts and measures of the windows, in one place. Everything that is drawn takes them from here.

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

namespace fenvale::qt {

enum class Scheme { light, dark };

struct Tokens {
  QColor window, band, base, alternate;
  QColor text, muted, line;
  QColor accent, onAccent;
  QColor lookup;   ///< boxes that are filled by a search
  QColor locked;   ///< boxes that only show
  QColor danger;   ///< the selected row, negative money, the outline of a wrong field
  QColor cursor;   ///< the row under the keyboard's cursor
  QColor hover;    ///< a plain button under the mouse
  QColor pressed;  ///< a plain button held down
  QColor accentHover;
  QColor disabledText;
  QColor thumb;  ///< the handle of a scroll bar
};

namespace measures {
inline constexpr int gap = 8;
inline constexpr int margin = 12;
inline constexpr int boxHeight = 28;
inline constexpr int rowHeight = 24;
inline constexpr int columns = 24;
/// A column of the grid with its gap, as a screen that has its designed size shows it.
inline constexpr int unit = 40;
inline constexpr int textLine = 22;
inline constexpr int icon = 16;
inline constexpr int toolIcon = 22;
inline constexpr int progressLine = 2;
}  // namespace measures

class Theme {
 public:
  explicit Theme(Scheme scheme);

  Scheme scheme() const { return scheme_; }
  const Tokens& tokens() const { return tokens_; }
  QPalette palette() const;
  QString styleSheet() const;

  const QFont& baseFont() const { return baseFont_; }
  const QFont& labelFont() const { return labelFont_; }
  const QFont& titleFont() const { return titleFont_; }
  const QFont& strongFont() const { return strongFont_; }
  const QFont& displayFont() const { return displayFont_; }
  /// All letters of one width.
  const QFont& fixedFont() const { return fixedFont_; }
  const QFont& strongFixedFont() const { return strongFixedFont_; }

  /// A colour of the rules (red in the low byte) as it reads on this scheme: 0 is the text's, 192 the dark red.
  QColor translated(std::int32_t colour) const;

 private:
  Scheme scheme_;
  Tokens tokens_;
  // Made once: asking the system which families it has takes longer than painting a cell.
  QFont baseFont_, labelFont_, titleFont_, strongFont_, displayFont_, fixedFont_, strongFixedFont_;
};

/// The scheme of the system's own colours; ask before a palette of the program's was set.
Scheme systemScheme();

/// How well one colour reads on another, 1 to 21.
double contrast(const QColor& first, const QColor& second);

}  // namespace fenvale::qt

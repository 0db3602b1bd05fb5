#include "platform/ui/qt/Theme.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>
#include <utility>

namespace fenvale::qt {
namespace {

Tokens lightTokens() {
  Tokens t;
  t.window = QColor(0xf6f7f8);
  t.band = QColor(0xeef2f1);
  t.base = QColor(0xffffff);
  t.alternate = QColor(0xf4f7f6);
  t.text = QColor(0x1d2422);
  t.muted = QColor(0x5e6b67);
  t.line = QColor(0xcfd8d5);
  t.accent = QColor(0x0b6e4f);
  t.onAccent = QColor(0xffffff);
  t.lookup = QColor(0xe6f1ed);
  t.locked = QColor(0xeef2f1);
  t.danger = QColor(0xc00000);
  t.cursor = QColor(0xdceae5);
  t.hover = QColor(0xf0f5f3);
  t.pressed = QColor(0xe0e9e6);
  t.accentHover = QColor(0x095c42);
  t.disabledText = QColor(0x808c88);
  t.thumb = QColor(0xb9c5c1);
  return t;
}

Tokens darkTokens() {
  Tokens t;
  t.window = QColor(0x1c2120);
  t.band = QColor(0x222827);
  t.base = QColor(0x242a29);
  t.alternate = QColor(0x29302e);
  t.text = QColor(0xe6ebe9);
  t.muted = QColor(0x9aa8a3);
  t.line = QColor(0x3a4441);
  t.accent = QColor(0x3fb68b);
  t.onAccent = QColor(0x0d1513);
  t.lookup = QColor(0x27392f);
  t.locked = QColor(0x1c2120);
  t.danger = QColor(0xff7b72);
  t.cursor = QColor(0x2a3b35);
  t.hover = QColor(0x2c3432);
  t.pressed = QColor(0x343e3b);
  t.accentHover = QColor(0x55c79d);
  t.disabledText = QColor(0x6f7b77);
  t.thumb = QColor(0x4f5b57);
  return t;
}

constexpr const char* sheet = R"(
* { outline: 0; }
QToolTip { background: @base; color: @text; border: 1px solid @line; padding: 4px 6px; }

QWidget#band, QWidget#foot { background: @band; }
QWidget#band { border-bottom: 1px solid @line; }
QWidget#foot { border-top: 1px solid @line; }
QWidget#splash { background: @base; border: 1px solid @line; }
QScrollArea, QScrollArea > QWidget > QWidget#body { background: transparent; border: 0; }
QLabel[role="label"], QLabel[role="muted"] { color: @muted; }
QLabel[role="display"] { color: @accent; }
QLabel[role="hint"] {
  color: @text; background: @base; border: 1px solid @line; border-radius: 6px; padding: 8px 14px; }
QLabel[role="link"] { color: @accent; }
QLabel[role="label"]:disabled { color: @disabledText; }

QLineEdit, QPlainTextEdit, QComboBox {
  background: @base; color: @text; border: 1px solid @line; border-radius: 5px; padding: 0 8px;
  min-height: 26px; selection-background-color: @accent; selection-color: @onAccent;
}
QPlainTextEdit { padding: 3px 4px; }
QLineEdit:focus, QPlainTextEdit:focus, QComboBox:focus { border: 2px solid @accent; padding: 0 7px; min-height: 24px; }
QPlainTextEdit:focus { padding: 2px 3px; }
QLineEdit[lookup="true"] { background: @lookup; }
QLineEdit[locked="true"], QPlainTextEdit[locked="true"] { background: @locked; }
QLineEdit:disabled, QPlainTextEdit:disabled, QComboBox:disabled { background: @window; color: @disabledText; }
QLineEdit[wrong="true"], QPlainTextEdit[wrong="true"], QComboBox[wrong="true"] {
  border: 2px solid @danger; padding: 0 7px; min-height: 24px; }
QTreeView[wrong="true"], QListWidget[wrong="true"] { border: 2px solid @danger; }
QCheckBox[wrong="true"], QRadioButton[wrong="true"] { color: @danger; }

QComboBox { padding-right: 24px; }
QComboBox:focus, QComboBox[wrong="true"] { padding-right: 23px; }
QComboBox::drop-down { border: 0; width: 22px; subcontrol-origin: border; subcontrol-position: center right; }
QComboBox QLineEdit, QComboBox QLineEdit:focus, QComboBox QLineEdit:disabled {
  border: 0; padding: 0; min-height: 22px; background: transparent; }
QComboBox QAbstractItemView, QCompleter QAbstractItemView {
  background: @base; border: 1px solid @line; padding: 3px; color: @text;
  selection-background-color: @cursor; selection-color: @text; }
QComboBox QAbstractItemView::item { min-height: 24px; padding: 0 4px; }

QPushButton {
  background: @base; color: @text; border: 1px solid @line; border-radius: 5px; padding: 0 12px; min-height: 26px; }
QPushButton:hover { background: @hover; }
QPushButton:pressed { background: @pressed; }
QPushButton:focus { border: 2px solid @accent; padding: 0 11px; min-height: 24px; }
QWidget#foot QPushButton { min-height: 28px; }
QWidget#foot QPushButton:focus { min-height: 26px; }
QPushButton:disabled { background: @window; color: @disabledText; }
QPushButton[primary="true"] { background: @accent; color: @onAccent; border-color: @accent; }
QPushButton[primary="true"]:hover, QPushButton[primary="true"]:pressed { background: @accentHover; }
QPushButton[primary="true"]:focus { border: 2px solid @text; }
QPushButton[primary="true"]:disabled { background: @pressed; color: @disabledText; border-color: @line; }
QPushButton[square="true"] { padding: 0; min-height: 26px; min-width: 26px; }
QPushButton[square="true"]:focus { padding: 0; min-height: 24px; min-width: 24px; }

QToolButton#inner { border: 0; border-radius: 4px; background: transparent; padding: 2px; }
QToolButton#inner:hover { background: @pressed; }

QCheckBox, QRadioButton { color: @text; spacing: 7px; min-height: 26px; border: 0; }
QCheckBox:disabled, QRadioButton:disabled { color: @disabledText; }

QGroupBox { border: 1px solid @line; border-radius: 6px; margin-top: 9px; padding: 8px 0 0 0; }
QGroupBox::title { subcontrol-origin: margin; subcontrol-position: top left; left: 10px; padding: 0 5px; color: @muted;
  background: @window; }

QTabWidget::pane { border: 1px solid @line; border-radius: 6px; border-top-left-radius: 0; top: -1px; }
QTabBar { background: transparent; }
QTabBar::tab {
  background: @band; color: @muted; border: 1px solid @line; border-top-left-radius: 6px; border-top-right-radius: 6px;
  padding: 6px 14px; margin-right: 3px; }
QTabBar::tab:selected { background: @window; color: @text; border-bottom-color: @window; border-top: 2px solid @accent;
  padding-top: 5px; }
QTabBar::tab:hover:!selected { background: @hover; color: @text; }
QTabBar::tab:focus { color: @accent; }

QTreeView, QListWidget, QTableView {
  background: @base; alternate-background-color: @alternate; color: @text; border: 1px solid @line; border-radius: 5px;
  selection-background-color: @cursor; selection-color: @text; }
QTreeView:focus, QListWidget:focus { border: 1px solid @accent; }
QTreeView::item { min-height: 24px; border: 0; }
QListWidget::item { min-height: 24px; padding: 0 4px; border: 0; }
QListWidget::item:selected, QTreeView::item:selected { background: @cursor; color: @text; }
QHeaderView { background: @band; border: 0; border-top-left-radius: 5px; border-top-right-radius: 5px; }
QHeaderView::section {
  background: transparent; color: @muted; border: 0; border-right: 1px solid @line; border-bottom: 1px solid @line;
  padding: 0 6px 0 7px; min-height: 28px; }
QHeaderView::section:hover { color: @text; background: @hover; }
QHeaderView::section:last, QHeaderView::section:only-one { border-right-color: transparent; }

QScrollBar:vertical { background: transparent; width: 12px; margin: 0; border: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; border: 0; }
QScrollBar::handle { background: @thumb; border: 0; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:hover { background: @muted; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: 0; background: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: none; }
QScrollBar#pages { background: @band; border: 1px solid @line; border-radius: 6px; height: 14px; }
QScrollBar#pages:focus { border: 1px solid @accent; }
QScrollBar#pages::handle:horizontal { min-width: 40px; margin: 1px; border-radius: 5px; }
QScrollBar#pages::handle:horizontal:disabled { background: transparent; }
QAbstractScrollArea::corner { background: transparent; border: 0; }

QProgressBar { background: @pressed; border: 0; border-radius: 3px; min-height: 6px; max-height: 6px; }
QProgressBar::chunk { background: @accent; border-radius: 3px; }
QProgressBar#line { background: transparent; border-radius: 0; min-height: 2px; max-height: 2px; }
QProgressBar#line::chunk { border-radius: 0; }

QMenuBar { background: @band; color: @text; padding: 2px 4px; }
QMenuBar::item { background: transparent; padding: 5px 9px; border-radius: 4px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: @pressed; }
QMenuBar::item:disabled { color: @disabledText; }
QMenu { background: @base; color: @text; border: 1px solid @line; padding: 5px; }
QMenu::item { padding: 5px 26px 5px 10px; border-radius: 4px; min-height: 16px; }
QMenu::icon { padding-left: 8px; }
QMenu::item:selected { background: @cursor; }
QMenu::item:disabled { color: @disabledText; }
QMenu::item:disabled:selected { background: transparent; }
QMenu::separator { height: 1px; background: @line; margin: 5px 6px; }

QToolBar { background: @band; border: 0; border-bottom: 1px solid @line; spacing: 4px; padding: 4px 8px 6px 8px; }
QToolBar::separator { background: @line; width: 1px; margin: 4px 8px; }
QToolBar QToolButton { border: 0; border-radius: 5px; padding: 5px 10px 4px 10px; color: @text; background: transparent; }
QToolBar QToolButton:hover, QToolBar QToolButton:focus { background: @pressed; }
QToolBar QToolButton:pressed { background: @line; }
QToolBar QToolButton:disabled { color: @disabledText; background: transparent; }
QStatusBar, QWidget#status { background: @band; color: @muted; border-top: 1px solid @line; }

QCalendarWidget QWidget#qt_calendar_navigationbar { background: @band; }
QCalendarWidget QToolButton { border: 0; border-radius: 4px; padding: 4px 8px; color: @text; background: transparent; }
QCalendarWidget QToolButton:hover { background: @pressed; }
QCalendarWidget QToolButton::menu-indicator { image: none; width: 0; }
QCalendarWidget QAbstractItemView {
  background: @base; alternate-background-color: @band; color: @text; border: 0; border-radius: 0;
  selection-background-color: @accent; selection-color: @onAccent; }
QCalendarWidget QAbstractItemView:disabled { color: @disabledText; }
QCalendarWidget QSpinBox { background: @base; color: @text; border: 1px solid @line; }
QFrame#calendar { background: @base; border: 1px solid @line; }
)";

double luminance(const QColor& colour) {
  const auto channel = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) + 0.0722 * channel(colour.blueF());
}

QFont interfaceFont(double points, QFont::Weight weight) {
  QFont font = QGuiApplication::font();
  if (QFontDatabase::hasFamily("Inter")) font.setFamily("Inter");
  font.setPointSizeF(points);
  font.setWeight(weight);
  return font;
}

QFont fixedPitchFont(double points, QFont::Weight weight) {
  const QString family = QStringLiteral("Lucida Console");
  QFont font = QFontDatabase::hasFamily(family) ? QFont(family) : QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(points);
  font.setWeight(weight);
  return font;
}

}  // namespace

Theme::Theme(Scheme scheme)
    : scheme_(scheme),
      tokens_(scheme == Scheme::dark ? darkTokens() : lightTokens()),
      baseFont_(interfaceFont(10, QFont::Normal)),
      labelFont_(interfaceFont(9, QFont::Normal)),
      titleFont_(interfaceFont(15, QFont::DemiBold)),
      strongFont_(interfaceFont(10, QFont::DemiBold)),
      displayFont_(interfaceFont(26, QFont::DemiBold)),
      fixedFont_(fixedPitchFont(9, QFont::Normal)),
      strongFixedFont_(fixedPitchFont(9, QFont::Bold)) {}

QPalette Theme::palette() const {
  const Tokens& t = tokens_;
  QPalette palette(t.text, t.window, t.line, t.line, t.muted, t.text, t.base);
  palette.setColor(QPalette::Window, t.window);
  palette.setColor(QPalette::Button, t.band);
  palette.setColor(QPalette::Base, t.base);
  palette.setColor(QPalette::AlternateBase, t.alternate);
  palette.setColor(QPalette::PlaceholderText, t.muted);
  palette.setColor(QPalette::Highlight, t.accent);
  palette.setColor(QPalette::HighlightedText, t.onAccent);
  palette.setColor(QPalette::ToolTipBase, t.base);
  palette.setColor(QPalette::ToolTipText, t.text);
  palette.setColor(QPalette::Link, t.accent);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, t.disabledText);
  return palette;
}

QString Theme::styleSheet() const {
  const Tokens& t = tokens_;
  // Longer names first where one begins another.
  const std::pair<const char*, QColor> names[] = {
      {"@accentHover", t.accentHover},
      {"@accent", t.accent},
      {"@onAccent", t.onAccent},
      {"@alternate", t.alternate},
      {"@window", t.window},
      {"@band", t.band},
      {"@base", t.base},
      {"@text", t.text},
      {"@muted", t.muted},
      {"@line", t.line},
      {"@lookup", t.lookup},
      {"@locked", t.locked},
      {"@danger", t.danger},
      {"@cursor", t.cursor},
      {"@hover", t.hover},
      {"@pressed", t.pressed},
      {"@disabledText", t.disabledText},
      {"@thumb", t.thumb},
  };
  QString text = QString::fromUtf8(sheet);
  for (const auto& [name, colour] : names) text.replace(QLatin1String(name), colour.name());
  return text;
}

QColor Theme::translated(std::int32_t colour) const {
  if (colour == 0) return tokens_.text;
  if (colour == 192) return tokens_.danger;
  const QColor plain(colour & 0xff, colour >> 8 & 0xff, colour >> 16 & 0xff);
  if (contrast(plain, tokens_.base) >= 4.5) return plain;
  return scheme_ == Scheme::dark ? plain.lighter(220) : plain.darker(220);
}

Scheme systemScheme() {
  return QGuiApplication::palette().color(QPalette::Window).lightness() < 128 ? Scheme::dark : Scheme::light;
}

double contrast(const QColor& first, const QColor& second) {
  const double one = luminance(first), other = luminance(second);
  return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

}  // namespace fenvale::qt

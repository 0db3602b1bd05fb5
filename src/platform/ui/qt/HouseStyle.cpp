#include "platform/ui/qt/HouseStyle.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QStyleOption>
#include <QWidget>

#include "platform/ui/qt/Theme.h"

namespace fenvale::qt {
namespace {

QRectF centred(const QRectF& place, double side) {
  QRectF square(0, 0, side, side);
  square.moveCenter(place.center());
  return square;
}

void drawRound(QPainter& painter, const QRectF& place, bool chosen, bool enabled, bool focused, const Theme& theme) {
  const Tokens& t = theme.tokens();
  const QRectF circle = centred(place, 15);
  painter.setPen(QPen(focused || chosen ? (enabled ? t.accent : t.disabledText) : t.muted, focused ? 2 : 1));
  painter.setBrush(enabled ? t.base : t.window);
  painter.drawEllipse(circle);
  if (!chosen) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(enabled ? t.accent : t.disabledText);
  painter.drawEllipse(centred(place, 8));
}

}  // namespace

void drawTick(QPainter& painter, const QRectF& place, bool checked, bool enabled, bool focused, const Theme& theme) {
  const Tokens& t = theme.tokens();
  const QRectF box = centred(place, 15);
  const QColor mark = enabled ? t.accent : t.disabledText;
  painter.setPen(QPen(checked || focused ? mark : t.muted, focused ? 2 : 1));
  painter.setBrush(checked ? mark : enabled ? t.base : t.window);
  painter.drawRoundedRect(box, 3, 3);
  if (!checked) return;
  painter.setPen(QPen(enabled ? t.onAccent : t.window, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  const QPointF corner = box.topLeft();
  painter.drawPolyline(
      QPolygonF({corner + QPointF(3.6, 7.8), corner + QPointF(6.4, 10.6), corner + QPointF(11.6, 4.8)}));
}

void drawChevron(QPainter& painter, const QRectF& place, Direction direction, const QColor& colour) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.translate(place.center());
  if (direction == Direction::up) painter.rotate(180);
  if (direction == Direction::right) painter.rotate(-90);
  painter.drawPolyline(QPolygonF({QPointF(-3.5, -1.75), QPointF(0, 1.75), QPointF(3.5, -1.75)}));
  painter.restore();
}

HouseStyle::HouseStyle(const Theme& theme) : QProxyStyle(QStringLiteral("Fusion")), theme_(theme) {}

void HouseStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  const bool on = (option->state & State_On) != 0, enabled = (option->state & State_Enabled) != 0;
  const bool focused = (option->state & State_HasFocus) != 0;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
      drawTick(*painter, option->rect, on, enabled, focused && element == PE_IndicatorCheckBox, theme_);
      break;
    case PE_IndicatorRadioButton:
      drawRound(*painter, option->rect, on, enabled, focused, theme_);
      break;
    case PE_IndicatorArrowDown:
      drawChevron(*painter, option->rect, Direction::down, theme_.tokens().muted);
      break;
    case PE_IndicatorArrowUp:
      drawChevron(*painter, option->rect, Direction::up, theme_.tokens().muted);
      break;
    case PE_IndicatorArrowRight:
      drawChevron(*painter, option->rect, Direction::right, theme_.tokens().muted);
      break;
    case PE_IndicatorBranch:
      if ((option->state & State_Children) != 0)
        drawChevron(*painter, option->rect, (option->state & State_Open) != 0 ? Direction::down : Direction::right,
                    theme_.tokens().muted);
      break;
    case PE_FrameFocusRect:  // the focus shows as an outline in the accent
      break;
    default:
      painter->restore();
      QProxyStyle::drawPrimitive(element, option, painter, widget);
      return;
  }
  painter->restore();
}

int HouseStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
  switch (hint) {
    case SH_UnderlineShortcut:
      return 1;
    case SH_ToolTip_WakeUpDelay:
      return 400;
    case SH_ComboBox_Popup:
      return 0;
    case SH_EtchDisabledText:
      return 0;
    case SH_ItemView_ActivateItemOnSingleClick:
      return 0;
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

int HouseStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
      return 18;
    case PM_SmallIconSize:
      return measures::icon;
    default:
      return QProxyStyle::pixelMetric(metric, option, widget);
  }
}

}  // namespace fenvale::qt

#pragma once
// What the style sheet cannot draw: ticks, round marks and arrows, in the theme's colours.

#include <QProxyStyle>

namespace fenvale::qt {

class Theme;

class HouseStyle final : public QProxyStyle {
 public:
  explicit HouseStyle(const Theme& theme);
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;

 private:
  const Theme& theme_;
};

void drawTick(QPainter& painter, const QRectF& place, bool checked, bool enabled, bool focused, const Theme& theme);
enum class Direction { up, down, right };
void drawChevron(QPainter& painter, const QRectF& place, Direction direction, const QColor& colour);

}  // namespace fenvale::qt

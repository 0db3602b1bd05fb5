#include "platform/ui/qt/CellText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <vector>

namespace fenvale::qt {
namespace {

bool isFigure(const QString& text) {
  bool digits = false;
  for (const QChar letter : text) {
    digits = digits || letter.isDigit();
    if (!letter.isDigit() && !QStringView(u".,/-: R$%+").contains(letter)) return false;
  }
  return digits;
}

double widestDigit(const QFontMetricsF& metrics) {
  double widest = 0;
  for (char16_t digit = u'0'; digit <= u'9'; ++digit)
    widest = std::max(widest, metrics.horizontalAdvance(QChar(digit)));
  return widest;
}

/// Where each letter begins, and at the end the whole width.
std::vector<double> steps(const QFont& font, const QString& text) {
  const QFontMetricsF metrics(font);
  const double digit = widestDigit(metrics);
  std::vector<double> places{0};
  for (const QChar letter : text)
    places.push_back(places.back() + (letter.isDigit() ? digit : metrics.horizontalAdvance(letter)));
  return places;
}

}  // namespace

double cellTextWidth(const QFont& font, const QString& text) {
  return isFigure(text) ? steps(font, text).back() : QFontMetricsF(font).horizontalAdvance(text);
}

void drawCellText(QPainter& painter, const QRectF& place, const QString& text, Qt::Alignment alignment) {
  if (text.isEmpty()) return;
  const double width = isFigure(text) ? steps(painter.font(), text).back() : 0;
  if (width <= 0 || width > place.width()) {
    const QString shown = QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, place.width());
    painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
    return;
  }
  double x = place.left();
  if ((alignment & Qt::AlignRight) != 0) x = place.right() - width;
  if ((alignment & Qt::AlignHCenter) != 0) x = place.center().x() - width / 2;
  const auto places = steps(painter.font(), text);
  const QFontMetricsF metrics(painter.font());
  const double baseline = place.center().y() + (metrics.ascent() - metrics.descent()) / 2;
  const double digit = widestDigit(metrics);
  for (qsizetype index = 0; index < text.size(); ++index) {
    const QChar letter = text[index];
    const double inset = letter.isDigit() ? (digit - metrics.horizontalAdvance(letter)) / 2 : 0;
    painter.drawText(QPointF(x + places[static_cast<std::size_t>(index)] + inset, baseline), letter);
  }
}

}  // namespace fenvale::qt

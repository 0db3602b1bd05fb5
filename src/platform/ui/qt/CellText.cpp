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

/// A text of figures, each digit in a place of the widest one's width.
class Figures {
 public:
  Figures(const QFont& font, const QString& text) : text_(text), metrics_(font), digit_(widestDigit(metrics_)) {
    for (const QChar letter : text) width_ += step(letter);
  }
  double width() const { return width_; }

  void draw(QPainter& painter, double x, double middle) const {
    const double baseline = middle + (metrics_.ascent() - metrics_.descent()) / 2;
    for (const QChar letter : text_) {
      const double inset = letter.isDigit() ? (digit_ - metrics_.horizontalAdvance(letter)) / 2 : 0;
      painter.drawText(QPointF(x + inset, baseline), letter);
      x += step(letter);
    }
  }

 private:
  double step(QChar letter) const { return letter.isDigit() ? digit_ : metrics_.horizontalAdvance(letter); }

  const QString& text_;
  QFontMetricsF metrics_;
  double digit_;
  double width_ = 0;
};

}  // namespace

double cellTextWidth(const QFont& font, const QString& text) {
  return isFigure(text) ? Figures(font, text).width() : QFontMetricsF(font).horizontalAdvance(text);
}

void drawCellText(QPainter& painter, const QRectF& place, const QString& text, Qt::Alignment alignment) {
  if (text.isEmpty()) return;
  if (isFigure(text)) {
    const Figures figures(painter.font(), text);
    if (figures.width() <= place.width()) {
      double x = place.left();
      if ((alignment & Qt::AlignRight) != 0) x = place.right() - figures.width();
      if ((alignment & Qt::AlignHCenter) != 0) x = place.center().x() - figures.width() / 2;
      return figures.draw(painter, x, place.center().y());
    }
  }
  const QString shown = QFontMetricsF(painter.font()).elidedText(text, Qt::ElideRight, place.width());
  painter.drawText(place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, shown);
}

}  // namespace fenvale::qt

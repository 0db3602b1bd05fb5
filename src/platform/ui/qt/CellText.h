#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace fenvale::qt {

/// Draws one line of text, elided where it does not fit. Amounts, dates and codes are drawn with digits of one width,
/// so that they stand below one another.
void drawCellText(QPainter& painter, const QRectF& place, const QString& text, Qt::Alignment alignment);
/// The width that drawCellText needs to show the whole text.
double cellTextWidth(const QFont& font, const QString& text);

}  // namespace fenvale::qt

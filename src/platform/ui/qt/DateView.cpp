// A day: typed as dd/mm/aaaa, one day on or back with the arrow keys, or picked from a calendar.

#include <QAction>
#include <QCalendarWidget>
#include <QClipboard>
#include <QDate>
#include <QFrame>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextCharFormat>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>

#include "platform/base/Date.h"

#include "platform/ui/Boxes.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

const QString shownAs = QStringLiteral("dd/MM/yyyy");

/// "1503" becomes "15/03", "15/3/" becomes "15/03/": separators come by themselves.
QString underway(const QString& typed) {
  QStringList parts(QString{});
  for (const QChar letter : typed) {
    const bool day = parts.size() < 3;
    if (letter.isDigit()) {
      if (day && parts.back().size() == 2) parts.append(QString());
      if (parts.back().size() < (parts.size() < 3 ? 2 : 4)) parts.back() += letter;
    } else if (day && !parts.back().isEmpty()) {
      parts.back() = parts.back().rightJustified(2, u'0');
      parts.append(QString());
    }
  }
  return parts.join(u'/');
}

class DateEdit final : public QLineEdit {
 public:
  std::function<void(const QString&)> give;
  std::function<void(int)> step;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Plus) return step(1);
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Minus) return step(-1);
    if (event->matches(QKeySequence::Paste)) return give(QGuiApplication::clipboard()->text().trimmed());
    const QString typed = event->text();
    const bool types = !typed.isEmpty() && typed[0].isPrint() && event->modifiers() != Qt::ControlModifier;
    if (!types) return QLineEdit::keyPressEvent(event);
    if (!typed[0].isDigit() && typed != QStringLiteral("/")) return;
    // Typing over a whole date begins a new one; within it, digits replace digits.
    if (!hasSelectedText() && cursorPosition() < text().size() && typed[0].isDigit()) {
      const int separator = text().mid(cursorPosition(), 1) == QStringLiteral("/") ? 1 : 0;
      setCursorPosition(cursorPosition() + separator);
      QLineEdit::setSelection(cursorPosition(), 1);
    }
    QLineEdit::keyPressEvent(event);
  }
};

class DateBinding final : public BindingOf<DatePicker, DateEdit> {
 public:
  DateBinding(QtHost& host, DatePicker& control, DateEdit& edit) : BindingOf(host, control, edit) {
    edit.give = [this](const QString& text) { give(text); };
    edit.step = [this](int days) {
      enter([&] { this->control().userType(formatDate(this->control().value() + std::chrono::days(days))); });
    };
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& typed) { arrange(typed); });
    QAction* const button = edit.addAction(host.icons().icon("calendario"), QLineEdit::TrailingPosition);
    button->setToolTip(QStringLiteral("Calendário"));
    connect(button, &QAction::triggered, this, [this] { openCalendar(); });
    refreshAll();
  }
  void commit() override {
    if (anyControl() != nullptr && view().text() != toQt(formatDate(control().value()))) give(view().text());
  }
  void focusGiven() override { view().selectAll(); }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::content) view().setText(toQt(formatDate(control().value())));
  }

 private:
  void give(const QString& text) {
    enter([&] { control().userType(fromQt(text)); });
  }
  void arrange(const QString& typed) {
    const bool atEnd = view().cursorPosition() == typed.size();
    const int caret = view().cursorPosition();
    const QString text = atEnd ? underway(typed) : typed;
    if (text != typed) view().setText(text);
    view().setCursorPosition(atEnd ? static_cast<int>(text.size()) : caret);
    if (text.size() < 10 || !readDate(fromQt(text))) return;
    give(text);
    view().setCursorPosition(atEnd ? static_cast<int>(text.size()) : caret);
  }
  void openCalendar();
};

/// Days of other months are muted, Sundays look like the other days.
void dress(QCalendarWidget& calendar, const Tokens& tokens) {
  QTextCharFormat plain, head;
  plain.setForeground(tokens.text);
  head.setForeground(tokens.muted);
  head.setBackground(tokens.base);
  calendar.setWeekdayTextFormat(Qt::Saturday, plain);
  calendar.setWeekdayTextFormat(Qt::Sunday, plain);
  calendar.setHeaderTextFormat(head);
  calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar.setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
  calendar.setFirstDayOfWeek(Qt::Sunday);
  for (const auto& [name, icon] :
       {std::pair("qt_calendar_prevmonth", Qt::LeftArrow), std::pair("qt_calendar_nextmonth", Qt::RightArrow)})
    if (auto* const button = calendar.findChild<QToolButton*>(QLatin1String(name))) {
      button->setIcon({});
      button->setText(icon == Qt::LeftArrow ? QStringLiteral("‹") : QStringLiteral("›"));
      button->setAccessibleName(icon == Qt::LeftArrow ? QStringLiteral("Mês anterior") : QStringLiteral("Próximo mês"));
    }
}

void DateBinding::openCalendar() {
  if (!control().acceptsInput()) return;
  auto* const frame = new QFrame(&view(), Qt::Popup);
  frame->setObjectName(QStringLiteral("calendar"));
  frame->setAttribute(Qt::WA_DeleteOnClose);
  auto* const column = new QVBoxLayout(frame);
  column->setContentsMargins(4, 4, 4, 4);
  auto* const calendar = new QCalendarWidget;
  calendar->setMinimumSize(8 * measures::unit, 6 * measures::unit);
  dress(*calendar, host().theme().tokens());
  const QDate chosen = QDate::fromString(toQt(formatDate(control().value())), shownAs);
  if (chosen.isValid()) calendar->setSelectedDate(chosen);
  column->addWidget(calendar);
  connect(calendar, &QCalendarWidget::activated, frame, [this, frame](QDate day) {
    frame->close();
    give(day.toString(shownAs));
  });
  connect(calendar, &QCalendarWidget::clicked, frame, [this, frame](QDate day) {
    frame->close();
    give(day.toString(shownAs));
  });
  frame->adjustSize();
  QPoint place = view().mapToGlobal(QPoint(0, view().height() + 2));
  const QRect room = view().screen()->availableGeometry();
  place.setX(std::min(place.x(), room.right() - frame->width()));
  if (place.y() + frame->height() > room.bottom()) place.setY(view().mapToGlobal(QPoint()).y() - frame->height() - 2);
  frame->move(place);
  frame->show();
  calendar->setFocus();
}

}  // namespace

Binding& render(DatePicker& control, QtHost& host) {
  auto* const edit = new DateEdit;
  edit->setMaxLength(10);
  edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("00/00/0000")) + 22 + 24);
  return *new DateBinding(host, control, *edit);
}

}  // namespace fenvale::qt

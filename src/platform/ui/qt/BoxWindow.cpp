#include "platform/ui/qt/BoxWindow.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QScrollArea>
#include <QShowEvent>
#include <QVBoxLayout>
#include <string>

#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

constexpr int widestText = 640;
constexpr int iconSide = 36;

const char* iconOf(BoxStyle style) {
  switch (style) {
    case BoxStyle::critical:
      return "critico";
    case BoxStyle::question:
      return "pergunta";
    case BoxStyle::exclamation:
      return "exclamacao";
    case BoxStyle::information:
      return "informacao";
    case BoxStyle::plain:
      break;
  }
  return "";
}

}  // namespace

BoxWindow::BoxWindow(QtHost& host, const MessageBox& box, QWidget* below)
    : QWidget(below, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      host_(host),
      box_(box),
      answer_(box.buttons == BoxButtons::yesNo ? BoxAnswer::no : BoxAnswer::ok) {
  setWindowTitle(toQt(box.title));
  setAccessibleName(toQt(box.title));
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(textPart(), 1);

  auto* const foot = new QWidget;
  foot->setObjectName(QStringLiteral("foot"));
  foot->setAttribute(Qt::WA_StyledBackground);
  auto* const buttons = new QHBoxLayout(foot);
  buttons->setContentsMargins(measures::margin, 9, measures::margin, 9);
  buttons->setSpacing(measures::gap);
  buttons->addStretch(1);
  if (box.buttons == BoxButtons::yesNo) {
    addButton(*buttons, QStringLiteral("&Sim"), BoxAnswer::yes);
    addButton(*buttons, QStringLiteral("&Não"), BoxAnswer::no);
  } else {
    addButton(*buttons, QStringLiteral("OK"), BoxAnswer::ok);
  }
  column->addWidget(foot);
}

QWidget* BoxWindow::textPart() {
  auto* const part = new QWidget;
  auto* const row = new QHBoxLayout(part);
  row->setContentsMargins(20, 20, 24, 20);
  row->setSpacing(16);
  if (const std::string icon = iconOf(box_.style); host_.icons().has(icon)) {
    auto* const picture = new QLabel;
    const Tokens& t = host_.theme().tokens();
    const double ratio = devicePixelRatioF();
    QPixmap pixels(QSize(iconSide, iconSide) * ratio);
    pixels.setDevicePixelRatio(ratio);
    pixels.fill(Qt::transparent);
    QPainter painter(&pixels);
    const bool alarming = box_.style == BoxStyle::critical || box_.style == BoxStyle::exclamation;
    host_.icons().paint(painter, QRectF(0, 0, iconSide, iconSide), icon, alarming ? t.danger : t.accent);
    picture->setPixmap(pixels);
    row->addWidget(picture, 0, Qt::AlignTop);
  }
  QString text = toQt(box_.text);
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  // An amount is not torn from its currency at the end of a line.
  text.replace(QStringLiteral("R$ "), QStringLiteral("R$\u00a0"));
  auto* const label = new QLabel(text);
  label->setObjectName(QStringLiteral("text"));
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setFocusPolicy(Qt::NoFocus);
  label->setMinimumWidth(180);
  const QRect natural = label->fontMetrics().boundingRect(QRect(0, 0, 4000, 4000), Qt::TextExpandTabs, text);
  if (natural.width() > widestText) {
    label->setWordWrap(true);
    label->setFixedWidth(widestText);
  }
  const int tallest = screen()->availableSize().height() - 220;
  if (natural.height() > tallest) {
    auto* const scroll = new QScrollArea;
    scroll->setWidget(label);
    scroll->setMinimumSize(widestText, tallest);
    row->addWidget(scroll, 1);
  } else {
    row->addWidget(label, 1, Qt::AlignVCenter);
  }
  return part;
}

void BoxWindow::addButton(QHBoxLayout& row, const QString& caption, BoxAnswer answer) {
  auto* const button = new QPushButton(caption);
  button->setMinimumWidth(84);
  if (first_ == nullptr) {
    first_ = button;
    button->setProperty("primary", true);
  }
  connect(button, &QPushButton::clicked, this, [this, answer] { give(answer); });
  row.addWidget(button);
}

void BoxWindow::give(BoxAnswer answer) {
  answer_ = answer;
  if (onAnswer) onAnswer();
}

void BoxWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  resize(layout()->totalMinimumSize().expandedTo(layout()->totalSizeHint()));
  if (QWidget* const below = parentWidget(); below != nullptr && below->isVisible()) {
    QRect place(QPoint(), frameSize());
    place.moveCenter(below->window()->frameGeometry().center());
    move(place.topLeft());
  }
  first_->setFocus(Qt::TabFocusReason);
}

void BoxWindow::keyPressEvent(QKeyEvent* event) {
  const bool asks = box_.buttons == BoxButtons::yesNo;
  switch (event->key()) {
    case Qt::Key_Escape:
      return give(asks ? BoxAnswer::no : BoxAnswer::ok);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto* const button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
      return give(asks ? BoxAnswer::yes : BoxAnswer::ok);
    case Qt::Key_S:
      if (asks) give(BoxAnswer::yes);
      return;
    case Qt::Key_N:
      if (asks) give(BoxAnswer::no);
      return;
    case Qt::Key_Left:
    case Qt::Key_Right:
      focusNextChild();
      return;
    default:
      break;
  }
  if (event->matches(QKeySequence::Copy)) {
    QGuiApplication::clipboard()->setText(toQt(box_.text));
    return;
  }
  QWidget::keyPressEvent(event);
}

void BoxWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  give(box_.buttons == BoxButtons::yesNo ? BoxAnswer::no : BoxAnswer::ok);
}

}  // namespace fenvale::qt

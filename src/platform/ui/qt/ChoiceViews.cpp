// What is pressed or ticked, and what only shows.

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QResizeEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>
#include <functional>
#include <string>

#include "platform/ui/Choices.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/KeyMap.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

/// Icon, caption and, in a muted tone, the key that does the same.
class CommandButton final : public QPushButton {
 public:
  CommandButton(const QtHost& host, const Button& control, std::string icon, bool square)
      : host_(host), icon_(std::move(icon)), key_(QString::fromUtf8(nameOf(control.key()))), square_(square) {
    setProperty("primary", control.primary());
    setProperty("square", square);
    setSizePolicy(square ? QSizePolicy::Fixed : QSizePolicy::Minimum, QSizePolicy::Fixed);
    if (square) setFixedWidth(measures::boxHeight);
  }

  QSize sizeHint() const override {
    if (square_) return {measures::boxHeight, measures::boxHeight};
    return {contentWidth() + 26, QPushButton::sizeHint().height()};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);
    const Tokens& t = host_.theme().tokens();
    const bool primary = property("primary").toBool();
    const QColor strong = !isEnabled() ? t.disabledText : primary ? t.onAccent : t.text;
    const QColor soft = !isEnabled() ? t.disabledText : primary ? t.onAccent : t.muted;
    if (square_) {
      QRectF place(0, 0, measures::icon, measures::icon);
      place.moveCenter(QRectF(rect()).center());
      return host_.icons().paint(painter, place, icon_, isEnabled() ? t.muted : t.disabledText);
    }
    double x = (width() - contentWidth()) / 2.0;
    if (host_.icons().has(icon_)) {
      host_.icons().paint(painter, QRectF(x, (height() - measures::icon) / 2.0, measures::icon, measures::icon), icon_,
                          strong);
      x += measures::icon + iconGap;
    }
    const int captionWidth = fontMetrics().size(Qt::TextShowMnemonic, caption).width();
    painter.setPen(strong);
    painter.drawText(QRectF(x, 0, captionWidth + 1, height()), Qt::AlignVCenter | Qt::TextShowMnemonic, caption);
    if (key_.isEmpty()) return;
    x += captionWidth + keyGap;
    painter.setPen(soft);
    painter.setFont(host_.theme().labelFont());
    painter.drawText(QRectF(x, 0, width() - x, height()), Qt::AlignVCenter, key_);
  }

 private:
  static constexpr int iconGap = 7, keyGap = 8;
  int contentWidth() const {
    int content = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    if (host_.icons().has(icon_)) content += measures::icon + iconGap;
    if (!key_.isEmpty()) content += keyGap + QFontMetrics(host_.theme().labelFont()).horizontalAdvance(key_);
    return content;
  }

  const QtHost& host_;
  std::string icon_;
  QString key_;
  bool square_;
};

class ButtonBinding final : public BindingOf<Button, CommandButton> {
 public:
  ButtonBinding(QtHost& host, Button& control, CommandButton& button, bool square)
      : BindingOf(host, control, button), square_(square) {
    connect(&button, &QPushButton::clicked, this, [this] { enter([this] { this->control().userClick(); }); });
    refreshAll();
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect != Aspect::caption) return;
    const QString name = spokenName(control().caption().empty() ? control().label() : control().caption());
    view().setAccessibleName(name);
    if (!square_) {
      view().setText(toQt(control().caption()));
      view().updateGeometry();
    } else if (control().toolTip().empty()) {
      view().setToolTip(name);
    }
  }

 private:
  bool square_;
};

/// A caption in as many lines as it needs: one of these boxes does not break its text by itself.
QString inLines(const QString& caption, const QFontMetrics& metrics, int widest) {
  QStringList lines(QString{});
  for (const QString& word : caption.split(u' ')) {
    const QString longer = lines.back().isEmpty() ? word : lines.back() + u' ' + word;
    if (!lines.back().isEmpty() && metrics.horizontalAdvance(longer) > widest) {
      lines.append(word);
    } else {
      lines.back() = longer;
    }
  }
  return lines.join(u'\n');
}

/// A check box or an option button: only the mark differs.
template <typename Kind, typename Widget>
class MarkBinding : public BindingOf<Kind, Widget> {
 public:
  MarkBinding(QtHost& host, Kind& control, Widget& button, bool (Kind::*state)() const)
      : BindingOf<Kind, Widget>(host, control, button), state_(state) {
    const int columns = std::max(control.screen().preferredWidth() - markColumns, leastColumns);
    button.setText(inLines(toQt(control.caption()), button.fontMetrics(), columns * measures::unit));
    if (control.label().empty()) button.setAccessibleName(spokenName(control.caption()));
    QObject::connect(&button, &QAbstractButton::clicked, this, [this] {
      this->enter([this] { this->control().userClick(); });
      if (this->anyControl() != nullptr) refresh(Aspect::content);
    });
    this->refreshAll();
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect != Aspect::content) return;
    const QSignalBlocker quiet(this->view());
    this->view().setChecked((this->control().*state_)());
  }

 private:
  /// What the mark and the margins take of the screen's width, and what every screen has.
  static constexpr int markColumns = 2, leastColumns = 15;
  bool (Kind::*state_)() const;
};

/// The toolkit moves among options by its own groups; here the groups are the screen's.
class OptionMark final : public QRadioButton {
 public:
  OptionMark() { setAutoExclusive(false); }
  std::function<void(int steps)> move;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Left) return move(-1);
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Right) return move(1);
    QRadioButton::keyPressEvent(event);
  }
};

class OptionBinding final : public MarkBinding<OptionButton, OptionMark> {
 public:
  OptionBinding(QtHost& host, OptionButton& control, OptionMark& mark)
      : MarkBinding(host, control, mark, &OptionButton::chosen) {
    mark.move = [this](int steps) { enter([this, steps] { this->control().userMove(steps); }); };
  }
};

/// A text that breaks into lines where its place ends; one that is shorter than `widest` never does. Its height follows
/// its width by itself, so that no layout around it has to weigh heights against widths.
class LinesLabel final : public QLabel {
 public:
  explicit LinesLabel(int widest) : widest_(widest) { setWordWrap(true); }
  void showText(const QString& text) {
    setText(text);
    updateGeometry();
    fit();
  }
  bool hasHeightForWidth() const override { return false; }
  QSize sizeHint() const override { return {std::min(naturalWidth(), widest_), height_}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QLabel::resizeEvent(event);
    if (isVisible()) fit();
  }
  void showEvent(QShowEvent* event) override {
    QLabel::showEvent(event);
    fit();
  }

 private:
  int naturalWidth() const {
    const int text = fontMetrics().boundingRect(QRect(0, 0, INT_MAX / 2, INT_MAX / 2), 0, this->text()).width();
    const QMargins around = contentsMargins();
    return text + around.left() + around.right() + 2 + (property("role") == "hint" ? hintPadding : 0);
  }
  /// What is not in sight, before the first layout or on another tab, has a width that means nothing: a help text then
  /// counts as one of ordinary width.
  void fit() {
    const int width = isVisible() && testAttribute(Qt::WA_Resized) ? this->width() : 18 * measures::unit;
    const int needed = std::max(QLabel::heightForWidth(width), measures::textLine);
    if (std::exchange(height_, needed) != needed) updateGeometry();
  }

  static constexpr int hintPadding = 30;
  int widest_;
  int height_ = measures::textLine;
};

class LabelBinding final : public BindingOf<Label, LinesLabel> {
 public:
  LabelBinding(QtHost& host, Label& control, LinesLabel& label) : BindingOf(host, control, label) { refreshAll(); }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect != Aspect::caption) return;
    QString text = withoutAccessKey(control().caption());
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    view().showText(text);
    if (view().property("role") == "hint") view().setVisible(control().visible() && !text.isEmpty());
  }
};

/// A picture file, scaled down to the room there is.
class PictureLabel final : public QLabel {
 public:
  std::function<void()> clicked;
  QSize sizeHint() const override { return {12 * measures::unit, 8 * measures::unit}; }
  void showFile(const QString& path, bool whole) {
    picture_ = path.isEmpty() ? QPixmap() : QPixmap(path);
    if (whole && !picture_.isNull()) setMinimumSize(sizeOnMonitor());
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (picture_.isNull()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    QSizeF size(picture_.size());
    if (size.width() > width() || size.height() > height()) size.scale(this->size(), Qt::KeepAspectRatio);
    QRectF place(QPointF(), size);
    place.moveCenter(QRectF(rect()).center());
    painter.drawPixmap(place, picture_, QRectF(picture_.rect()));
  }
  void mouseReleaseEvent(QMouseEvent*) override { clicked(); }

 private:
  QSize sizeOnMonitor() const {
    const QSize most = screen()->availableGeometry().size() * 0.8;
    const QSize own = picture_.size();
    const bool tooLarge = own.width() > most.width() || own.height() > most.height();
    return (tooLarge ? own.scaled(most, Qt::KeepAspectRatio) : own).expandedTo({smallest, smallest});
  }

  static constexpr int smallest = 64;
  QPixmap picture_;
};

class ImageBinding final : public BindingOf<Image, PictureLabel> {
 public:
  ImageBinding(QtHost& host, Image& control, PictureLabel& label) : BindingOf(host, control, label) {
    label.clicked = [this] { enter([this] { this->control().userClick(); }); };
    refreshAll();
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::content) view().showFile(toQt(control().picture()), control().stretchesScreen());
  }
};

}  // namespace

Binding& render(Button& control, QtHost& host) {
  return *new ButtonBinding(host, control, *new CommandButton(host, control, control.icon(), false), false);
}

Binding& renderSmall(Button& control, QtHost& host, const char* fallbackIcon) {
  const std::string icon = control.icon().empty() ? fallbackIcon : control.icon();
  return *new ButtonBinding(host, control, *new CommandButton(host, control, icon, true), true);
}

Binding& render(CheckBox& control, QtHost& host) {
  return *new MarkBinding<CheckBox, QCheckBox>(host, control, *new QCheckBox, &CheckBox::checked);
}

Binding& render(OptionButton& control, QtHost& host) { return *new OptionBinding(host, control, *new OptionMark); }

Binding& render(Label& control, QtHost& host) {
  constexpr int narrowest = 3 * measures::unit, widest = 14 * measures::unit;
  auto* const label = new LinesLabel(control.style() == Label::Style::help ? narrowest : widest);
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->setFocusPolicy(Qt::NoFocus);
  const bool splash = control.screen().style() == ScreenStyle::splash;
  const bool overPicture = control.screen().style() == ScreenStyle::mainWindow;
  switch (control.style()) {
    case Label::Style::title:
      label->setFont(splash ? host.theme().displayFont() : host.theme().titleFont());
      if (splash) label->setProperty("role", "display");
      break;
    case Label::Style::muted:
      label->setProperty("role", overPicture ? "hint" : "muted");
      break;
    case Label::Style::help:
      label->setProperty("role", overPicture ? "hint" : "muted");
      break;
    case Label::Style::link:
      label->setProperty("role", "link");
      break;
    case Label::Style::total:
      label->setFont(host.theme().titleFont());
      label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
      break;
    case Label::Style::plain:
      break;
  }
  return *new LabelBinding(host, control, *label);
}

Binding& render(Image& control, QtHost& host) {
  auto* const label = new PictureLabel;
  label->setMinimumSize(64, 64);
  label->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  return *new ImageBinding(host, control, *label);
}

}  // namespace fenvale::qt

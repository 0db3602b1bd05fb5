// Boxes that hold a text: one line edit told by a few facts of its kind, and the box of several lines.

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include "platform/ui/Boxes.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

/// The place in `shown` behind as many letters and digits as stand before `caret` in `typed`, so that punctuation that
/// comes and goes does not move the caret to the wrong side of a digit.
int caretIn(const QString& shown, const QString& typed, int caret) {
  qsizetype wanted = 0;
  for (const QChar letter : QStringView(typed).left(caret)) wanted += letter.isLetterOrNumber() ? 1 : 0;
  if (caret >= typed.size()) return static_cast<int>(shown.size());
  int place = 0;
  for (; place < shown.size() && wanted > 0; ++place) wanted -= shown[place].isLetterOrNumber() ? 1 : 0;
  return place;
}

class EditBinding final : public BindingOf<TextControl, QLineEdit> {
 public:
  EditBinding(QtHost& host, TextControl& control, QLineEdit& edit) : BindingOf(host, control, edit) {
    connect(&edit, &QLineEdit::textEdited, this, [this](const QString& typed) { take(typed); });
    refreshAll();
  }
  void focusGiven() override { view().selectAll(); }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::locked) {
      const bool locked = control().locked();
      view().setReadOnly(locked || control().kind() == ControlKind::lookupBox);
      setStyleProperty(view(), "locked", locked);
    }
    const QString text = toQt(control().text());
    if (aspect != Aspect::content || view().text() == text) return;
    const int caret = caretIn(text, view().text(), view().cursorPosition());
    view().setText(text);
    // What the rules put there reads from its beginning. Whether the window is the active one says nothing here: a
    // window manager may lag behind the keys.
    view().setCursorPosition(typing_ ? caret : 0);
  }

 private:
  void take(const QString& typed) {
    typing_ = true;
    enter([&] { control().userType(fromQt(typed)); });
    typing_ = false;
  }
  bool typing_ = false;
};

class ManyLinesBinding final : public BindingOf<TextBox, QPlainTextEdit> {
 public:
  ManyLinesBinding(QtHost& host, TextBox& control, QPlainTextEdit& edit) : BindingOf(host, control, edit) {
    connect(&edit, &QPlainTextEdit::textChanged, this, [this] { take(); });
    refreshAll();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    // Enter belongs to the screen; with Ctrl it breaks the line.
    if (event->type() == QEvent::KeyPress) {
      const auto& key = static_cast<QKeyEvent&>(*event);
      if (key.modifiers() == Qt::ControlModifier && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
        if (!view().isReadOnly()) view().insertPlainText(QStringLiteral("\n"));
        return true;
      }
    }
    return Binding::eventFilter(watched, event);
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::locked) {
      view().setReadOnly(control().locked());
      setStyleProperty(view(), "locked", control().locked());
    }
    if (aspect != Aspect::content) return;
    QString text = toQt(control().text());
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (view().toPlainText() == text) return;
    showing_ = true;
    view().setPlainText(text);
    showing_ = false;
  }

 private:
  void take() {
    if (showing_) return;
    QString typed = view().toPlainText();
    typed.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    enter([&] { control().userType(fromQt(typed)); });
  }
  bool showing_ = false;
};

/// Four lines, where the layout does not give it more.
class LinesEdit final : public QPlainTextEdit {
 public:
  QSize sizeHint() const override { return {240, 4 * fontMetrics().lineSpacing() + 16}; }
  QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }
};

int widthOf(const QLineEdit& edit, QChar letter, int count) {
  return edit.fontMetrics().horizontalAdvance(letter) * count + 22;
}

QLineEdit* newEdit(Qt::Alignment alignment, int leastCharacters) {
  auto* const edit = new QLineEdit;
  edit->setAlignment(alignment | Qt::AlignVCenter);
  edit->setMinimumWidth(widthOf(*edit, u'0', leastCharacters));
  return edit;
}

}  // namespace

Binding& render(TextBox& control, QtHost& host) {
  if (control.style() == TextBox::Style::multiLine) {
    auto* const lines = new LinesEdit;
    lines->setTabChangesFocus(true);
    lines->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return *new ManyLinesBinding(host, control, *lines);
  }
  QLineEdit* const edit = newEdit(Qt::AlignLeft, 3);
  if (control.style() == TextBox::Style::password) edit->setEchoMode(QLineEdit::Password);
  if (control.maxLength() > 0) edit->setMaxLength(static_cast<int>(control.maxLength()));
  return *new EditBinding(host, control, *edit);
}

Binding& render(CodeBox& control, QtHost& host) { return *new EditBinding(host, control, *newEdit(Qt::AlignRight, 3)); }

Binding& render(NumberBox& control, QtHost& host) {
  return *new EditBinding(host, control, *newEdit(Qt::AlignRight, 3));
}

Binding& render(MaskBox& control, QtHost& host) {
  return *new EditBinding(host, control, *newEdit(Qt::AlignLeft, static_cast<int>(control.mask().size())));
}

Binding& render(LookupBox& control, QtHost& host) {
  QLineEdit* const edit = newEdit(Qt::AlignLeft, 3);
  edit->setReadOnly(true);
  edit->setProperty("lookup", true);
  return *new EditBinding(host, control, *edit);
}

}  // namespace fenvale::qt

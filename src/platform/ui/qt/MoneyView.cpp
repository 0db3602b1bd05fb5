// An amount, typed as on a cash register: digits push in from the right, a comma says that what stands there are whole
// reais. "30000" and "300,00" both give 300,00.

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>
#include <functional>
#include <memory>

#include "platform/ui/Boxes.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

QString digitsOf(const QString& text) {
  QString digits;
  for (const QChar letter : text)
    if (letter.isDigit()) digits += letter;
  while (digits.startsWith(u'0')) digits.remove(0, 1);
  return digits;
}

/// Digits of cents as an amount that the box understands.
QString amountOf(QString cents, bool negative) {
  cents = cents.rightJustified(3, u'0');
  cents.insert(cents.size() - 2, u',');
  return (negative ? QStringLiteral("-") : QString()) + cents;
}

class MoneyEdit final : public QLineEdit {
 public:
  std::function<bool(const QString&)> type;

  /// A new amount begins with the next digit.
  void startAnew() { decimals_ = wholePart; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const QString typed = event->text();
    if (event->matches(QKeySequence::Paste)) return paste(QGuiApplication::clipboard()->text());
    if (isReadOnly() || event->matches(QKeySequence::Copy) || event->matches(QKeySequence::SelectAll))
      return QLineEdit::keyPressEvent(event);
    if (event->key() == Qt::Key_Backspace) return erase();
    if (event->key() == Qt::Key_Delete) return clearAmount();
    if (event->matches(QKeySequence::Cut)) {
      copy();
      return clearAmount();
    }
    if (typed.size() == 1 && typed[0].isDigit()) return digit(typed[0]);
    if (typed == QStringLiteral(",") || typed == QStringLiteral(".")) return comma();
    if (typed == QStringLiteral("-")) return negate();
    if (typed.isEmpty() || !typed[0].isPrint()) QLineEdit::keyPressEvent(event);
  }
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    startAnew();
    if (event->reason() == Qt::MouseFocusReason) selectOnRelease_ = true;
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    QLineEdit::mouseReleaseEvent(event);
    if (std::exchange(selectOnRelease_, false) && !hasSelectedText()) selectAll();
  }
  void contextMenuEvent(QContextMenuEvent* event) override {
    std::unique_ptr<QMenu> menu(createStandardContextMenu());
    for (QAction* const action : menu->actions()) {
      if (action->objectName() != QStringLiteral("edit-paste")) continue;
      action->disconnect();
      connect(action, &QAction::triggered, this, [this] { paste(QGuiApplication::clipboard()->text()); });
    }
    menu->exec(event->globalPos());
  }

 private:
  static constexpr int wholePart = -1;

  bool replacing() const { return hasSelectedText(); }
  bool negative() const { return text().startsWith(u'-'); }
  void give(const QString& amount) {
    if (type(amount)) setCursorPosition(static_cast<int>(text().size()));
  }
  void paste(const QString& pasted) {
    if (!isReadOnly()) give(pasted.trimmed());
  }
  void clearAmount() {
    startAnew();
    give(QStringLiteral("0"));
  }
  void digit(QChar typed) {
    if (replacing()) startAnew();
    QString cents = replacing() ? QString() : digitsOf(text());
    const bool minus = !replacing() && negative();
    deselect();
    if (decimals_ == wholePart) return give(amountOf(cents + typed, minus));
    if (decimals_ >= 2) return;
    cents = cents.rightJustified(3, u'0');
    cents[cents.size() - 2 + decimals_] = typed;
    if (type(amountOf(digitsOf(cents), minus))) ++decimals_;
  }
  void comma() {
    const QString whole = replacing() ? QString() : digitsOf(text());
    const bool minus = !replacing() && negative();
    if (decimals_ != wholePart && !replacing()) return;
    deselect();
    decimals_ = wholePart;
    if (type(amountOf(whole + QStringLiteral("00"), minus))) decimals_ = 0;
    setCursorPosition(static_cast<int>(text().size()));
  }
  void erase() {
    if (replacing()) return clearAmount();
    if (decimals_ > 0) {
      QString cents = digitsOf(text()).rightJustified(3, u'0');
      cents[cents.size() - 3 + decimals_] = u'0';
      --decimals_;
      return give(amountOf(digitsOf(cents), negative()));
    }
    if (decimals_ == 0) {
      decimals_ = wholePart;
      QString cents = digitsOf(text());
      cents.chop(2);
      return give(amountOf(cents, negative()));
    }
    QString cents = digitsOf(text());
    cents.chop(1);
    give(amountOf(cents, negative()));
  }
  void negate() { give(amountOf(digitsOf(text()), !negative())); }

  int decimals_ = wholePart;  ///< how many were typed after the comma
  bool selectOnRelease_ = false;
};

class MoneyBinding final : public BindingOf<MoneyBox, MoneyEdit> {
 public:
  MoneyBinding(QtHost& host, MoneyBox& control, MoneyEdit& edit) : BindingOf(host, control, edit) {
    edit.type = [this](const QString& amount) {
      bool taken = false;
      enter([&] { taken = this->control().userType(fromQt(amount)); });
      return taken;
    };
    refreshAll();
  }
  void focusGiven() override {
    view().startAnew();
    view().selectAll();
  }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::locked) {
      view().setReadOnly(control().locked());
      setStyleProperty(view(), "locked", control().locked());
    }
    const QString text = toQt(control().text());
    if (aspect == Aspect::content && view().text() != text) view().setText(text);
  }
};

}  // namespace

Binding& render(MoneyBox& control, QtHost& host) {
  auto* const edit = new MoneyEdit;
  edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(QStringLiteral("000.000,00")) + 22);
  return *new MoneyBinding(host, control, *edit);
}

}  // namespace fenvale::qt

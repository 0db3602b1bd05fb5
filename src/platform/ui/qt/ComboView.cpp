// A list of entries that is searched by typing: the screen decides what each typed character does.

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <functional>

#include "platform/ui/Choices.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/HouseStyle.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

class ComboEdit final : public QComboBox {
 public:
  explicit ComboEdit(const Theme& theme) : theme_(theme) {
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setCompleter(nullptr);
    setMaxVisibleItems(16);
    // Characters come through the screen; the line itself only shows and marks.
    lineEdit()->setReadOnly(true);
    lineEdit()->installEventFilter(this);
    lineEdit()->setContextMenuPolicy(Qt::NoContextMenu);
  }
  std::function<void(const QString&)> type;
  std::function<void()> erase;

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonPress && isEnabled()) {
      setFocus(Qt::MouseFocusReason);
      showPopup();
      return true;
    }
    return QComboBox::eventFilter(watched, event);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const QString typed = event->text();
    if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete) return erase();
    const bool plain = (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) == 0;
    if (plain && !typed.isEmpty() && typed[0].isPrint()) return type(typed);
    if (event->matches(QKeySequence::Copy)) return lineEdit()->copy();
    QComboBox::keyPressEvent(event);
  }
  void paintEvent(QPaintEvent* event) override {
    QComboBox::paintEvent(event);
    QPainter painter(this);
    const Tokens& t = theme_.tokens();
    drawChevron(painter, QRect(width() - 24, 0, 22, height()), Direction::down, isEnabled() ? t.muted : t.disabledText);
  }

 private:
  const Theme& theme_;
};

class ComboBinding final : public BindingOf<ComboBox, ComboEdit> {
 public:
  ComboBinding(QtHost& host, ComboBox& control, ComboEdit& combo) : BindingOf(host, control, combo) {
    connect(&combo, &QComboBox::activated, this,
            [this](int index) { enter([&] { this->control().userChoose(index); }); });
    combo.type = [this](const QString& text) { type(text); };
    combo.erase = [this] { erase(); };
    refreshAll();
  }
  void focusGiven() override { view().lineEdit()->selectAll(); }

 protected:
  void refresh(Aspect aspect) override {
    if (aspect == Aspect::items) return refreshItems();
    if (aspect == Aspect::content) {
      if (view().count() == static_cast<int>(control().items().size())) view().setCurrentIndex(control().listIndex());
      view().lineEdit()->setText(toQt(control().text()));
      view().lineEdit()->setCursorPosition(0);
    }
    if (aspect == Aspect::selection) showMark();
  }

 private:
  /// Filled one by one by the rules, many at a time: only what is new is added.
  void refreshItems() {
    const auto& items = control().items();
    if (static_cast<std::size_t>(view().count()) > items.size()) view().clear();
    for (auto place = static_cast<std::size_t>(view().count()); place < items.size(); ++place)
      view().addItem(toQt(items[place].text));
    refresh(Aspect::content);
  }
  void showMark() {
    const int start = static_cast<int>(control().selectionStart()),
              count = static_cast<int>(control().selectionLength());
    if (count > 0) {
      view().lineEdit()->setSelection(start, count);
    } else {
      view().lineEdit()->setCursorPosition(start);
    }
  }
  void readMark() {
    const QLineEdit& line = *view().lineEdit();
    const bool marked = line.hasSelectedText();
    control().select(static_cast<std::size_t>(marked ? line.selectionStart() : line.cursorPosition()),
                     static_cast<std::size_t>(marked ? line.selectionLength() : 0));
  }
  void type(const QString& text) {
    enter([&] {
      readMark();
      control().userKeyPress(fromQt(text));
    });
  }
  void erase() {
    enter([&] {
      readMark();
      const std::size_t start = control().selectionStart();
      const std::size_t kept = control().selectionLength() > 0 || start == 0 ? start : start - 1;
      if (!control().acceptsInput()) return;
      control().setText(fromQt(toQt(control().text()).left(static_cast<qsizetype>(kept))));
      control().select(kept, 0);
    });
  }
};

}  // namespace

Binding& render(ComboBox& control, QtHost& host) {
  auto* const combo = new ComboEdit(host.theme());
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(4);
  return *new ComboBinding(host, control, *combo);
}

}  // namespace fenvale::qt

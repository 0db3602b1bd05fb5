// Progress bars and the page selector.

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/ui/Choices.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Render.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {
namespace {

/// Shows the range as thousandths, so that a far maximum overflows nothing.
void showProgress(QProgressBar& bar, const ProgressBar& control) {
  const std::int64_t range = std::int64_t{control.maximum()} - control.minimum();
  const std::int64_t done = std::int64_t{control.value()} - control.minimum();
  bar.setRange(0, 1000);
  bar.setValue(range > 0 ? static_cast<int>(done * 1000 / range) : 0);
}

/// The line is there only while something runs: a screen that fills a page takes no input meanwhile.
class LineBinding final : public BindingOf<ProgressBar, QProgressBar> {
 public:
  LineBinding(QtHost& host, ProgressBar& control, QProgressBar& bar) : BindingOf(host, control, bar) { refreshAll(); }

 protected:
  void refresh(Aspect) override {
    const bool runs = control().value() > control().minimum() &&
                      (!control().screen().enabled() || host().pointer() == Pointer::hourglass);
    if (!runs) return view().setValue(0);
    showProgress(view(), control());
  }
};

class ProgressBinding final : public BindingOf<ProgressBar, QWidget> {
 public:
  ProgressBinding(QtHost& host, ProgressBar& control, QWidget& panel, QProgressBar& bar, QLabel& count)
      : BindingOf(host, control, panel), bar_(bar), count_(count) {
    refreshAll();
  }

 protected:
  void refresh(Aspect) override {
    showProgress(bar_, control());
    const std::int64_t total = std::int64_t{control().maximum()} - control().minimum();
    const std::int64_t done = std::int64_t{control().value()} - control().minimum();
    const QLocale numbers;
    count_.setText(done > 0 ? numbers.toString(done) + QStringLiteral(" de ") + numbers.toString(total) : QString());
  }

 private:
  QProgressBar& bar_;
  QLabel& count_;
};

/// The toolkit's own bar, lying down, answers the arrows up and down and not those of its own direction.
class PagesBar final : public QScrollBar {
 public:
  PagesBar() : QScrollBar(Qt::Horizontal) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Left) return triggerAction(SliderSingleStepSub);
    if (event->key() == Qt::Key_Right) return triggerAction(SliderSingleStepAdd);
    QScrollBar::keyPressEvent(event);
  }
};

/// The position with its two arrows, and what stands beside it.
class PagesPanel final : public QWidget {
 public:
  explicit PagesPanel(const QtHost& host) : bar_(new PagesBar), summary_(new QLabel) {
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(4);
    back_ = addArrow(*row, host, "seta-esquerda", QStringLiteral("Página anterior"), -1);
    bar_->setObjectName(QStringLiteral("pages"));
    bar_->setFocusPolicy(Qt::StrongFocus);
    bar_->setTracking(false);
    bar_->setInvertedControls(false);
    bar_->setPageStep(1);
    row->addWidget(bar_, 1);
    forward_ = addArrow(*row, host, "seta-direita", QStringLiteral("Próxima página"), 1);
    summary_->setFont(host.theme().labelFont());
    summary_->setProperty("role", "muted");
    row->addSpacing(6);
    row->addWidget(summary_);
    setFocusProxy(bar_);
  }
  QScrollBar& bar() const { return *bar_; }
  void show(int maximum, int value, const QString& summary) {
    const QSignalBlocker quiet(bar_);
    bar_->setRange(0, maximum);
    bar_->setValue(value);
    // It stays enabled with nothing to choose from: a page that fills has none for a moment, and must not lose the
    // focus.
    back_->setEnabled(value > 0);
    forward_->setEnabled(value < maximum);
    summary_->setText(summary);
    summary_->setVisible(!summary.isEmpty());
  }

 private:
  QToolButton* addArrow(QHBoxLayout& row, const QtHost& host, const char* icon, const QString& name, int step) {
    auto* const button = new QToolButton;
    button->setObjectName(QStringLiteral("inner"));
    button->setIcon(host.icons().icon(icon));
    button->setIconSize({measures::icon, measures::icon});
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(name);
    button->setAccessibleName(name);
    connect(button, &QToolButton::clicked, bar_, [this, step] { bar_->setValue(bar_->value() + step); });
    row.addWidget(button);
    return button;
  }

  QScrollBar* bar_;
  QLabel* summary_;
  QToolButton* back_ = nullptr;
  QToolButton* forward_ = nullptr;
};

class PagesBinding final : public BindingOf<PageScroll, QScrollBar> {
 public:
  PagesBinding(QtHost& host, PageScroll& control, PagesPanel& panel)
      : BindingOf(host, control, panel.bar()), panel_(panel) {
    connect(&panel.bar(), &QScrollBar::valueChanged, this, [this](int value) {
      enter([&] { this->control().userMove(static_cast<std::int16_t>(value)); });
      if (anyControl() != nullptr) refresh(Aspect::content);
    });
    refreshAll();
    setShell(panel);
  }

 protected:
  void refresh(Aspect) override { panel_.show(control().maximum(), control().value(), toQt(control().summary())); }

 private:
  PagesPanel& panel_;
};

}  // namespace

Binding& render(ProgressBar& control, QtHost& host) {
  auto* const panel = new QWidget;
  auto* const column = new QVBoxLayout(panel);
  column->setContentsMargins(0, 4, 0, 4);
  column->setSpacing(4);
  auto* const bar = new QProgressBar;
  bar->setTextVisible(false);
  auto* const count = new QLabel;
  count->setFont(host.theme().labelFont());
  count->setProperty("role", "muted");
  column->addWidget(bar);
  column->addWidget(count);
  return *new ProgressBinding(host, control, *panel, *bar, *count);
}

Binding& renderLine(ProgressBar& control, QtHost& host) {
  auto* const bar = new QProgressBar;
  bar->setObjectName(QStringLiteral("line"));
  bar->setTextVisible(false);
  bar->setFixedHeight(measures::progressLine);
  return *new LineBinding(host, control, *bar);
}

Binding& render(PageScroll& control, QtHost& host) { return *new PagesBinding(host, control, *new PagesPanel(host)); }

}  // namespace fenvale::qt

#include "platform/ui/qt/ScreenWindow.h"

#include <QAbstractItemView>
#include <QCloseEvent>
#include <QFileInfo>
#include <QFrame>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollArea>
#include <QSettings>
#include <QStyle>
#include <QStyleOption>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/ui/Choices.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Binding.h"
#include "platform/ui/qt/MenuViews.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Strings.h"
#include "platform/ui/qt/TimerTicks.h"

namespace fenvale::qt {
namespace {

Qt::WindowFlags flagsFor(ScreenStyle style) {
  switch (style) {
    case ScreenStyle::mainWindow:
      return Qt::Window;
    case ScreenStyle::splash:
      return Qt::SplashScreen | Qt::FramelessWindowHint;
    case ScreenStyle::dialog:
      break;
  }
  return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
         Qt::WindowMaximizeButtonHint;
}

/// What a window manager puts around a window, so that one that is as tall as the monitor still fits.
constexpr int frameAllowance = 32;

QString keyOfSize(const Screen& screen) { return QStringLiteral("telas/") + toQt(screen.sGetName()); }

}  // namespace

ScreenWindow::ScreenWindow(QtHost& host, Screen& screen, QWidget* below)
    : QWidget(below, flagsFor(screen.style())), host_(host), screen_(&screen) {
  setObjectName(screen.style() == ScreenStyle::splash ? QStringLiteral("splash") : toQt(screen.sGetName()));
  setAttribute(Qt::WA_StyledBackground);
  setFocusPolicy(Qt::StrongFocus);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  addMenuAndTools(*column);
  addBand(*column);
  addBody(*column);
  addFoot(*column);
  addStatus(*column);
  for (Binding* binding : built_.bindings) bindings_.emplace_back(binding);
  startTimers();
  controlVisibilityChanged();
  screenChanged();
}

ScreenWindow::~ScreenWindow() { release(); }

void ScreenWindow::release() {
  if (screen_ == nullptr) return;
  keepSize();
  for (const auto& binding : bindings_)
    if (binding != nullptr) static_cast<Binding*>(binding.data())->release();
  screen_ = nullptr;
}

void ScreenWindow::addMenuAndTools(QVBoxLayout& column) {
  for (Control* control : screen_->controls()) {
    Binding* binding = nullptr;
    if (control->kind() == ControlKind::menuBar) binding = &qt::render(static_cast<MenuBar&>(*control), host_);
    if (control->kind() == ControlKind::toolBar) binding = &qt::render(static_cast<ToolBar&>(*control), host_);
    if (binding == nullptr) continue;
    built_.bindings.push_back(binding);
    column.addWidget(&binding->widget());
  }
}

void ScreenWindow::addBand(QVBoxLayout& column) {
  band_ = new QWidget;
  band_->setObjectName(QStringLiteral("band"));
  band_->setAttribute(Qt::WA_StyledBackground);
  auto* const row = new QHBoxLayout(band_);
  row->setContentsMargins(measures::margin + 3, 9, measures::margin + 3, 9);
  row->setSpacing(2 * measures::gap);
  title_ = new QLabel;
  title_->setFont(host_.theme().titleFont());
  note_ = new QLabel;
  note_->setFont(host_.theme().labelFont());
  note_->setProperty("role", "muted");
  row->addWidget(title_, 1);
  row->addWidget(note_);
  column.addWidget(band_);
}

void ScreenWindow::addBody(QVBoxLayout& column) {
  scroll_ = new QScrollArea;
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  body_ = new QWidget;
  body_->setObjectName(QStringLiteral("body"));
  LayoutBuilder(host_, built_).fill(*body_, *screen_);
  scroll_->setWidget(body_);
  column.addWidget(scroll_, 1);
}

void ScreenWindow::addFoot(QVBoxLayout& column) {
  for (const LayoutNode* node : built_.footers) {
    auto* const foot = new QWidget;
    foot->setObjectName(QStringLiteral("foot"));
    foot->setAttribute(Qt::WA_StyledBackground);
    auto* const row = new QHBoxLayout(foot);
    row->setContentsMargins(measures::margin, 9, measures::margin, 9);
    row->setSpacing(6);
    LayoutBuilder(host_, built_).fillFoot(*row, *node);
    column.addWidget(foot);
  }
}

void ScreenWindow::addStatus(QVBoxLayout& column) {
  for (Control* control : screen_->controls()) {
    if (control->kind() != ControlKind::statusBar) continue;
    Binding& binding = qt::render(static_cast<StatusBar&>(*control), host_);
    built_.bindings.push_back(&binding);
    column.addWidget(&binding.widget());
  }
}

void ScreenWindow::startTimers() {
  for (Control* control : screen_->controls())
    if (control->kind() == ControlKind::timer)
      bindings_.emplace_back(new TimerTicks(host_, static_cast<Timer&>(*control), *this));
}

QSize ScreenWindow::designedSize() const {
  if (screen_->style() == ScreenStyle::mainWindow && screen_->preferredWidth() == 0) return {1024, 720};
  QSize size = layout()->sizeHint();
  const QSize least = body_->minimumSizeHint();
  const int wanted = built_.units * measures::unit - measures::gap + 2 * measures::margin;
  size.setWidth(std::max({wanted, least.width(), layout()->minimumSize().width()}));
  int outside = 0;
  for (int place = 0; place < layout()->count(); ++place) {
    const QWidget* const part = layout()->itemAt(place)->widget();
    if (part != nullptr && part != scroll_ && !part->isHidden()) outside += part->sizeHint().height();
  }
  size.setHeight(std::max(body_->sizeHint().height(), screen_->preferredHeight() * measures::textLine) + outside);
  return size;
}

void ScreenWindow::placeWithin(const QRect& available) {
  const int widest = available.width(), tallest = available.height() - frameAllowance;
  // Its width never cuts anything; its height may, since the body scrolls.
  const int least = std::max(body_->minimumSizeHint().width(), layout()->minimumSize().width());
  setMinimumWidth(std::min(least, widest));
  QSize size = designedSize().boundedTo({widest, tallest});
  placedSize_ = designed_ = size;
  if (!host_.options().geometryFile.isEmpty()) {
    const QSettings kept(host_.options().geometryFile, QSettings::IniFormat);
    const QSize wanted = kept.value(keyOfSize(*screen_)).toSize();
    if (wanted.isValid()) size = placedSize_ = wanted.expandedTo(minimumSize()).boundedTo({widest, tallest});
  }
  resize(size);
  QRect place(QPoint(), size);
  place.moveCenter(available.center());
  move(place.topLeft());
}

void ScreenWindow::showPlaced() {
  // Sizes are those of the style only once the widgets were polished.
  ensurePolished();
  for (QWidget* const part : findChildren<QWidget*>()) part->ensurePolished();
  placeWithin(screen()->availableGeometry());
  loadBackground();
  QWidget::show();
  growToContent();
  raise();
  activateWindow();
}

/// Texts that break into lines know their height only once they have their width.
void ScreenWindow::growToContent() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  const int missing = body_->minimumSizeHint().height() - scroll_->viewport()->height();
  if (missing <= 0 || size() != designed_) return;
  const QRect available = screen()->availableGeometry();
  resize(size().grownBy({0, 0, 0, missing}).boundedTo({available.width(), available.height() - frameAllowance}));
  placedSize_ = size();
  QRect place(QPoint(), size());
  place.moveCenter(available.center());
  move(place.topLeft());
}

void ScreenWindow::keepSize() const {
  if (host_.options().geometryFile.isEmpty() || size() == placedSize_ || isMaximized() || !placedSize_.isValid())
    return;
  QSettings kept(host_.options().geometryFile, QSettings::IniFormat);
  kept.setValue(keyOfSize(*screen_), size());
}

void ScreenWindow::screenChanged() {
  setWindowTitle(toQt(screen_->caption().empty() ? screen_->title() : screen_->caption()));
  title_->setText(withoutAccessKey(screen_->title()));
  note_->setText(toQt(screen_->note()));
  band_->setVisible(!screen_->title().empty());
  for (const auto& binding : bindings_)
    if (auto* one = static_cast<Binding*>(binding.data()); one != nullptr && one->anyControl() != nullptr)
      if (one->anyControl()->kind() == ControlKind::progressBar) one->controlChanged(Aspect::range);
  if (isVisible() && toQt(screen_->background()) != backgroundPath_) loadBackground();
}

void ScreenWindow::themeChanged() {
  loadBackground();
  for (QWidget* const part : findChildren<QWidget*>()) part->update();
  update();
}

void ScreenWindow::loadBackground() {
  backgroundPath_ = toQt(screen_->background());
  QString path = backgroundPath_;
  if (host_.theme().scheme() == Scheme::dark) {
    const QFileInfo plain(path);
    const QString dark = plain.path() + u'/' + plain.completeBaseName() + QStringLiteral("-escuro.") + plain.suffix();
    if (QFileInfo::exists(dark)) path = dark;
  }
  background_ = path.isEmpty() ? QPixmap() : QPixmap(path);
  update();
}

void ScreenWindow::controlVisibilityChanged() {
  for (const BuiltLayout::Group& group : built_.groups) {
    const bool any = group.controls.empty() || std::any_of(group.controls.begin(), group.controls.end(),
                                                           [](const Control* one) { return one->visible(); });
    if (group.tabs == nullptr) {
      group.page->setVisible(any);
    } else {
      const int tab = group.tabs->indexOf(group.page);
      group.tabs->setTabVisible(tab, any);
      group.tabs->setTabEnabled(tab, any);  // Ctrl+Tab stops at tabs that are hidden and nothing else
    }
  }
}

Binding* ScreenWindow::bindingOf(const Control& control) const {
  for (const auto& one : bindings_) {
    auto* const binding = static_cast<Binding*>(one.data());
    if (binding != nullptr && binding->anyControl() == &control) return binding;
  }
  return nullptr;
}

QWidget* ScreenWindow::widgetOf(const Control& control) const {
  const Binding* const binding = bindingOf(control);
  return binding == nullptr ? nullptr : &binding->widget();
}

void ScreenWindow::giveFocus(Control& control) {
  Binding* const binding = bindingOf(control);
  if (binding == nullptr) return;
  QWidget& widget = binding->widget();
  for (const BuiltLayout::Group& group : built_.groups)
    if (group.tabs != nullptr && group.page->isAncestorOf(&widget)) group.tabs->setCurrentWidget(group.page);
  // A window that is not yet the active one tells no box that the focus left it: what was marked there would stay so.
  if (auto* const left = qobject_cast<QLineEdit*>(focusWidget()); left != nullptr && left != &widget) left->deselect();
  widget.setFocus(Qt::OtherFocusReason);
  bringIntoView(widget);
  // A box that is given the focus is to be typed over, also when it had the focus: a new record proposes its code.
  if (QGuiApplication::mouseButtons() == Qt::NoButton) binding->focusGiven();
}

void ScreenWindow::bringIntoView(QWidget& widget) {
  if (body_->isAncestorOf(&widget)) scroll_->ensureWidgetVisible(&widget, 0, 24);
}

void ScreenWindow::commitFocused() {
  if (screen_ == nullptr || screen_->focused() == nullptr) return;
  if (Binding* const binding = bindingOf(*screen_->focused())) binding->commit();
}

QPoint ScreenWindow::popupPlace() const {
  if (QGuiApplication::mouseButtons() != Qt::NoButton) return QCursor::pos();
  if (const auto* const rows = qobject_cast<const QAbstractItemView*>(focusWidget());
      rows != nullptr && rows->currentIndex().isValid())
    return rows->viewport()->mapToGlobal(QPoint(16, rows->visualRect(rows->currentIndex()).bottom() + 1));
  if (const QWidget* const focused = focusWidget()) return focused->mapToGlobal(QPoint(16, measures::boxHeight));
  return mapToGlobal(rect().center());
}

void ScreenWindow::paintEvent(QPaintEvent*) {
  QStyleOption option;
  option.initFrom(this);
  QPainter painter(this);
  style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
  if (background_.isNull()) return;
  const QRect place = scroll_->geometry();
  const QSizeF covering = QSizeF(background_.size()).scaled(place.size(), Qt::KeepAspectRatioByExpanding);
  QRectF picture(QPointF(), covering);
  picture.moveTopLeft(place.topLeft());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.setClipRect(place);
  painter.drawPixmap(picture, background_, QRectF(background_.rect()));
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (screen_ == nullptr || askedToClose_) return;
  const bool below = host_.topWindow() != this;
  if (below && screen_->style() != ScreenStyle::mainWindow) return;
  askedToClose_ = true;
  const QPointer<ScreenWindow> self(this);
  host_.enter([this] { screen_->userClose(); });
  if (self != nullptr) askedToClose_ = false;
}

}  // namespace fenvale::qt

#include "platform/ui/qt/Icons.h"

#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "platform/ui/qt/Strings.h"
#include "platform/ui/qt/Theme.h"

namespace fenvale::qt {
namespace {

/// The one colour that the drawings are made in.
constexpr const char* drawnStroke = "#1d2422";

/// Draws by name at every size, in the colours of the moment, so that a change of scheme needs no new icons.
class DrawingEngine final : public QIconEngine {
 public:
  DrawingEngine(const Icons& icons, std::string name, bool accent)
      : icons_(icons), name_(std::move(name)), accent_(accent) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const Tokens& t = icons_.theme().tokens();
    icons_.paint(*painter, rect, name_, mode == QIcon::Disabled ? t.disabledText : accent_ ? t.accent : t.text);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new DrawingEngine(*this); }

 private:
  const Icons& icons_;
  std::string name_;
  bool accent_;
};

}  // namespace

const QByteArray& Icons::drawing(const std::string& name) const {
  auto found = drawings_.find(name);
  if (found == drawings_.end()) {
    QFile file(folder_ + u'/' + toQt(name) + QStringLiteral(".svg"));
    const bool there = !folder_.isEmpty() && !name.empty() && file.open(QIODevice::ReadOnly);
    found = drawings_.emplace(name, there ? file.readAll() : QByteArray()).first;
  }
  return found->second;
}

bool Icons::has(const std::string& name) const { return !drawing(name).isEmpty(); }

QIcon Icons::icon(const std::string& name) const {
  return has(name) ? QIcon(new DrawingEngine(*this, name, false)) : QIcon();
}

QIcon Icons::accentIcon(const std::string& name) const {
  return has(name) ? QIcon(new DrawingEngine(*this, name, true)) : QIcon();
}

void Icons::paint(QPainter& painter, const QRectF& place, const std::string& name, const QColor& colour) const {
  QByteArray picture = drawing(name);
  if (picture.isEmpty()) return;
  picture.replace(drawnStroke, colour.name().toLatin1());
  QSvgRenderer(picture).render(&painter, place);
}

}  // namespace fenvale::qt

#pragma once
// The program's icon set: line drawings whose one stroke takes the colour of the place where they stand.

#include <QIcon>
#include <QString>
#include <map>
#include <string>

namespace fenvale::qt {

class Theme;

class Icons {
 public:
  /// `folder` holds <name>.svg files; a missing file is an icon that draws nothing.
  Icons(QString folder, const Theme& theme) : folder_(std::move(folder)), theme_(&theme) {}
  void setTheme(const Theme& theme) { theme_ = &theme; }

  bool has(const std::string& name) const;
  /// Drawn in the text colour of the scheme of the moment; muted when disabled. Null when there is no such icon.
  QIcon icon(const std::string& name) const;
  /// The same in the accent.
  QIcon accentIcon(const std::string& name) const;
  void paint(QPainter& painter, const QRectF& place, const std::string& name, const QColor& colour) const;

  const Theme& theme() const { return *theme_; }

 private:
  const QByteArray& drawing(const std::string& name) const;
  QString folder_;
  const Theme* theme_;
  mutable std::map<std::string, QByteArray> drawings_;
};

}  // namespace fenvale::qt

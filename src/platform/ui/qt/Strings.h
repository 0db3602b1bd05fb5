#pragma once
// Between the screens' UTF-8 and the toolkit's own text.

#include <QString>
#include <string>
#include <string_view>

namespace fenvale::qt {

inline QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQt(const QString& text) { return text.toStdString(); }

/// A caption without the "&" of its access key ("&&" is one "&").
QString withoutAccessKey(std::string_view caption);

/// A name as those hear it who cannot see the screen: no access key, no colon at the end.
QString spokenName(std::string_view caption);

}  // namespace fenvale::qt

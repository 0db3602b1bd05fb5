#include "platform/ui/qt/Strings.h"

namespace fenvale::qt {

QString withoutAccessKey(std::string_view caption) {
  const QString text = toQt(caption);
  QString plain;
  for (qsizetype place = 0; place < text.size(); ++place) {
    if (text[place] == u'&' && place + 1 < text.size()) ++place;
    plain += text[place];
  }
  return plain;
}

QString spokenName(std::string_view caption) {
  QString name = withoutAccessKey(caption).trimmed();
  while (name.endsWith(u':')) name.chop(1);
  return name;
}

}  // namespace fenvale::qt

#pragma once
// How the window tests want their host.

#include <QString>

#include "platform/ui/qt/QtHost.h"

namespace fenvale::qt {

/// With the program's icons; waits take no time.
inline HostOptions testOptions(Scheme scheme = Scheme::light) {
  return {.iconFolder = QStringLiteral(FENVALE_SOURCE_DIR "/data/icones"),
          .geometryFile = {},
          .scheme = scheme,
          .immediate = true};
}

/// Light, unless FENVALE_ESCURO is set: for tests that leave pictures.
inline Scheme pictureScheme() { return qEnvironmentVariableIsSet("FENVALE_ESCURO") ? Scheme::dark : Scheme::light; }

}  // namespace fenvale::qt

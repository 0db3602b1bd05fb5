#pragma once
// The windows of a measuring program, which nobody sees.

#include <QString>

#include "platform/ui/qt/QtHost.h"

namespace fenvale::bancada {

/// With the program's icons; waits take no time.
inline qt::HostOptions janelasOcultas() {
  return {.iconFolder = QStringLiteral(FENVALE_SOURCE_DIR "/data/icones"),
          .geometryFile = {},
          .scheme = {},
          .immediate = true};
}

}  // namespace fenvale::bancada

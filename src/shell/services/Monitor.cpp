#include "shell/services/Monitor.h"

#include "platform/ui/UiHost.h"

namespace fenvale {

std::string Monitor::sObterResolucaoMonitor() const {
  const Size tamanho = host_.monitorSize();
  return std::to_string(tamanho.width) + "x" + std::to_string(tamanho.height);
}

}  // namespace fenvale

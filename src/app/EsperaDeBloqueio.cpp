#include "app/EsperaDeBloqueio.h"

#include "platform/ui/UiHost.h"

namespace fenvale {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds primeiroAviso{2000};
/// Between two questions to somebody who goes on waiting.
constexpr milliseconds entreAvisos{15000};

}  // namespace

bool EsperaDeBloqueio::keepWaiting(milliseconds waited) {
  host_.doEvents();
  // A time shorter than the last one is another statement's wait.
  if (waited < primeiroAviso) proximoAviso_ = primeiroAviso;
  if (waited < proximoAviso_) return true;
  proximoAviso_ = waited + entreAvisos;
  return host_.messageBox({BoxStyle::question, BoxButtons::yesNo, "Norvane Sistemas",
                           "Outro programa está gravando na mesma base de dados.\r\n\r\nDeseja continuar "
                           "esperando?"}) == BoxAnswer::yes;
}

}  // namespace fenvale

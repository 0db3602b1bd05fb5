#pragma once
// The waiting screen while the cities are being seeded.

#include "shell/services/TelaEspera.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

class frmMensagem final : public TelaEspera, public TelaMensagem {
 public:
  explicit frmMensagem(Contexto& contexto);

  void vCarregar(const std::string& sMensagem, bool bEmpresa) override;
  void vFechar() override;

 private:
  bool bCarregando_ = false;
};

}  // namespace fenvale

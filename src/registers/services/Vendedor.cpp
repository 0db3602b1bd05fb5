#include "registers/services/Vendedor.h"

namespace fenvale {

void Vendedor::vSetEstado(std::int32_t lCodigo, const std::string& sNome) {
  lCodigo_ = lCodigo;
  sNome_ = sNome;
}

}  // namespace fenvale

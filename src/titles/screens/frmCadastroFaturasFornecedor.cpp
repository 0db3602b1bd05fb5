#include "titles/screens/frmCadastroFaturasFornecedor.h"

#include "titles/services/Lado.h"

namespace fenvale {

frmCadastroFaturasFornecedor::frmCadastroFaturasFornecedor(Contexto& contexto) : TelaFaturas(contexto, ladoPagar()) {}

void frmCadastroFaturasFornecedor::vSetFornecedor(std::int32_t lChave, const std::string& sNome) {
  entidades.pessoa.busca.vSet(lChave, sNome);
}

}  // namespace fenvale

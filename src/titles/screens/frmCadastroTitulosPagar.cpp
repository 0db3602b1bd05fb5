#include "titles/screens/frmCadastroTitulosPagar.h"

#include "titles/services/Lado.h"

namespace fenvale {

frmCadastroTitulosPagar::frmCadastroTitulosPagar(Contexto& contexto) : TelaTitulosCadastro(contexto, ladoPagar()) {}

void frmCadastroTitulosPagar::vSetFornecedor(std::int32_t lChave, const std::string& sNome) {
  entidades.pessoa.busca.vSet(lChave, sNome);
}

}  // namespace fenvale

#include "titles/screens/frmCadastroTitulosReceber.h"

#include "titles/services/Lado.h"

namespace fenvale {

frmCadastroTitulosReceber::frmCadastroTitulosReceber(Contexto& contexto)
    : TelaTitulosCadastro(contexto, ladoReceber()) {}

void frmCadastroTitulosReceber::vSetCliente(std::int32_t lChave, const std::string& sNome) {
  entidades.pessoa.busca.vSet(lChave, sNome);
}

void frmCadastroTitulosReceber::vSetVendedor(std::int32_t lChave, const std::string& sNome) {
  entidades.vendedor->busca.vSet(lChave, sNome);
}

}  // namespace fenvale

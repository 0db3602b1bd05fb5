#include "titles/screens/frmCadastroFaturasCliente.h"

#include "titles/services/Lado.h"

namespace fenvale {

frmCadastroFaturasCliente::frmCadastroFaturasCliente(Contexto& contexto) : TelaFaturas(contexto, ladoReceber()) {}

void frmCadastroFaturasCliente::vSetCliente(std::int32_t lChave, const std::string& sNome) {
  entidades.pessoa.busca.vSet(lChave, sNome);
}

void frmCadastroFaturasCliente::vSetVendedor(std::int32_t lChave, const std::string& sNome) {
  entidades.vendedor->busca.vSet(lChave, sNome);
}

}  // namespace fenvale

#include "overview/services/QuadroGeralContas.h"

#include <cstddef>

#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "store/services/DBConectar.h"

namespace fenvale {

QuadroGeralContas::QuadroGeralContas(Contexto& contexto) {
  const Recordset rs(
      "SELECT bitMostrarContasPagarDia, bitMostrarContasReceberDia, bitMostrarContasVencidasPagar, "
      "bitMostrarContasVencidasReceber FROM Sistema ",
      contexto.dbConectar().Dados(), CursorType::forwardOnly, LockType::readOnly);
  if (rs.eof()) return;
  std::size_t coluna = 0;
  for (bool* bMostrar : {&bMostrarContasPagarDia, &bMostrarContasReceberDia, &bMostrarContasPagarVencidas,
                         &bMostrarContasReceberVencidas}) {
    *bMostrar = rs.field(coluna++).toBoolean();
    bMostrarTodas = bMostrarTodas || *bMostrar;
  }
}

}  // namespace fenvale

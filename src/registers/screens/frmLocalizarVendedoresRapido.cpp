#include "registers/screens/frmLocalizarVendedoresRapido.h"

#include "platform/sql/Store.h"

namespace fenvale {

frmLocalizarVendedoresRapido::frmLocalizarVendedoresRapido(Contexto& contexto)
    : TelaBuscaRapida(contexto, buscaRapida("frmLocalizarVendedoresRapido")) {}

void frmLocalizarVendedoresRapido::vLocalizarOBJ(Vendedor& vendedor, TextControl& caixa) {
  vAbrirPara([&vendedor, &caixa](const Recordset& rs) {
    vendedor.vSetEstado(rs["lCodigo"].toLong(), rs["sNome"].toText());
    caixa.setText(vendedor.sGetNome());
  });
}

}  // namespace fenvale

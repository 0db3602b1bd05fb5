#pragma once
// The columns of the lists of invoices and titles, told by the side of the ledger. They are made tied to nothing; a
// register ties to them the places that a click on a row fills.

#include <string_view>
#include <vector>

#include "registers/services/TelaPaginada.h"

namespace fenvale {

struct Lado;

// Of customer or supplier and the like a hidden column with the key and a column with the name, that wide.
std::vector<ColunaLista> colunasPessoa(const Lado& lado, float fLargura = 3000);
std::vector<ColunaLista> colunasPortador(float fLargura = 1800);
/// None on a side without salespeople.
std::vector<ColunaLista> colunasVendedor(const Lado& lado, float fLargura = 1900);
std::vector<ColunaLista> colunasCentroCusto();

/// The title lists: of the register, and of the search for settlement, which hands its rows to the register. On a
/// screen of the designed width everything up to the title's value is in sight.
std::vector<ColunaLista> colunasTitulos(const Lado& lado);

/// Columns are listed in the order in which they stand, group after group.
void vAcrescentar(std::vector<ColunaLista>& colunas, std::vector<ColunaLista> outras);
/// The column that shows that field, which must be there, fills that place.
void vLigar(std::vector<ColunaLista>& colunas, std::string_view sCampo, Ligacao destino);

}  // namespace fenvale

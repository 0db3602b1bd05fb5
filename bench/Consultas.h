#pragma once
// The statements of some lists as their screens write them, and the same rows asked of SQLite by hand: the page's keys
// first, then each row by its key, and no join that brings no column.

#include <string>
#include <string_view>
#include <vector>

namespace fenvale::bancada {

class Comando;

struct Consulta {
  std::string sPrograma;  ///< in the program's dialect
  std::string sContagem;  ///< by hand: how many rows
  std::string sChaves;    ///< by hand: ?1 keys from the row ?2 on, counted from 0
  std::string sLinha;     ///< by hand: the row of the key ?1
  std::string sFormas;    ///< of the columns of sLinha, as linhaMostrada() takes them
};

Consulta consultaClientes();
/// With the clause that the screen of titles opens with: unpaid ones.
Consulta consultaTitulosAbertos();
/// What the search for settlement opens with: unpaid titles, of every invoice.
Consulta consultaBuscaBaixa();
/// All titles, paid and unpaid.
Consulta consultaTitulos();

/// What a program makes of the row at which the statement stands to show it. Each column has its letter: "t" takes it
/// as it is, "m" is money, "d" a date.
std::vector<std::string> linhaMostrada(const Comando& comando, std::string_view sFormas);

}  // namespace fenvale::bancada

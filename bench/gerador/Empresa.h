#pragma once
// A company's store of any size, filled the same way every time.

#include <cstdint>
#include <optional>
#include <string>

#include "gerador/Negocios.h"
#include "platform/base/Date.h"

namespace fenvale::bancada {

struct PedidoEmpresa {
  std::string sArquivo;
  std::string sPastaDados;  ///< holds SQLEmpresas.xmlSQL, Cidades.XML, Bancos.XML
  Volume volume{};
  Date hoje{};  ///< the day up to which business was done
  std::uint64_t semente = 1;
  /// How many unpaid titles are overdue on `hoje`, where business left more of them: the others were paid on their day.
  std::optional<std::uint32_t> vencidos{};
};

/// Makes the file anew from the project's script: tables, registers and seeds by statements in the program's dialect,
/// customers, invoices and titles by SQLite's own interface. Codes are those the screens would give; keys run from 1.
/// Error 0x80040E17 when the file exists; after any other error there is no file.
void gerarEmpresa(const PedidoEmpresa& pedido);

}  // namespace fenvale::bancada

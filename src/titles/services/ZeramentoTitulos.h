#pragma once
// The purge of settled titles, which keeps a company's file small, and of the invoices that are left with no titles.

#include <cstdint>
#include <functional>
#include <string>

#include "platform/base/Date.h"

namespace fenvale {

class Contexto;

/// Works on the store of the open company, inside the transaction of its caller. Raises every Error to it.
class ZeramentoTitulos {
 public:
  enum class Escolha { pagosRecebidos, recebidos, pagos };
  /// How many invoices of a table were looked at, and how many there are. Told once with 0 before the first, once for
  /// each, and with 0 again when the table is done.
  using Progresso = std::function<void(std::int32_t lVistas, std::int32_t lFaturas)>;

  ZeramentoTitulos(Contexto& contexto, Progresso progresso);
  static const char* sGetName() { return "ZeramentoTitulos"; }

  /// Deletes the titles that were paid from `dtInicial` to `dtFinal`, both included, and sweeps the invoices of the
  /// same sides. Open titles stay, whatever filler stands as their date of payment. Reversed dates match nothing.
  void vZerar(Escolha escolha, Date dtInicial, Date dtFinal);
  /// Deletes every invoice of `sFatura` that no title of `sTabela` names in `sCampo`, whether or not it ever had one.
  void vApagarFaturasSemTitulos(const std::string& sCampo, const std::string& sTabela, const std::string& sFatura);

 private:
  void vApagarTitulos(const std::string& sTabela, Date dtInicial, Date dtFinal);

  Contexto& contexto_;
  Progresso progresso_;
};

}  // namespace fenvale

#pragma once
// The Brazilian tax-number checks, the e-mail check, and the functions that turn values into the text of SQL literals.
// Since all SQL is built by joining text, every value that a person typed goes through one of them.

#include <string>
#include <string_view>

#include "platform/base/Currency.h"
#include "platform/base/Date.h"

namespace fenvale {

/// Stateless. The checks rewrite their argument: cleaned of blanks and punctuation, it stays so for the caller.
class Validacoes {
 public:
  static bool bValidarCPF(std::string& sCPF);
  /// Numbers of 14 characters, digits or (since July 2026) capitals in the first twelve places, and the short root
  /// of 8.
  static bool bValidarCNPJ(std::string& sCNPJ);
  static bool bValidarEMail(std::string& sEMail);

  /// A plain number with a point and no idle zeros: 1234.5.
  static std::string sGetFloatSQL(Currency fValor);
  /// Apostrophes doubled, blanks at the end taken off. The enclosing apostrophes are the caller's.
  static std::string sGetStringSQL(std::string_view sTexto);
  /// mm/dd/yyyy. The enclosing "#" are the caller's.
  static std::string sGetDataSQL(Date dtData);
  static std::string sTirarFragString(std::string_view sTexto);
};

}  // namespace fenvale

#include "shell/services/ComandosSQL.h"

#include "shell/services/Validacoes.h"

namespace fenvale {

std::string sTextoSQL(std::string_view sTexto) { return "'" + Validacoes::sGetStringSQL(sTexto) + "'"; }

std::string sLogicoSQL(bool bValor) { return bValor ? "-1" : "0"; }

std::string sComandoInclusao(const std::string& sTabela, const ValoresSQL& valores) {
  std::string sColunas, sLiterais;
  for (const auto& [sColuna, sLiteral] : valores) {
    const char* const sVirgula = sColunas.empty() ? "" : ", ";
    sColunas += sVirgula + sColuna;
    sLiterais += sVirgula + sLiteral;
  }
  return "INSERT INTO " + sTabela + " (" + sColunas + ") VALUES (" + sLiterais + ")";
}

std::string sComandoAlteracao(const std::string& sTabela, const ValoresSQL& valores) {
  std::string sAtribuicoes;
  for (const auto& [sColuna, sLiteral] : valores) {
    if (!sAtribuicoes.empty()) sAtribuicoes += ", ";
    sAtribuicoes.append(sColuna).append(" = ").append(sLiteral);
  }
  return "UPDATE " + sTabela + " SET " + sAtribuicoes;
}

std::string sComandoAlteracao(const std::string& sTabela, const ValoresSQL& valores, std::int32_t lCodigo) {
  return sComandoAlteracao(sTabela, valores) + " WHERE lCodigo = " + std::to_string(lCodigo);
}

}  // namespace fenvale

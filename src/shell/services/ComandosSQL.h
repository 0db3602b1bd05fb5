#pragma once
// The text of the statements that write a row, from its columns and their literals.

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fenvale {

/// A column and its SQL literal.
using ValoresSQL = std::vector<std::pair<std::string, std::string>>;

/// The literal of a text: 'D''Oeste'.
std::string sTextoSQL(std::string_view sTexto);
/// -1 for yes, 0 for no.
std::string sLogicoSQL(bool bValor);
std::string sComandoInclusao(const std::string& sTabela, const ValoresSQL& valores);
/// Of every row of the table.
std::string sComandoAlteracao(const std::string& sTabela, const ValoresSQL& valores);
std::string sComandoAlteracao(const std::string& sTabela, const ValoresSQL& valores, std::int32_t lCodigo);

}  // namespace fenvale

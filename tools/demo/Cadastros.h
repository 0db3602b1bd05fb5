#pragma once
// The registers of the demonstration's company, and the rows of the program's own store.

#include <cstdint>
#include <string>
#include <vector>

namespace fenvale {

class Connection;
class Contexto;

namespace demonstracao {

/// A stored row as the invoices need it.
struct CondicaoPagamento {
  std::int32_t lCodigo;
  std::int16_t iNumeroParcelas;
  std::int16_t iIntervalo;
  bool bEntrada;
};

/// The keys of what was stored.
struct Registros {
  std::vector<std::int32_t> clientes, fornecedores, portadores, vendedores, centrosCusto;
  std::vector<CondicaoPagamento> condicoes;
};

/// Users, the firm's data and settings, in the program's store.
void vCadastrarPrograma(Contexto& contexto);
/// The company's own data.
void vCadastrarDadosEmpresa(Contexto& contexto);
Registros cadastrarEmpresa(Contexto& contexto);

/// A text as a literal.
std::string sTexto(const std::string& sValor);
void vExecutar(Connection& conexao, const std::string& sSQL);

}  // namespace demonstracao
}  // namespace fenvale

#pragma once
// A folder that the program opens at once: its own store, the firm's data, two users, and one company with a year of
// business up to today. All of it is made by the program's own services, so that it obeys their rules.

#include <cstdint>
#include <string>

#include "platform/base/Date.h"

namespace fenvale {

class Process;

namespace demonstracao {

struct Pedido {
  std::string sPasta;          ///< to be filled; without a separator at its end
  std::string sPastaArquivos;  ///< where the scripts and seeds are that the folder may lack
  Date hoje{};
  Process& processo;  ///< ended by a service that fails for good
};

struct Resumo {
  std::int32_t lClientes = 0;
  std::int32_t lFornecedores = 0;
  std::int32_t lFaturas = 0;  ///< of both sides
  std::int32_t lTitulos = 0;  ///< of both sides
};

/// Error 75, with a sentence for the user, when the folder holds data already: they stay as they are. After any other
/// Error the folder holds no data.
Resumo preencher(const Pedido& pedido);

/// Takes away what preencher() makes. For a process that ends before it has returned.
void vDesfazer(const std::string& sPasta);

}  // namespace demonstracao
}  // namespace fenvale

#pragma once
// The search for a city, in the program's store or the company's.

#include "registers/services/Cidade.h"
#include "shell/services/TelasDeApoio.h"
#include "store/screens/TelaBuscaLista.h"

namespace fenvale {

class frmLocalizarCidades final : public TelaBuscaLista, public BuscaCidade {
 public:
  explicit frmLocalizarCidades(Contexto& contexto);

  void vCarregar(bool bEmpresa) override;
  const Cidade& cidade() const override { return cidade_; }

 protected:
  std::string sConsulta(const std::string& sPrefixo) const override;
  std::string sCampoNome() const override { return "sNome"; }
  Connection& conexao() const override;
  void vEscolher(std::int32_t lCodigo) override;

 private:
  bool bEmpresa_ = false;
  Cidade cidade_;
};

}  // namespace fenvale

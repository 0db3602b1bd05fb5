#pragma once
// The full searches of the registers that are nothing but a code and a name.

#include "registers/screens/TelaBuscaCompleta.h"

namespace fenvale {

struct DescricaoBuscaCodigoNome {
  std::string sNome;     ///< "frmLocalizarCategorias"
  std::string sLegenda;  ///< "Localizar categoria"
  std::string sCampoCodigo;
  std::int32_t lMaiorCodigo;
  std::string sCampoTexto;
  std::string sCaixaTexto;  ///< "txtNome"
  std::string sRotulo;      ///< "Nome"
  bool bLinhaPadrao;        ///< keeps the hidden row out
};

const std::vector<DescricaoBuscaCodigoNome>& buscasCodigoNome();

class BuscaCodigoNome final : public TelaBuscaCompleta {
 public:
  BuscaCodigoNome(Contexto& contexto, const DescricaoBuscaCodigoNome& descricao);

  CodeBox txtCodigoInf;
  TextBox txtNome;
};

}  // namespace fenvale

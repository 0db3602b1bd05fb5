#pragma once
// The registers that are nothing but a code and a name. Each is one row of a table; another is another row.

#include <string>
#include <vector>

#include "registers/screens/TelaCadastro.h"

namespace fenvale {

struct DescricaoCodigoNome {
  std::string sNome;     ///< "frmCadastroCategorias"
  std::string sLegenda;  ///< "Categorias"
  std::string sTitulo;   ///< "Cadastro de categorias"; the title of the printed list too
  std::string sTabela;   ///< "Categorias"
  std::string sCampoCodigo;
  std::int32_t lMaiorCodigo;
  std::string sCampoTexto;
  std::string sCaixaTexto;  ///< "txtNome"
  std::string sRotulo;      ///< "Nome"
  std::string sExigencia;   ///< "Informe o nome."
  bool bLinhaPadrao;        ///< whether the table holds a hidden row with an empty name
  std::string sBusca;       ///< "frmLocalizarCategorias"
};

const std::vector<DescricaoCodigoNome>& cadastrosCodigoNome();

class CadastroCodigoNome final : public TelaCadastro {
 public:
  CadastroCodigoNome(Contexto& contexto, const DescricaoCodigoNome& descricao);

  CodeBox txtCodigoInf;
  TextBox txtNome;
};

}  // namespace fenvale

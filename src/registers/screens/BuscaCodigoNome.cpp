#include "registers/screens/BuscaCodigoNome.h"

namespace fenvale {

const std::vector<DescricaoBuscaCodigoNome>& buscasCodigoNome() {
  static const std::vector<DescricaoBuscaCodigoNome> buscas{
      {"frmLocalizarCategorias", "Localizar categoria", "btCodigoInf", 255, "sNome", "txtNome", "Nome", true},
      {"frmLocalizarPortadores", "Localizar portador", "btCodigoInf", 255, "sNome", "txtNome", "Nome", false},
      {"frmLocalizarVendedor", "Localizar vendedor", "lCodigoInf", 2147483647, "sNome", "txtNome", "Nome", true},
      {"frmLocalizarCentroCusto", "Localizar centro de custo", "btCodigoInf", 255, "sDescricao", "txtDescricao",
       "Descrição", true},
  };
  return buscas;
}

BuscaCodigoNome::BuscaCodigoNome(Contexto& contexto, const DescricaoBuscaCodigoNome& d)
    : TelaBuscaCompleta(contexto, d.sNome, d.sLegenda),
      txtCodigoInf(*this, "txtCodigoInf", d.lMaiorCodigo),
      txtNome(*this, d.sCaixaTexto, 50) {
  const std::string sVisiveis = d.bLinhaPadrao ? "AND " + d.sCampoTexto + " <> '' " : "";
  vSetCriterios({[this, sCampo = d.sCampoTexto, sVisiveis] { return sPrefixo(sCampo, txtNome) + sVisiveis; },
                 igual(d.sCampoCodigo, txtCodigoInf)});
  vMontarTela({linha({campo("&Código", txtCodigoInf, 3), campo("&" + d.sRotulo, txtNome, cresce)})});
  setPreferredSize(16, 0);
}

}  // namespace fenvale

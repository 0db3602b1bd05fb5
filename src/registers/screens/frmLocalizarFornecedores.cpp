#include "registers/screens/frmLocalizarFornecedores.h"

namespace fenvale {

frmLocalizarFornecedores::frmLocalizarFornecedores(Contexto& contexto)
    : TelaBuscaCompleta(contexto, "frmLocalizarFornecedores", "Localizar fornecedor"),
      FormularioFornecedor(*this, contexto) {
  vSetCriterios({[this] { return sPrefixo("Fornecedores.sNome", txtNome); }, igual("lCodigoInf", txtCodigoInf),
                 prefixo("sEndereco", txtEndereco), prefixo("sCEP", txtCEP), prefixo("sTelefone", txtTelefone),
                 prefixo("sFax", txtFax), prefixo("sContato", txtContato), prefixo("sCPF", txtCPF),
                 prefixo("sIE", txtIE), prefixo("sCNPJ", txtCNPJ), prefixo("sEmail", txtEMail),
                 prefixo("sHomePage", txtHomePage), prefixo("txtObs", txtObs), prefixo("sAgencia", txtAgencia),
                 prefixo("sConta", txtConta), chave("lCategoria", [this] { return categoria.lCodigo; }),
                 chave("lCidade", [this] { return cidade.lGetCodigo(); }),
                 chave("lBanco", [this] { return banco.lGetCodigo(); })});
  vMontarTela(linhas());
  setPreferredSize(24, 0);
}

}  // namespace fenvale

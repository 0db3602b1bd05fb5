#include "registers/screens/frmLocalizarClientes.h"

#include "shell/services/Contexto.h"

namespace fenvale {

frmLocalizarClientes::frmLocalizarClientes(Contexto& contexto)
    : TelaBuscaCompleta(contexto, "frmLocalizarClientes", "Localizar cliente"), FormularioCliente(*this, contexto) {
  chkNascimento.onClick = [this] {
    dtNascimentoInicial.setEnabled(chkNascimento.checked());
    dtNascimentoFinal.setEnabled(chkNascimento.checked());
  };
  vSetCriterios({[this] { return sPrefixo("Clientes.sNome", txtNome); },
                 igual("lCodigoInf", txtCodigoInf),
                 prefixo("sEndereco", txtEndereco),
                 prefixo("sBairro", txtBairro),
                 prefixo("sCEP", txtCEP),
                 prefixo("sTelefone", txtTelefone),
                 prefixo("sFax", txtFax),
                 prefixo("sContato", txtContato),
                 prefixo("sRG", txtRG),
                 prefixo("sCPF", txtCPF),
                 prefixo("sIE", txtIE),
                 prefixo("sCNPJ", txtCNPJ),
                 prefixo("sPai", txtPai),
                 prefixo("sMae", txtMae),
                 prefixo("sEmail", txtEMail),
                 periodo("dtNascimento", chkNascimento, dtNascimentoInicial, dtNascimentoFinal),
                 prefixo("sHomePage", txtHomePage),
                 prefixo("txtObs", txtObs),
                 prefixo("sEnderecoEntrega", txtEnderecoEntrega),
                 prefixo("sBairroEntrega", txtBairroEntrega),
                 prefixo("sCEPEntrega", txtCEPEntrega),
                 prefixo("sEnderecoCobranca", txtEnderecoCobranca),
                 prefixo("sBairroCobranca", txtBairroCobranca),
                 prefixo("sCEPCobranca", txtCEPCobranca),
                 chave("lCategoria", [this] { return categoria.lCodigo; }),
                 chave("lCidade", [this] { return cidade.lGetCodigo(); }),
                 chave("lVendedor", [this] { return vendedor.lCodigo; }),
                 chave("lCidadeEntrega", [this] { return cidadeEntrega.lGetCodigo(); }),
                 chave("lCidadeCobranca", [this] { return cidadeCobranca.lGetCodigo(); })});
  vMontarFormulario();
}

void frmLocalizarClientes::vMontarFormulario() {
  vMontarTela(abas({}, {},
                   {linha({solto(chkNascimento, 4), campo("De", dtNascimentoInicial, 4),
                           campo("Até", dtNascimentoFinal, 4), campo("e-&Mail", txtEMail, cresce)}),
                    linha({campo("&Home Page", txtHomePage, 10), campo("Obser&vação", txtObs, cresce)})}));
  setPreferredSize(24, 0);
}

void frmLocalizarClientes::onLoad() {
  for (DatePicker* dtPeriodo : {&dtNascimentoInicial, &dtNascimentoFinal}) {
    dtPeriodo->setValue(contexto().relogio().today());
    dtPeriodo->setEnabled(false);
  }
}

}  // namespace fenvale

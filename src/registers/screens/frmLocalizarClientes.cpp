#include "registers/screens/frmLocalizarClientes.h"

#include "shell/services/Contexto.h"

namespace fenvale {

frmLocalizarClientes::frmLocalizarClientes(Contexto& contexto)
    : TelaBuscaCompleta(contexto, "frmLocalizarClientes", "Localizar cliente"),
      categoria(*this, contexto, {&txtCategoria},
                {"frmLocalizarCategoriasRapido", &txtNome, "cmdBuscarCategoria", "Localizar categoria"}),
      vendedor(*this, contexto, {&txtVendedor},
               {"frmLocalizarVendedoresRapido", &txtRG, "cmdBuscarVendedor", "Localizar vendedor"}),
      cidade(*this, contexto, CampoCidade::Modo::busca, true, {"txtCidade", "txtUF", "cmdBuscarCidade"}),
      cidadeEntrega(*this, contexto, CampoCidade::Modo::busca, true,
                    {"txtCidadeEntrega", "txtUFEntrega", "cmdBuscaCidadeEntrega"}),
      cidadeCobranca(*this, contexto, CampoCidade::Modo::busca, true,
                     {"txtCidadeCobranca", "txtUFCobranca", "cmdBuscaCidadeCobranca"}) {
  cidade.aposBusca = [this] { txtCEP.setFocus(); };
  cidadeEntrega.aposBusca = [this] { txtEnderecoCobranca.setFocus(); };
  chkNascimento.onClick = [this] {
    dtNascimentoInicial.setEnabled(chkNascimento.checked());
    dtNascimentoFinal.setEnabled(chkNascimento.checked());
  };
  vSetCriterios([this] { return sPrefixo("Clientes.sNome", txtNome); },
                {igual("lCodigoInf", txtCodigoInf),
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
  vMontarTela({
      aba("Dados gerais", {linha({campo("&Código", txtCodigoInf, 3), categoria.campoPrincipal("Categoria", 6),
                                  campo("&Nome", txtNome, cresce)}),
                           linha({campo("&Endereço", txtEndereco, cresce), campo("&Bairro", txtBairro, 5),
                                  cidade.campoNome(6), cidade.campoUF(2)}),
                           linha({campo("CEP", txtCEP, 3), campo("&Telefone", txtTelefone, 4), campo("Fax", txtFax, 4),
                                  campo("C&ontato", txtContato, cresce), vendedor.campoPrincipal("Vendedor", 7)}),
                           linha({campo("&RG", txtRG, 4), campo("C&PF", txtCPF, 4), campo("&IE", txtIE, 4),
                                  campo("CNP&J", txtCNPJ, cresce)}),
                           linha({solto(chkNascimento, 4), campo("De", dtNascimentoInicial, 4),
                                  campo("Até", dtNascimentoFinal, 4), campo("e-&Mail", txtEMail, cresce)}),
                           linha({campo("&Home Page", txtHomePage, 10), campo("Obser&vação", txtObs, cresce)})}),
      aba("Filiação", {linha({campo("Nome do pai", txtPai, cresce), campo("Nome da mãe", txtMae, cresce)})}),
      aba("Local de entrega",
          {linha({campo("Endereço", txtEnderecoEntrega, cresce), campo("Bairro", txtBairroEntrega, 5)}),
           linha({cidadeEntrega.campoNome(10), cidadeEntrega.campoUF(2), campo("CEP", txtCEPEntrega, 3)})}),
      aba("Local de cobrança",
          {linha({campo("Endereço", txtEnderecoCobranca, cresce), campo("Bairro", txtBairroCobranca, 5)}),
           linha({cidadeCobranca.campoNome(10), cidadeCobranca.campoUF(2), campo("CEP", txtCEPCobranca, 3)})}),
  });
  setPreferredSize(24, 0);
}

void frmLocalizarClientes::onLoad() {
  for (DatePicker* dtPeriodo : {&dtNascimentoInicial, &dtNascimentoFinal}) {
    dtPeriodo->setValue(contexto().relogio().today());
    dtPeriodo->setEnabled(false);
  }
}

}  // namespace fenvale

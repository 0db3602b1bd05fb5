#include "registers/screens/FormularioCliente.h"

namespace fenvale {
namespace {

LayoutNode abaEndereco(const char* sLegenda, TextBox& endereco, TextBox& bairro, CampoCidade& cidade, MaskBox& cep) {
  return aba(sLegenda, {linha({campo("Endereço", endereco, cresce), campo("Bairro", bairro, 5)}),
                        linha({cidade.campoNome(10), cidade.campoUF(2), campo("CEP", cep, 3)})});
}

}  // namespace

FormularioCliente::FormularioCliente(Screen& tela, Contexto& contexto)
    : FormularioPessoa(tela, contexto, 100),
      vendedor(tela, contexto, {&txtVendedor},
               {"frmLocalizarVendedoresRapido", &txtRG, "cmdBuscarVendedor", "Localizar vendedor"}),
      cidadeEntrega(tela, contexto, CampoCidade::Modo::busca, true, nomesCidade("Entrega", "cmdBuscaCidadeEntrega")),
      cidadeCobranca(tela, contexto, CampoCidade::Modo::busca, true,
                     nomesCidade("Cobranca", "cmdBuscaCidadeCobranca")) {
  cidade.aposBusca = [this] { txtCEP.setFocus(); };
  cidadeEntrega.aposBusca = [this] { txtEnderecoCobranca.setFocus(); };
}

std::vector<LayoutNode> FormularioCliente::abas(std::vector<LayoutNode> aposNome, std::vector<LayoutNode> aposCNPJ,
                                                std::vector<LayoutNode> linhasFinais) {
  std::vector<LayoutNode> gerais{linhaNome(std::move(aposNome)), linhaEndereco({campo("&Bairro", txtBairro, 5)}),
                                 linhaContato({vendedor.campoPrincipal("Vendedor", 8)}),
                                 linhaDocumentos({campo("&RG", txtRG, 4)}, std::move(aposCNPJ))};
  for (LayoutNode& ultima : linhasFinais) gerais.push_back(std::move(ultima));
  return {
      aba("Dados gerais", std::move(gerais)),
      aba("Filiação", {linha({campo("Nome do pai", txtPai, cresce), campo("Nome da mãe", txtMae, cresce)})}),
      abaEndereco("Local de entrega", txtEnderecoEntrega, txtBairroEntrega, cidadeEntrega, txtCEPEntrega),
      abaEndereco("Local de cobrança", txtEnderecoCobranca, txtBairroCobranca, cidadeCobranca, txtCEPCobranca),
  };
}

}  // namespace fenvale

#include "registers/screens/FormularioCliente.h"

namespace fenvale {
namespace {

NomesCampoCidade nomesCidade(const std::string& sSufixo, const std::string& sBotao) {
  return {"txtCidade" + sSufixo, "txtUF" + sSufixo, sBotao};
}

LayoutNode linhaCom(std::vector<LayoutNode> campos, std::vector<LayoutNode> outros) {
  for (LayoutNode& outro : outros) campos.push_back(std::move(outro));
  return linha(std::move(campos));
}

LayoutNode abaEndereco(const char* sLegenda, TextBox& endereco, TextBox& bairro, CampoCidade& cidade, MaskBox& cep) {
  return aba(sLegenda, {linha({campo("Endereço", endereco, cresce), campo("Bairro", bairro, 5)}),
                        linha({cidade.campoNome(10), cidade.campoUF(2), campo("CEP", cep, 3)})});
}

}  // namespace

FormularioCliente::FormularioCliente(Screen& tela, Contexto& contexto)
    : tela_(tela),
      categoria(tela, contexto, {&txtCategoria},
                {"frmLocalizarCategoriasRapido", &txtNome, "cmdBuscarCategoria", "Localizar categoria"}),
      vendedor(tela, contexto, {&txtVendedor},
               {"frmLocalizarVendedoresRapido", &txtRG, "cmdBuscarVendedor", "Localizar vendedor"}),
      cidade(tela, contexto, CampoCidade::Modo::busca, true, nomesCidade("", "cmdBuscarCidade")),
      cidadeEntrega(tela, contexto, CampoCidade::Modo::busca, true, nomesCidade("Entrega", "cmdBuscaCidadeEntrega")),
      cidadeCobranca(tela, contexto, CampoCidade::Modo::busca, true,
                     nomesCidade("Cobranca", "cmdBuscaCidadeCobranca")) {
  cidade.aposBusca = [this] { txtCEP.setFocus(); };
  cidadeEntrega.aposBusca = [this] { txtEnderecoCobranca.setFocus(); };
}

std::vector<LayoutNode> FormularioCliente::abas(std::vector<LayoutNode> aposNome, std::vector<LayoutNode> aposCNPJ,
                                                std::vector<LayoutNode> linhasFinais) {
  std::vector<LayoutNode> gerais{
      linhaCom({campo("&Código", txtCodigoInf, 3), categoria.campoPrincipal("Categoria", 5),
                campo("&Nome", txtNome, cresce)},
               std::move(aposNome)),
      linha({campo("&Endereço", txtEndereco, cresce), campo("&Bairro", txtBairro, 5), cidade.campoNome(6),
             cidade.campoUF(2)}),
      linha({campo("CEP", txtCEP, 3), campo("&Telefone", txtTelefone, 4), campo("Fax", txtFax, 4),
             campo("C&ontato", txtContato, cresce), vendedor.campoPrincipal("Vendedor", 8)}),
      linhaCom(
          {campo("&RG", txtRG, 4), campo("C&PF", txtCPF, 4), campo("&IE", txtIE, 4), campo("CNP&J", txtCNPJ, cresce)},
          std::move(aposCNPJ))};
  for (LayoutNode& ultima : linhasFinais) gerais.push_back(std::move(ultima));
  return {
      aba("Dados gerais", std::move(gerais)),
      aba("Filiação", {linha({campo("Nome do pai", txtPai, cresce), campo("Nome da mãe", txtMae, cresce)})}),
      abaEndereco("Local de entrega", txtEnderecoEntrega, txtBairroEntrega, cidadeEntrega, txtCEPEntrega),
      abaEndereco("Local de cobrança", txtEnderecoCobranca, txtBairroCobranca, cidadeCobranca, txtCEPCobranca),
  };
}

}  // namespace fenvale

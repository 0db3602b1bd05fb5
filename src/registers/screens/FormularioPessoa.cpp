#include "registers/screens/FormularioPessoa.h"

namespace fenvale {
namespace {

using Nos = std::vector<LayoutNode>;

LayoutNode linhaDe(Nos antes, Nos comuns, Nos depois) {
  for (Nos* nos : {&comuns, &depois})
    for (LayoutNode& no : *nos) antes.push_back(std::move(no));
  return linha(std::move(antes));
}

}  // namespace

FormularioPessoa::FormularioPessoa(Screen& tela, Contexto& contexto, std::size_t comprimentoEndereco)
    : tela_(tela),
      txtEndereco(tela, "txtEndereco", comprimentoEndereco),
      categoria(tela, contexto, {&txtCategoria},
                {"frmLocalizarCategoriasRapido", &txtNome, "cmdBuscarCategoria", "Localizar categoria"}),
      cidade(tela, contexto, CampoCidade::Modo::busca, true, nomesCidade("", "cmdBuscarCidade")) {}

NomesCampoCidade FormularioPessoa::nomesCidade(const std::string& sSufixo, const std::string& sBotao) {
  return {"txtCidade" + sSufixo, "txtUF" + sSufixo, sBotao};
}

LayoutNode FormularioPessoa::linhaNome(Nos depois) {
  return linhaDe({campo("&Código", txtCodigoInf, 3), categoria.campoPrincipal("Categoria", 5)},
                 {campo("&Nome", txtNome, cresce)}, std::move(depois));
}

LayoutNode FormularioPessoa::linhaEndereco(Nos aposEndereco) {
  return linhaDe({campo("&Endereço", txtEndereco, cresce)}, std::move(aposEndereco),
                 {cidade.campoNome(6), cidade.campoUF(2)});
}

LayoutNode FormularioPessoa::linhaContato(Nos depois) {
  return linhaDe({campo("CEP", txtCEP, 3), campo("&Telefone", txtTelefone, 4), campo("Fax", txtFax, 4)},
                 {campo("C&ontato", txtContato, cresce)}, std::move(depois));
}

LayoutNode FormularioPessoa::linhaDocumentos(Nos antes, Nos depois) {
  return linhaDe(std::move(antes), {campo("C&PF", txtCPF, 4), campo("&IE", txtIE, 4), campo("CNP&J", txtCNPJ, cresce)},
                 std::move(depois));
}

}  // namespace fenvale

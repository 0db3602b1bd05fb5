#include "titles/screens/EntidadesFatura.h"

#include "platform/base/Text.h"
#include "store/services/Sistema.h"
#include "titles/services/Lado.h"

namespace fenvale {
namespace {

CampoEntidade::Descricao pessoaDoLado(const Lado& lado, const std::string& sInforme) {
  return {"txt" + lado.sPessoa, lado.sPessoa,      lado.sAcessoPessoa, "cmdNovo" + lado.sPessoa,
          lado.sCadastroPessoa, lado.sBuscaPessoa, lado.sChavePessoa,  sInforme};
}

CampoEntidade::Descricao portadorDaFatura() {
  return {"txtPortador",
          "Portador",
          "P",
          "cmdNovoPortador",
          "frmCadastroPortadores",
          "frmLocalizarPortadoresRapido",
          "lPortador",
          "Informe o portador."};
}

CampoEntidade::Descricao vendedorDaFatura() {
  return {"txtVendedor",
          "Vendedor",
          "n",
          "cmdNovoVendedor",
          "frmCadastroVendedores",
          "frmLocalizarVendedoresRapido",
          "lVendedor",
          "Informe o vendedor."};
}

CampoEntidade::Descricao centroCustoDaFatura() {
  return {"txtCentroCusto",
          "Centro de custo",
          "u",
          "cmdNovoCentroCusto",
          "frmCadastroCentroCusto",
          "frmLocalizarCentroCustoRapido",
          "lCentroCusto",
          ""};
}

}  // namespace

CampoEntidade::CampoEntidade(Screen& tela, Contexto& contexto, Descricao descricao, Control* proximo)
    : descricao_(std::move(descricao)),
      caixa(tela, descricao_.sCaixa),
      cmdNovo(tela, descricao_.sNovo, "", "mais"),
      busca(tela, contexto, {&caixa},
            {descricao_.sBusca, proximo, "cmdBusca" + descricao_.sCaixa.substr(3),
             "Localizar " + toLower(descricao_.sRotulo)}) {
  busca.vSetCadastro(descricao_.sCadastro, "Cadastrar " + toLower(descricao_.sRotulo), cmdNovo);
}

LayoutNode CampoEntidade::campo(int largura) {
  std::string sRotulo = descricao_.sRotulo;
  return busca.campoPrincipal(sRotulo.insert(sRotulo.find(descricao_.sAcesso), "&"), largura);
}

EntidadesFatura::EntidadesFatura(Screen& tela, Contexto& contexto, const Lado& lado, const std::string& sInformePessoa,
                                 Control* depoisDaPessoa)
    : centroCusto(tela, contexto, centroCustoDaFatura(), nullptr),
      vendedor(lado.bVendedor ? std::make_unique<CampoEntidade>(tela, contexto, vendedorDaFatura(), &centroCusto.caixa)
                              : nullptr),
      portador(tela, contexto, portadorDaFatura(), vendedor ? &vendedor->caixa : &centroCusto.caixa),
      pessoa(tela, contexto, pessoaDoLado(lado, sInformePessoa),
             depoisDaPessoa != nullptr ? depoisDaPessoa : &portador.caixa),
      contexto_(contexto) {}

std::vector<CampoBusca*> EntidadesFatura::buscas() {
  std::vector<CampoBusca*> todas{&pessoa.busca, &portador.busca};
  if (vendedor) todas.push_back(&vendedor->busca);
  todas.push_back(&centroCusto.busca);
  return todas;
}

std::vector<CampoEntidade*> EntidadesFatura::obrigatoriasDepoisDaPessoa() {
  if (!vendedor) return {&portador};
  return {&portador, vendedor.get()};
}

void EntidadesFatura::vCompletarCentroCusto() {
  if (centroCusto.busca.lCodigo == -1) centroCusto.busca.lCodigo = Sistema(contexto_).lGetCentroCustoPadrao();
}

ValoresSQL EntidadesFatura::valores(std::optional<std::int32_t> lCondicoesPagamento) const {
  const auto valor = [](const CampoEntidade& entidade) {
    return std::pair(entidade.descricao().sColuna, std::to_string(entidade.busca.lCodigo));
  };
  ValoresSQL todos{valor(pessoa)};
  if (lCondicoesPagamento) todos.emplace_back("lCondicoesPagamento", std::to_string(*lCondicoesPagamento));
  todos.push_back(valor(portador));
  if (vendedor) todos.push_back(valor(*vendedor));
  todos.push_back(valor(centroCusto));
  return todos;
}

std::vector<ColunaLista> EntidadesFatura::colunas(CampoEntidade& entidade, const std::string& sNomeNaFrase,
                                                  const std::string& sCampoNome, float fLargura) {
  return {{"Código interno do " + sNomeNaFrase, 0, Align::left, entidade.descricao().sColuna, entidade.busca.lCodigo},
          {entidade.descricao().sRotulo, fLargura, Align::left, sCampoNome, entidade.caixa}};
}

std::vector<ColunaLista> EntidadesFatura::colunasPessoa(const Lado& lado) {
  return colunas(pessoa, lado.sPessoaMinuscula, lado.sPessoa, 3000);
}

std::vector<ColunaLista> EntidadesFatura::colunasPortador() { return colunas(portador, "portador", "Portador", 1800); }

std::vector<ColunaLista> EntidadesFatura::colunasVendedor() {
  if (!vendedor) return {};
  return colunas(*vendedor, "vendedor", "Vendedores", 1900);
}

std::vector<ColunaLista> EntidadesFatura::colunasCentroCusto() {
  return colunas(centroCusto, "centro de custo", "CentroCusto", 2200);
}

void vAcrescentar(std::vector<ColunaLista>& colunas, std::vector<ColunaLista> outras) {
  for (ColunaLista& coluna : outras) colunas.push_back(std::move(coluna));
}

std::vector<std::int32_t> EntidadesFatura::chaves() const {
  std::vector<std::int32_t> todas{pessoa.busca.lCodigo, portador.busca.lCodigo};
  if (vendedor) todas.push_back(vendedor->busca.lCodigo);
  todas.push_back(centroCusto.busca.lCodigo);
  return todas;
}

void EntidadesFatura::vRestaurarChaves(const std::vector<std::int32_t>& chavesGuardadas) {
  const auto todas = buscas();
  for (std::size_t i = 0; i < todas.size(); ++i) todas[i]->lCodigo = chavesGuardadas[i];
}

}  // namespace fenvale

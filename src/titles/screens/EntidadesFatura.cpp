#include "titles/screens/EntidadesFatura.h"

#include "platform/base/Text.h"
#include "store/services/Sistema.h"
#include "titles/screens/ColunasTitulos.h"
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

CampoEntidade::Descricao paraUso(CampoEntidade::Descricao descricao, EntidadesFatura::Uso uso) {
  if (uso == EntidadesFatura::Uso::filtro) descricao.sNovo.clear();
  return descricao;
}

}  // namespace

CampoEntidade::CampoEntidade(Screen& tela, Contexto& contexto, Descricao descricao, Control* proximo)
    : descricao_(std::move(descricao)),
      caixa(tela, descricao_.sCaixa),
      cmdNovo(descricao_.sNovo.empty() ? nullptr : std::make_unique<Button>(tela, descricao_.sNovo, "", "mais")),
      busca(tela, contexto, {&caixa},
            {descricao_.sBusca, proximo, "cmdBusca" + descricao_.sCaixa.substr(3),
             "Localizar " + toLower(descricao_.sRotulo)}) {
  if (cmdNovo) busca.vSetCadastro(descricao_.sCadastro, "Cadastrar " + toLower(descricao_.sRotulo), *cmdNovo);
}

LayoutNode CampoEntidade::campo(int largura) {
  std::string sRotulo = descricao_.sRotulo;
  return busca.campoPrincipal(sRotulo.insert(sRotulo.find(descricao_.sAcesso), "&"), largura);
}

EntidadesFatura::EntidadesFatura(Screen& tela, Contexto& contexto, const Lado& lado, Uso uso,
                                 const std::string& sInformePessoa)
    : centroCusto(tela, contexto, paraUso(centroCustoDaFatura(), uso), nullptr),
      vendedor(lado.bVendedor ? std::make_unique<CampoEntidade>(tela, contexto, paraUso(vendedorDaFatura(), uso),
                                                                &centroCusto.caixa)
                              : nullptr),
      portador(tela, contexto, paraUso(portadorDaFatura(), uso), vendedor ? &vendedor->caixa : &centroCusto.caixa),
      pessoa(tela, contexto, paraUso(pessoaDoLado(lado, sInformePessoa), uso), &portador.caixa),
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

void EntidadesFatura::vLigarColunas(std::vector<ColunaLista>& colunas) {
  const auto ligar = [&colunas](CampoEntidade& entidade, const std::string& sCampoNome) {
    vLigar(colunas, entidade.descricao().sColuna, entidade.busca.lCodigo);
    vLigar(colunas, sCampoNome, entidade.caixa);
  };
  ligar(pessoa, pessoa.descricao().sRotulo);
  ligar(portador, "Portador");
  if (vendedor) ligar(*vendedor, "Vendedores");
  ligar(centroCusto, "CentroCusto");
}

std::vector<LayoutNode> EntidadesFatura::linhas() {
  if (!vendedor) return {linha({pessoa.campo(cresce), portador.campo(8), centroCusto.campo(8)})};
  return {linha({pessoa.campo(cresce), portador.campo(10)}), linha({vendedor->campo(14), centroCusto.campo(cresce)})};
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

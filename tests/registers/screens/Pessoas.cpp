#include "Pessoas.h"

#include "registers/screens/FormularioFornecedor.h"
#include "shell/services/Contexto.h"

namespace fenvale {
namespace {

/// Picks the city that it is told to.
struct BuscaCidadeFalsa : Screen, BuscaCidade {
  BuscaCidadeFalsa(Contexto& contexto, const std::string& sNome) : Screen(contexto.host(), "frmLocalizarCidades") {
    escolhida.vSetEstado2(contexto, sNome, "SP", true);
  }
  void vCarregar(bool) override { host().showModal(*this); }
  const Cidade& cidade() const override { return escolhida; }
  Cidade escolhida;
};

/// Remembers what it was asked to list.
struct TitulosFalsos : Screen, TelaComLista {
  TitulosFalsos(Contexto& contexto, const std::string& sNome, std::vector<std::string>& clausulas)
      : Screen(contexto.host(), sNome), pedidas(clausulas) {}
  void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override {
    pedidas.push_back(std::to_string(iInicio) + "|" + sWhere);
  }
  std::vector<std::string>& pedidas;
};

}  // namespace

Pessoas::Pessoas() {
  lCampinas = cidade("Campinas", "SP");
  lSantaBarbara = cidade("Santa Bárbara d'Oeste", "SP");
  programa.telas().registrar("frmLocalizarCidades", [this](Contexto& contexto) -> std::unique_ptr<Screen> {
    return std::make_unique<BuscaCidadeFalsa>(contexto, sCidadeEscolhida);
  });
}

void Pessoas::escolherCidade(TextControl& caixaCidade, const std::string& sNome) {
  sCidadeEscolhida = sNome;
  caixaCidade.setFocus();
  host.expectScreen("frmLocalizarCidades", [](Screen& busca) { busca.unload(); });
  caixaCidade.screen().userKey(Key::space);
}

void Pessoas::preencher(Screen& tela, const std::string& sNome) {
  FormularioPessoa& pessoa = formulario(tela);
  pessoa.txtNome.userType(sNome);
  escolherCidade(pessoa.cidade.txtCidade, "Campinas");
  if (auto* fornecedor = dynamic_cast<FormularioFornecedor*>(&tela)) {
    fornecedor->vSetCategoria(lAtacado(), "Atacado");
    fornecedor->banco.vSetEstado2("Banco do Brasil S.A.");
  }
}

void Pessoas::salvar(TelaCadastro& tela) {
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);
}

std::int32_t Pessoas::cadastrar(const std::string& sTela, int iCodigo, const std::string& sNome) {
  TelaCadastro& tela = abrirCadastro(sTela);
  formulario(tela).txtCodigoInf.userType(std::to_string(iCodigo));
  preencher(tela, sNome);
  salvar(tela);
  const auto item = tela.lstLista.item(tela.lstLista.items().size() - 1);
  const std::int32_t lChave = lCodigoDaChave(item->key());
  fechar(tela);
  return lChave;
}

std::int32_t Pessoas::lAtacado() {
  if (lAtacado_ < 0) lAtacado_ = inserir("Categorias", "btCodigoInf, sNome", "3, 'Atacado'");
  return lAtacado_;
}

void Pessoas::fingirTitulos(const std::string& sTela) {
  programa.telas().registrar(sTela, [this, sTela](Contexto& contexto) -> std::unique_ptr<Screen> {
    return std::make_unique<TitulosFalsos>(contexto, sTela, pedidas);
  });
}

}  // namespace fenvale

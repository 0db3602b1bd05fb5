#include "titles/screens/TelaBuscaBaixa.h"

#include <algorithm>

#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "titles/screens/ColunasTitulos.h"

namespace fenvale {
namespace {

template <typename Receptor, void (Receptor::*vSet)(const ListItem&)>
void vEntregarA(Screen& chamador, const ListItem& item) {
  auto* const quem = dynamic_cast<Receptor*>(&chamador);
  if (quem == nullptr) throw Error(Telas::operacaoInexistente, chamador.sGetName() + " não recebe o título escolhido.");
  (quem->*vSet)(item);
}

}  // namespace

const std::vector<DescricaoBuscaBaixa>& buscasBaixa() {
  static const std::vector<DescricaoBuscaBaixa> buscas{
      {ladoReceber(), &vEntregarA<ReceptorTituloReceber, &ReceptorTituloReceber::vSetTituloReceberBaixa>},
      {ladoPagar(), &vEntregarA<ReceptorTituloPagar, &ReceptorTituloPagar::vSetTituloPagarBaixa>},
  };
  return buscas;
}

TelaBuscaBaixa::TelaBuscaBaixa(Contexto& contexto, const DescricaoBuscaBaixa& descricao)
    : TelaEscolha(contexto, descricao.lado.titulos.sBuscaBaixa, descricao.lado.titulos.sLegendaBusca),
      FormularioBuscaTitulos(*this, contexto, descricao.lado),
      txtFilial(descricao.lado.bFilial ? std::make_unique<TextBox>(*this, "txtFilial", 3) : nullptr),
      descricao_(descricao) {
  std::vector<ColunaLista> colunasDaLista = colunasTitulos(lado_);
  colunasDaLista.push_back({"Nº da fatura", 1500, Align::right, "lNumeroFatura"});
  vSetColunas(std::move(colunasDaLista));
  cmdEmitir.onClick = [this] { vEmitirLista(lado_.titulos.sTitulo, 80); };
  std::vector<LayoutNode> filial;
  if (txtFilial) filial.push_back(campo("Fili&al", *txtFilial, 3));
  vMontarTela(linhas(std::move(filial)), {&cmdLocalizar, &cmdEmitir});
  setPreferredSize(24, 40);
}

void TelaBuscaBaixa::onLoad() {
  TelaEscolha::onLoad();
  vIniciarPeriodos(contexto().relogio().today());
  cmdEmitir.setEnabled(bPodeEmitir());
}

void TelaBuscaBaixa::vLocalizar(Screen& chamador) {
  chamador_ = &chamador;
  vAbrir();
}

std::string TelaBuscaBaixa::sConsulta() const {
  return lado_.titulos.sSelecaoBaixa + sClausula(criteriosDeAbertos()) + " ORDER BY sCodigoInf ";
}

void TelaBuscaBaixa::vEscolher(std::int32_t lChave) {
  if (chamador_ == nullptr) throw Error(errors::objectNotSet, sGetName() + " foi aberta sem a tela que usa a busca.");
  contexto().configuracoes().vSetClickAnterior(-1);
  const auto& itens = lstLista.items();
  const auto escolhido = std::find_if(itens.begin(), itens.end(),
                                      [lChave](const auto& item) { return lCodigoDaChave(item->key()) == lChave; });
  descricao_.vEntregar(*chamador_, **escolhido);
}

}  // namespace fenvale

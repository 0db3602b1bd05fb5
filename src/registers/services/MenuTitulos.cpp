#include "registers/services/MenuTitulos.h"

#include "platform/base/Error.h"
#include "platform/ui/Screen.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/TelaComLista.h"
#include "shell/services/Telas.h"
#include "shell/services/TratadorExcessoes.h"

namespace fenvale {
namespace {

/// The row stays loaded after a failure, so the report lets the program go on.
constexpr int iContinuar = 2;

struct Entrada {
  const char* sNome;
  const char* sLegenda;
  const char* sCondicao;
};

constexpr Entrada entradas[] = {
    {"mnuVerificarTitulos", "Mostrar todos os títulos", ""},
    {"mnuMostrarPagos", "Mostrar somente os títulos pagos", "AND (fValorPago > 0) "},
    {"mnuMostrarNaoPagos", "Mostrar somente os títulos não pagos", "AND (fValorPago <= 0) "},
};

}  // namespace

MenuTitulos::MenuTitulos(Screen& tela, Contexto& contexto, Descricao descricao, std::function<std::int32_t()> lChave,
                         std::function<void()> aoVoltar)
    : mnuPopUp(tela, "mnuPopUp"),
      contexto_(contexto),
      descricao_(std::move(descricao)),
      lChave_(std::move(lChave)),
      aoVoltar_(std::move(aoVoltar)) {
  std::vector<MenuItem> itens;
  for (const Entrada& entrada : entradas) {
    const auto vMostrar = [this, &entrada] {
      try {
        vMostrarTitulos(entrada.sCondicao);
      } catch (const Error& falha) {
        contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, mnuPopUp.screen().sGetName(),
                                                           std::string(entrada.sNome) + "_Click", iContinuar);
      }
    };
    itens.push_back({entrada.sNome, entrada.sLegenda, {}, vMostrar, {}});
  }
  mnuPopUp.setItems(std::move(itens));
}

void MenuTitulos::vAbrir() {
  const bool bExiste = contexto_.telas().bExiste(descricao_.sTela);
  for (const Entrada& entrada : entradas) mnuPopUp.setItemEnabled(entrada.sNome, bExiste);
  mnuPopUp.show();
}

void MenuTitulos::vMostrarTitulos(const std::string& sCondicao) {
  Telas& telas = contexto_.telas();
  telas.obter<TelaComLista>(descricao_.sTela)
      .vMontarLista(0, "WHERE " + descricao_.sCampo + " = " + std::to_string(lChave_()) + " " + sCondicao);
  Funcoes(contexto_).vMostrarFormModal(descricao_.sTela);
  telas.descartar(descricao_.sTela);
  aoVoltar_();
}

}  // namespace fenvale

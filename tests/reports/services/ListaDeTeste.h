#pragma once
// A list to be printed, on a screen of its own.

#include <string>
#include <vector>

#include "platform/ui/ListView.h"
#include "platform/ui/Screen.h"
#include "platform/ui/test/TestHost.h"
#include "reports/services/ListagemTexto.h"
#include "reports/services/OpcoesImpressaoList.h"

namespace fenvale {

class ListaDeTeste {
 public:
  using Linhas = std::vector<std::vector<std::string>>;

  /// A row may have fewer texts than there are columns.
  explicit ListaDeTeste(std::vector<ListColumn> colunas, const Linhas& linhas = {})
      : lst(tela_, "lstLista", std::move(colunas)) {
    for (const auto& linha : linhas) {
      const auto item = lst.addItem("", linha.empty() ? "" : linha.front());
      for (std::size_t i = 1; i < linha.size(); ++i) item->setSubItem(i, linha[i]);
    }
  }

  OpcoesImpressaoList opcoes(std::int16_t iColunas, std::int16_t iDimensionamento,
                             std::string sTitulo = "Cadastro de categorias") const {
    OpcoesImpressaoList opcoes;
    opcoes.vSetColunas(iColunas);
    opcoes.vSetOpcaoDimensionamento(iDimensionamento);
    opcoes.vSetTitulo(std::move(sTitulo));
    opcoes.vSetList(lst);
    return opcoes;
  }

  /// The bytes of the printout.
  std::string imprimir(std::int16_t iColunas, std::int16_t iDimensionamento,
                       std::string sTitulo = "Cadastro de categorias") const {
    std::string bytes;
    vGerarListagem(opcoes(iColunas, iDimensionamento, std::move(sTitulo)),
                   [&bytes](std::string_view bloco) { bytes += bloco; });
    return bytes;
  }

 private:
  TestHost host_;
  Screen tela_{host_, "frmLista"};

 public:
  ListView lst;
};

}  // namespace fenvale

#pragma once
// City and state on a screen: two boxes, the button that opens the city search, and the Cidade that they stand for.
//
//   CampoCidade cidade{*this, contexto, CampoCidade::Modo::digitado, true};
//   setLayout({linha({campo("Endereço", txtEndereco, 10), cidade.campoNome(6), cidade.campoUF()})});

#include <functional>
#include <memory>
#include <string>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/Layout.h"
#include "registers/services/Cidade.h"

namespace fenvale {

/// The names of the three controls of a city field on its screen.
struct NomesCampoCidade {
  std::string sCidade = "txtCidade";
  std::string sUF = "txtUF";
  std::string sBotao = "cmdBuscarCidades";
};

class CampoCidade {
  std::unique_ptr<TextControl> caixaCidade_, caixaUF_;  // made before the references to them

 public:
  enum class Modo {
    digitado,  ///< typed; leaving a box looks the pair up
    busca,     ///< lookup boxes: Space searches, Delete empties
  };
  CampoCidade(Screen& tela, Contexto& contexto, Modo modo, bool bEmpresa, const NomesCampoCidade& nomes = {});
  CampoCidade(const CampoCidade&) = delete;
  CampoCidade& operator=(const CampoCidade&) = delete;

  TextControl& txtCidade;
  TextControl& txtUF;
  Button cmdBuscarCidades;
  /// After a search that Space in a box has opened: where the focus goes next.
  std::function<void()> aposBusca;

  const Cidade& cidade() const { return cidade_; }
  std::int32_t lGetCodigo() const { return cidade_.lGetCodigo(); }

  /// From the columns CidadeNome, CidadeUF and CidadeCodigo of the current row, boxes included.
  void vSetEstado(const Recordset& rs);
  /// Looked up by name and state, boxes included.
  void vSetEstado2(const std::string& sNome, const std::string& sUF);
  /// The city alone, for a rule that falls back to another one and leaves the boxes as they are.
  void vSetSomenteCidade(const Cidade& outra);
  /// City and boxes emptied.
  void vLimpar();
  /// Opens the search; a pick fills city and boxes.
  void vBuscar();

  LayoutNode campoNome(int largura, std::string sRotulo = "Cidade");
  LayoutNode campoUF(int largura = 2);

 private:
  bool bTecla(TextControl& caixa, Key tecla);
  void vProcurarPar();
  void vMostrar();

  Contexto& contexto_;
  bool bEmpresa_;
  Cidade cidade_;
};

}  // namespace fenvale
